#pragma once

#include <string_view>

// How the texts that a user types become numbers. The locale of the process plays no part.
namespace coltre {

/// A number read from the front of a text.
struct LenientNumber {
    double value = 0;               ///< 0 where the text starts with no number, and where it is too large
    bool beyond_range = false;      ///< the number is larger than any double: a numeric error for who uses it
    bool wholly_understood = true;  ///< nothing but blanks was left over, and there was a number
    std::string_view digits;        ///< the number as it was written, without a plus sign; empty without one
};

/// Lenient reading: surrounding blanks are removed, then an optional sign, digits with at most one
/// point and an optional exponent are taken; whatever follows is ignored.
/// Read: "12", " 12abc" (12), "+7", ".5", "5.", "1e3", "1e" (1), "1,5" (1), "0x10" (0).
/// No number, so 0: "", "abc", ".", "nan", "inf". A number too small for a double is 0.
LenientNumber read_leniently(std::string_view text);

/// What a strict reading found.
struct StrictNumber {
    enum class Verdict { number, not_a_number, beyond_range };
    Verdict verdict = Verdict::not_a_number;
    double value = 0;  ///< meaningful for Verdict::number alone
};

/// Strict reading: the whole text, blanks around it apart, must be one number.
/// @param decimal_separator  the separator of the user's locale; it is read as the point is, and the point
///                           always is one. There are no thousands separators.
/// Read: "2", " -2.5 ", "+.5", "1e-3", with decimal_separator ',' also "2,5".
/// Not a number: "", "2m", "1.2.3", "1,234.5", "nan", "inf", "0x10".
StrictNumber read_strictly(std::string_view text, char decimal_separator);

}  // namespace coltre
