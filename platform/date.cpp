#include "platform/date.h"

#include <array>
#include <charconv>
#include <cstdlib>
#include <ctime>
#include <string_view>

namespace coltre {

DocumentDate document_date() {
    std::time_t seconds = std::time(nullptr);
    const char* const epoch = std::getenv("SOURCE_DATE_EPOCH");
    const std::string_view given = epoch != nullptr ? epoch : "";
    const char* const end = given.data() + given.size();
    const auto read = std::from_chars(given.data(), end, seconds);
    const bool is_number = read.ec == std::errc() && read.ptr == end;
    const std::tm* day = nullptr;
    if (given.empty()) day = std::localtime(&seconds);
    if (!given.empty() && is_number) day = std::gmtime(&seconds);
    if (day == nullptr)
        return {"", "la variabile d'ambiente SOURCE_DATE_EPOCH deve essere un numero di secondi: «" +
                        std::string(given) + "»"};
    std::array<char, 32> date{};
    return {{date.data(), std::strftime(date.data(), date.size(), "%d/%m/%Y", day)}, std::nullopt};
}

}  // namespace coltre
