#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

// Names of places as people type them.
namespace coltre {

/// The name without what people type in different ways: in lower case, without accents, apostrophes,
/// backquotes and blanks. "Agliè", "Aglie'" and "AGLIE" all give "aglie".
std::string fold_name(std::string_view name);

/// The names of the list that come nearest to what was typed, the nearest first: names that start as it does,
/// then those that fewest changed letters turn into it, a third of the letters at most: what is like no name
/// has no near ones. Letters are compared folded.
/// @param most  how many names at most
std::vector<std::string> nearest_names(std::string_view typed, std::span<const std::string> names,
                                       std::size_t most);

}  // namespace coltre
