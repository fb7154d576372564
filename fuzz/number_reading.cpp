#include "text/number_reading.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "fuzz/require.h"
#include "text/characters.h"

// Input: the text of a field.

namespace {

/// What the C library reads from the front of a text.
struct Reference {
    double value;
    std::size_t length;
};

/// @param text  without blanks in front; nothing but digits, signs, points and exponent marks is taken, so
///              that neither hexadecimal numbers nor words such as "inf" are read
Reference read_by_c_library(std::string_view text) {
    const std::string number(text.substr(0, text.find_first_not_of("0123456789.eE+-")));
    char* end = nullptr;
    const double value = std::strtod(number.c_str(), &end);
    return {value, static_cast<std::size_t>(end - number.c_str())};
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace coltre;
    using coltre::fuzz::require;
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    const std::string_view trimmed = trim_blanks(text);

    const Reference reference = read_by_c_library(trimmed);
    const bool beyond_range = std::isinf(reference.value);
    const LenientNumber lenient = read_leniently(text);
    require(lenient.value == (beyond_range ? 0 : reference.value), "the number at the front is read");
    require(lenient.beyond_range == beyond_range, "a number beyond the range is known as such");
    require(lenient.wholly_understood == (reference.length > 0 && reference.length == trimmed.size()),
            "what is left over is known");

    for (const char separator : {'.', ','}) {
        std::string pointed(trimmed);
        std::ranges::replace(pointed, separator, '.');
        const Reference whole = read_by_c_library(pointed);
        auto verdict = StrictNumber::Verdict::not_a_number;
        if (whole.length > 0 && whole.length == pointed.size()) {
            verdict =
                std::isinf(whole.value) ? StrictNumber::Verdict::beyond_range : StrictNumber::Verdict::number;
        }
        const StrictNumber strict = read_strictly(text, separator);
        require(strict.verdict == verdict, "the strict verdict");
        if (verdict == StrictNumber::Verdict::number)
            require(strict.value == whole.value, "the strict value");
    }
    return 0;
}
