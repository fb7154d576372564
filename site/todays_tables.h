#pragma once

#include <string_view>

// The tables of today's names that are compiled in: UTF-8, commas, a header line, LF; data/README.md tells
// what they hold.
namespace coltre {

std::string_view nomi_dopo_1998_csv();
std::string_view province_oggi_csv();
std::string_view soppressi_csv();

}  // namespace coltre
