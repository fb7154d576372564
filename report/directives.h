#pragma once

#include <cstddef>
#include <string_view>

// Looking for the keywords of the directive language. All of them are ASCII.
namespace coltre {

constexpr char lower_ascii(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c;
}

/// Order of two texts without regard to the case of ASCII letters: negative, 0 or positive.
constexpr int compare_ignoring_case(std::string_view a, std::string_view b) {
    for (std::size_t i = 0; i < a.size() && i < b.size(); ++i) {
        const int order =
            static_cast<unsigned char>(lower_ascii(a[i])) - static_cast<unsigned char>(lower_ascii(b[i]));
        if (order != 0) return order;
    }
    return a.size() < b.size() ? -1 : static_cast<int>(a.size() > b.size());
}

/// Byte offset of the first occurrence of a keyword at or after `from`, in any letter case; npos if there is
/// none.
/// @param keyword  in lower case, starting with "(", such as "(fd_"
constexpr std::size_t find_directive(std::string_view directives, std::string_view keyword,
                                     std::size_t from = 0) {
    for (std::size_t start = directives.find('(', from); start != std::string_view::npos;
         start = directives.find('(', start + 1)) {
        if (compare_ignoring_case(directives.substr(start, keyword.size()), keyword) == 0) return start;
    }
    return std::string_view::npos;
}

}  // namespace coltre
