#pragma once

#include <string>

namespace coltre {

/// Today as documents print it, "21/11/2026". Where the environment sets SOURCE_DATE_EPOCH to a number of
/// seconds, that day in UTC: the same request then gives the same document.
std::string document_date();

}  // namespace coltre
