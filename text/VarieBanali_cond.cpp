#include "text/VarieBanali_cond.h"

#include <utility>

#include "text/characters.h"

namespace coltre {

namespace {

/// 1-based character position of a byte offset.
int position_of(std::string_view text, std::size_t byte) {
    return static_cast<int>(character_count(text.substr(0, byte))) + 1;
}

}  // namespace

int last_occurrence(std::string_view haystack, std::string_view needle) {
    if (needle.empty()) return 0;
    const std::size_t byte = haystack.rfind(needle);
    return byte == std::string_view::npos ? 0 : position_of(haystack, byte);
}

LastReplacement replace_all(std::string& text, std::string_view find, std::string_view replacement,
                            bool ignore_case) {
    if (find.empty()) return {};
    // lower_case() keeps the length of a text, so that offsets in `searched` are offsets in `text`.
    const std::string searched = ignore_case ? lower_case(text) : text;
    const std::string sought = ignore_case ? lower_case(find) : std::string(find);

    std::string replaced;
    std::size_t last_start = 0;  // bytes of `replaced` before and up to the end of the last replacement
    std::size_t last_end = 0;
    std::size_t copied = 0;
    for (std::size_t hit = searched.find(sought); hit != std::string::npos;
         hit = searched.find(sought, copied)) {
        replaced.append(text, copied, hit - copied);
        last_start = replaced.size();
        replaced += replacement;
        last_end = replaced.size();
        copied = hit + find.size();
    }
    if (copied == 0) return {};
    const LastReplacement last{position_of(replaced, last_start), position_of(replaced, last_end) - 1};
    replaced.append(text, copied);
    text = std::move(replaced);
    return last;
}

}  // namespace coltre
