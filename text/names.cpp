#include "text/names.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <numeric>
#include <utility>

#include "text/characters.h"

namespace coltre {

namespace {

struct Accented {
    std::string_view letter;
    std::string_view plain;
};

// Lower-case accented letters of the code page, and the apostrophes that stand for an accent.
constexpr std::array<Accented, 32> accented_letters{{
    {"à", "a"}, {"á", "a"}, {"â", "a"}, {"ã", "a"}, {"ä", "a"}, {"å", "a"},  {"æ", "ae"}, {"ç", "c"},
    {"è", "e"}, {"é", "e"}, {"ê", "e"}, {"ë", "e"}, {"ì", "i"}, {"í", "i"},  {"î", "i"},  {"ï", "i"},
    {"ñ", "n"}, {"ò", "o"}, {"ó", "o"}, {"ô", "o"}, {"õ", "o"}, {"ö", "o"},  {"ø", "o"},  {"ù", "u"},
    {"ú", "u"}, {"û", "u"}, {"ü", "u"}, {"ý", "y"}, {"ÿ", "y"}, {"ß", "ss"}, {"’", ""},   {"‘", ""},
}};

/// Number of letters to insert, drop or change to turn one text into the other (Levenshtein).
std::size_t edit_distance(std::string_view a, std::string_view b) {
    std::vector<std::size_t> row(b.size() + 1);
    std::iota(row.begin(), row.end(), std::size_t{0});
    for (std::size_t i = 0; i < a.size(); ++i) {
        std::size_t diagonal = row[0];
        row[0] = i + 1;
        for (std::size_t j = 0; j < b.size(); ++j) {
            const std::size_t change = diagonal + (a[i] == b[j] ? 0 : 1);
            diagonal = row[j + 1];
            row[j + 1] = std::min({row[j] + 1, row[j + 1] + 1, change});
        }
    }
    return row.back();
}

}  // namespace

std::string fold_name(std::string_view name) {
    const std::string lower = lower_case(name);
    std::string folded;
    folded.reserve(lower.size());
    for (std::string_view rest = lower; !rest.empty();) {
        const std::string_view letter = first_character(rest);
        rest.remove_prefix(letter.size());
        if (letter == " " || letter == "'" || letter == "`") continue;
        if (letter.size() == 1) {
            folded += letter;
            continue;
        }
        const auto accented = std::ranges::find(accented_letters, letter, &Accented::letter);
        folded += accented != accented_letters.end() ? accented->plain : letter;
    }
    return folded;
}

std::vector<std::string> nearest_names(std::string_view typed, std::span<const std::string> names,
                                       std::size_t most) {
    // Longer than any name of a place: more letters would only cost time.
    constexpr std::size_t longest = 64;
    const std::string sought = fold_name(typed.substr(0, bytes_of_characters(typed, longest)));
    if (sought.empty()) return {};
    const std::size_t most_changes = (sought.size() + 1) / 3;

    std::vector<std::pair<std::size_t, std::size_t>> ranked;  // distance, place in the list
    for (std::size_t i = 0; i < names.size(); ++i) {
        const std::string folded = fold_name(names[i]);
        const bool begins_so = folded.starts_with(sought);
        const auto [shorter, longer] = std::minmax({folded.size(), sought.size()});
        if (!begins_so && longer - shorter > most_changes) continue;  // so many letters at least are changed
        const std::size_t distance = begins_so ? 0 : edit_distance(sought, folded);
        if (distance <= most_changes) ranked.emplace_back(distance, i);
    }
    std::ranges::sort(ranked);

    std::vector<std::string> nearest;
    for (std::size_t i = 0; i < ranked.size() && nearest.size() < most; ++i) {
        const std::string& name = names[ranked[i].second];  // a table may hold it twice
        if (std::ranges::find(nearest, name) == nearest.end()) nearest.push_back(name);
    }
    return nearest;
}

}  // namespace coltre
