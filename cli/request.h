#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "engine/program_cells.h"

// What is asked of the command: one calculation, from its options or from a line of a batch.
namespace coltre::cli {

/// The options of a calculation.
enum class Key {
    provincia,
    comune,
    zona,
    altitudine,
    periodo_ritorno,
    ce,
    ct,
    unita,
    lavoro,
    relazione,
    altitudini,
    alfa,
    alfa1,
    alfa2,
    larghezza,
    altezza,
    b1,
    b2,
    h,
    qs,
    b,
};
inline constexpr std::size_t key_count = static_cast<std::size_t>(Key::b) + 1;

/// How users write an option.
struct KeyInfo {
    std::string_view name;         ///< long option without its dashes, and key of a batch request
    std::string_view placeholder;  ///< what stands for its value in the help
    std::string_view meaning;      ///< Italian
    bool is_number;                ///< a batch may give it as a number or as a text; others as a text only
};

const KeyInfo& info(Key key);

/// The key of this name; nothing if there is none.
std::optional<Key> key_of(std::string_view name);

/// The text between the quotation marks of the command's messages.
std::string in_quotes(std::string_view text);

/// The calculations: the roof families, then the special cases.
enum class Kind { una_falda, due_falde, piu_falde, cilindrica, discontinuita, parete, ostacolo };

struct KindInfo {
    Kind kind;
    std::string_view name;         ///< subcommand, and "calcolo" of a batch request
    std::string_view meaning;      ///< Italian
    std::span<const Key> entries;  ///< its own options, all of them required
    std::string_view example;      ///< options of an example
};

std::span<const KindInfo> kinds();
const KindInfo& info(Kind kind);
std::optional<Kind> kind_of(std::string_view name);

/// Options that every calculation takes.
std::span<const Key> common_keys();
bool takes(Kind kind, Key key);

/// Whether the calculation reads this number leniently, so that a text may be understood in part alone. The
/// entries of a level change and of a wall are read strictly, and so is the zone.
bool reads_leniently(Kind kind, Key key);

/// A request: texts exactly as given, a number as it stands in the request.
struct Request {
    std::optional<Kind> kind;
    std::array<std::optional<std::string>, key_count> values;

    [[nodiscard]] const std::optional<std::string>& value(Key key) const {
        return values[static_cast<std::size_t>(key)];
    }
    std::optional<std::string>& value(Key key) { return values[static_cast<std::size_t>(key)]; }
    [[nodiscard]] std::string value_or(Key key, std::string_view otherwise) const {
        return value(key).value_or(std::string(otherwise));
    }
};

/// The zone of a text such as "2"; nothing for anything but a whole number from 0 to 3.
std::optional<SnowZone> zone_of(std::string_view text);

/// What is wrong with a request, in Italian: a key of another calculation, a missing one, no whole site, a
/// zone outside 0 to 3, an unknown unit system. Empty if nothing is. Looks at no file.
std::string find_mistake(const Request& request);

}  // namespace coltre::cli
