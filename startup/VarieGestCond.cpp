#include "startup/VarieGestCond.h"

#include <cstddef>

#include "text/VarieBanali_cond.h"
#include "text/characters.h"

namespace coltre {

namespace {

/// The characters from position `first` up to and without position `end`, both 1-based.
std::string_view characters_between(std::string_view text, std::size_t first, std::size_t end) {
    text.remove_prefix(bytes_of_characters(text, first - 1));
    return text.substr(0, bytes_of_characters(text, end - first));
}

}  // namespace

// Searching in lower case keeps byte offsets: lower_case() never changes the length of a text.

std::optional<std::string> find_entry(std::string_view list, std::string_view key, std::string_view separator,
                                      std::string_view extra_separators) {
    std::string wanted(trim_blanks(key));
    if (wanted.empty()) return std::nullopt;
    if (!wanted.starts_with('|')) wanted.insert(0, 1, '|');
    if (!wanted.ends_with(separator)) wanted += separator;

    std::string entries(trim_blanks(list));
    if (character_count(entries) < 4) return std::nullopt;
    while (!extra_separators.empty()) {
        const std::string_view extra = first_character(extra_separators);
        replace_all(entries, extra, "|", false);
        extra_separators.remove_prefix(extra.size());
    }
    if (!entries.starts_with('|')) entries.insert(0, 1, '|');
    if (entries.find('|', 1) == std::string::npos) entries += '|';

    const std::size_t found = lower_case(entries).find(lower_case(wanted));
    if (found == std::string::npos) return std::nullopt;
    const std::size_t start = found + wanted.size();
    const std::size_t end = entries.find('|', start);
    if (end == std::string::npos) return "";
    return entries.substr(start, end - start);
}

std::string parse_suite_root(std::string_view command_line) {
    constexpr std::string_view key = "|diroot=";
    const std::string searched = lower_case(trim_blanks(command_line));
    if (character_count(searched) <= 10) return {};
    const std::size_t found = searched.find(key);
    if (found == std::string::npos) return {};
    const std::size_t start = found + key.size();
    const std::size_t end = searched.find('|', start);
    if (end == std::string::npos) return {};

    // Deliberate: the positions were found without the blanks at the front, and count in the text as passed.
    // The launcher writes none there.
    const std::string_view before_value = std::string_view(searched).substr(0, start);
    const std::string_view before_end = std::string_view(searched).substr(0, end);
    const std::string_view root =
        characters_between(command_line, character_count(before_value) + 1, character_count(before_end) + 1);
    return lower_case(trim_blanks(root));
}

std::string set_caption(std::string_view directory, std::string_view detail) {
    std::string caption = "Coltre - ARCOVIA 15";
    if (!directory.empty()) caption.append(" - ").append(directory);
    if (caption.ends_with('\\')) caption.pop_back();
    if (!detail.empty()) caption.append(directory.empty() ? " - " : "\\").append(detail);
    return caption;
}

}  // namespace coltre
