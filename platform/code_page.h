#pragma once

#include <string>
#include <string_view>

// The 8-bit code page of the program's files: Windows-1252.
namespace coltre {

/// UTF-8 to Windows-1252. A character outside the code page, and a byte that is no UTF-8, becomes "?".
std::string to_code_page(std::string_view utf8);

/// Windows-1252 to UTF-8. The five bytes without a character become the control characters of the same
/// number, and to_code_page() turns those back, so that any bytes survive a round trip.
std::string from_code_page(std::string_view bytes);

}  // namespace coltre
