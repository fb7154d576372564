#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "fuzz/input.h"
#include "fuzz/require.h"
#include "startup/VarieGestCond.h"
#include "text/characters.h"

// Input: key, separator, extra separators, then the list of entries, which also is read as a command line.

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace coltre;
    using namespace coltre::fuzz;
    Input input(data, size);
    const std::string_view key = input.line();
    const std::string_view separator = input.line();
    const std::string_view extra_separators = input.line();
    const std::string_view list = input.rest();

    const auto value = find_entry(list, key, separator, extra_separators);
    if (value) {
        require(value->find('|') == std::string::npos, "a value ends where its entry ends");
        require(list.find(*value) != std::string_view::npos, "a value is as written");
    }

    const std::string root = parse_suite_root(list);
    const auto diroot = find_entry(list, "diroot", "=", "");
    if (!root.empty()) {
        require(diroot.has_value(), "the lenient reader finds what the strict one finds");
        // Deliberate: with blanks in front the strict reader's positions are shifted, and it passes over a
        // first entry without a bar before it, which the lenient one reads.
        if (!list.starts_with(' ') && !lower_case(list).starts_with("diroot="))
            require(lower_case(trim_blanks(*diroot)) == root, "both read the same, letter case apart");
    }

    const bool plain_key = !key.empty() && key == trim_blanks(key) && key.find_first_of("|=") == key.npos;
    if (plain_key && !list.empty() && list.find('|') == list.npos) {
        const std::string entry = "|" + std::string(key) + "=" + std::string(list) + "|";
        require(find_entry(entry, key, "=", "") == list, "an entry that is written is found");
    }
    return 0;
}
