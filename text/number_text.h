#pragma once

#include <string>

// How numbers become texts. "." is the decimal point whatever the locale; all forms start from at most
// 15 significant digits; negative zero is written as 0.
namespace coltre {

/// Plain number text: no zero before the point, no point when whole, no blank in place of the sign.
/// 0.5 -> ".5", 3 -> "3", -0.25 -> "-.25", 1.5e-7 -> "1.5E-07", 2e20 -> "2E+20". The exponent form is used
/// below 0.0001 and from 1E+15 on.
/// @param value  finite
std::string plain_number_text(double value);

/// Display form of labels and of the numbers that the reports print without a directive: a blank in place
/// of the sign, zero before the point. 0.576 -> " 0.576", 350 -> " 350", -2 -> "-2".
/// @param value  finite
std::string display_number_text(double value);

/// The shortest text that reads back to the same double: 0.1 -> "0.1", 239 -> "239", 1e22 -> "1e+22".
/// @param value  finite
std::string shortest_number_text(double value);

/// The value with exactly `decimals` decimals, an exact tie going to the even neighbour: 1.2 with 4 ->
/// "1.2000".
/// @param value     finite
/// @param decimals  0 to 99
std::string fixed_number_text(double value, int decimals);

/// The value rounded to `decimals` decimals; an exact tie goes to the even neighbour.
/// @param value     finite
/// @param decimals  0 to 99
double round_half_even(double value, int decimals);

/// The value rounded to n significant digits, half away from zero, from its 15-digit decimal text.
/// 1234.5 with n = 3 -> 1230. With n above 15 the 15 digits stay.
/// @param value  finite
/// @param n      at least 1
/// @return infinite where the rounding leaves the range of a double
double round_significant(double value, int n);

/// Display picture of optional digits, a point and `decimals` optional digits ("##.###"): rounds half away
/// from zero, drops zeros at the end, keeps the point, writes no zero before it. 1234.5678 with 3 decimals ->
/// "1234.568", 2 with 3 decimals -> "2.".
/// @param value  finite
std::string fixed_picture(double value, int decimals);

/// Display picture of optional digits without a point: the value rounded half away from zero. 12.5 -> "13",
/// 0.4 -> "".
/// @param value  finite
std::string whole_picture(double value);

/// Exponent picture: a point, up to n digits, "E", "-" for a negative exponent, the exponent. The mantissa
/// lies in [0.1, 1). 123456789 with n = 5 -> ".12346E9", 1.5e-7 with n = 2 -> ".15E-6"; 0 -> ".E0".
/// @param value  finite
/// @param n      at least 1
std::string exponent_picture(double value, int n);

}  // namespace coltre
