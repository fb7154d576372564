#include "platform/files.h"

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstdlib>
#include <system_error>
#include <thread>
#include <utility>

#include "platform/code_page.h"
#include "platform/failure.h"
#include "platform/system_files.h"

namespace coltre {

namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;

constexpr std::size_t largest_file = 64U << 20U;  // bytes

/// Reads up to so many bytes of a file.
/// @param state  of the file when they had been read
/// @return an error number; 0 if all went well
int read_bytes(const fs::path& path, std::size_t most, std::string& bytes, system_files::State& state) {
    bytes.clear();
    if (holds_code_0(path)) return EINVAL;
    system_files::Descriptor file;
    if (const int error = system_files::open_to_read(path, file)) return error;
    if (const int error = system_files::state_of(file, state)) return error;
    // One read of the whole size where the size is known; the next ones take what a growing file adds.
    std::size_t room = state.size > 0 ? static_cast<std::size_t>(state.size) + 1 : 65536;
    constexpr std::size_t more = 4096;
    bytes.reserve(std::min(room, most) + more);
    for (std::size_t taken = 1; taken > 0 && bytes.size() < most; room = more) {
        const std::size_t length = bytes.size();
        bytes.resize(std::min(length + room, most));
        const int error = system_files::read_some(file, bytes.data() + length, bytes.size() - length, taken);
        bytes.resize(length + taken);
        if (error != 0) return error;
    }
    return system_files::state_of(file, state);
}

/// What was read, and the state that the file was in.
struct Reading {
    FileContent content;
    system_files::State state;
};

Reading read_with_state(std::string_view suite_path) {
    const fs::path path = find_path(suite_path);
    Reading reading;
    std::string& bytes = reading.content.bytes;
    int error = tried_again([&] { return read_bytes(path, largest_file + 1, bytes, reading.state); });
    if (error == 0 && bytes.size() > largest_file) error = EFBIG;
    reading.content.end = error == 0                            ? ReadEnd::read
                          : error == ENOENT || error == ENOTDIR ? ReadEnd::missing
                          : may_pass(error)                     ? ReadEnd::disturbed
                                                                : ReadEnd::unreadable;
    if (error != 0) bytes = std::string();
    reading.content.reason = system_failure(error).value_or("");
    return reading;
}

/// Whether the file was written so short a time ago that more may come. The clocks of a network disk and of
/// this machine may differ a little.
bool was_just_written(const system_files::State& state) {
    constexpr long long second = 1'000'000'000;  // ns
    return std::abs(system_files::now() - state.written) < second;
}

}  // namespace

fs::path to_path(std::string_view utf8) {
    return std::u8string(utf8.begin(), utf8.end());
}

std::string path_text(const fs::path& path) {
    const std::u8string utf8 = path.u8string();
    return {utf8.begin(), utf8.end()};
}

fs::path find_path(std::string_view suite_path) {
    std::string text(suite_path);
    std::ranges::replace(text, '\\', '/');
    return system_files::existing(to_path(text));
}

std::string suite_notation(const fs::path& path) {
    std::string text = path_text(path);
    std::ranges::replace(text, '/', '\\');
    while (text.size() > 1 && text.back() == '\\')
        text.pop_back();
    return text;
}

bool is_directory(std::string_view suite_path) {
    std::error_code error;
    return fs::is_directory(find_path(suite_path), error);
}

bool holds_code_0(const fs::path& path) {
    return path.native().find(fs::path::value_type{}) != fs::path::string_type::npos;
}

FileContent read_content(std::string_view suite_path) {
    return read_with_state(suite_path).content;
}

FileContent read_content_at_rest(std::string_view suite_path) {
    const auto read = [suite_path] {
        Reading reading = read_with_state(suite_path);
        if (reading.content.end != ReadEnd::missing) return reading;
        std::this_thread::sleep_for(50ms);
        return read_with_state(suite_path);
    };
    Reading last = read();
    if (!was_just_written(last.state)) return std::move(last.content);
    const auto deadline = std::chrono::steady_clock::now() + 2s;
    while (last.content.end == ReadEnd::read && std::chrono::steady_clock::now() < deadline) {
        std::this_thread::sleep_for(100ms);
        Reading next = read();
        const bool at_rest = next.state == last.state;
        last = std::move(next);
        if (at_rest) break;
    }
    return std::move(last.content);
}

std::optional<std::string> read_file(std::string_view suite_path) {
    FileContent content = read_content(suite_path);
    if (content.end != ReadEnd::read) return std::nullopt;
    return std::move(content.bytes);
}

std::optional<std::string> read_first_line(std::string_view suite_path) {
    constexpr std::size_t longest = 65536;
    std::string line;
    system_files::State state;
    if (read_bytes(find_path(suite_path), longest, line, state) != 0) return std::nullopt;
    line.resize(std::min(line.size(), line.find_first_of("\r\n")));
    return from_code_page(line);
}

std::string file_line(std::string_view utf8) {
    std::string line = to_code_page(utf8);
    std::ranges::replace_if(
        line, [](char c) { return c == '\r' || c == '\n' || c == '\0'; }, '?');
    return line + "\r\n";
}

}  // namespace coltre
