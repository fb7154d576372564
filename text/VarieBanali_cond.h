#pragma once

#include <string>
#include <string_view>

// Small text operations shared by the report directives and the command-line parsers.
// Positions are 1-based and count characters; 0 means not found.
namespace coltre {

/// Position of the last occurrence of `needle`, compared exactly; 0 when there is none or it is empty.
int last_occurrence(std::string_view haystack, std::string_view needle);

/// Where replace_all made its last replacement; both 0 when it made none.
struct LastReplacement {
    int position = 0;  ///< of the first character of the last replacement
    int end = 0;       ///< of the last character of the last inserted replacement
};

/// Replaces every occurrence of `find` in place, from left to right. The search goes on behind the inserted
/// replacement, so that a replacement that contains `find` is never replaced again.
/// @param ignore_case  compare both texts in lower case
LastReplacement replace_all(std::string& text, std::string_view find, std::string_view replacement,
                            bool ignore_case);

}  // namespace coltre
