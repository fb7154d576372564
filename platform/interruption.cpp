#include "platform/interruption.h"

#include <array>
#include <atomic>

#include "platform/system_files.h"

namespace coltre {

namespace {

// More files than are written at once.
std::array<std::atomic<const std::filesystem::path*>, 16> registered;

void exchange(const std::filesystem::path* from, const std::filesystem::path* to) {
    for (auto& file : registered) {
        const std::filesystem::path* expected = from;
        if (file.compare_exchange_strong(expected, to)) return;
    }
}

}  // namespace

void remove_when_interrupted(const std::filesystem::path& file) {
    exchange(nullptr, &file);
}

void forget_to_remove(const std::filesystem::path& file) {
    exchange(&file, nullptr);
}

void remove_registered_files() noexcept {
    for (const auto& file : registered) {
        if (const std::filesystem::path* const path = file.load())
            static_cast<void>(system_files::remove(*path));
    }
}

}  // namespace coltre
