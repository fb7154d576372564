#include "platform/date.h"

#include <array>
#include <charconv>
#include <cstdlib>
#include <ctime>
#include <string_view>

namespace coltre {

std::string document_date() {
    std::time_t seconds = std::time(nullptr);
    const char* const epoch = std::getenv("SOURCE_DATE_EPOCH");
    const std::string_view text = epoch != nullptr ? epoch : "";
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), seconds);
    const bool fixed = !text.empty() && error == std::errc() && end == text.data() + text.size();
    if (!fixed) seconds = std::time(nullptr);
    const std::tm* const day = fixed ? std::gmtime(&seconds) : std::localtime(&seconds);
    if (day == nullptr) return {};
    std::array<char, 32> date{};
    return {date.data(), std::strftime(date.data(), date.size(), "%d/%m/%Y", day)};
}

}  // namespace coltre
