#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "calculate/calculations.h"
#include "document/illustrated_report.h"
#include "engine/program_cells.h"
#include "platform/failure.h"

// What is asked of the command: one calculation, from its options or from a line of a batch.
namespace coltre {

/// What a batch may give for a key. An option of the command is always a text, but for a flag, which has no
/// value.
enum class KeyType { text, number_or_text, flag };

/// A value that a request may hold, and how users write it.
struct Key {
    std::string_view name;         ///< long option without its dashes, and key of a batch request
    std::string_view placeholder;  ///< what stands for its value in the help
    std::string_view meaning;      ///< Italian
    std::string_view otherwise;    ///< what counts where it is not given; empty if nothing is to be said
    KeyType type;
};

/// The keys that every calculation takes.
namespace keys {
inline constexpr Key provincia{"provincia", "P", "provincia; determina la zona", "", KeyType::text};
inline constexpr Key comune{"comune", "C", "comune; determina l'altitudine, letta da altitudini.txt", "",
                            KeyType::text};
inline constexpr Key zona{
    "zona", "0..3", "zona: 0 I Alpina, 1 I Mediterranea, 2 II, 3 III; prevale su quella della provincia", "",
    KeyType::number_or_text};
inline constexpr Key altitudine{"altitudine", "M", "altitudine [m]; prevale su quella del comune", "",
                                KeyType::number_or_text};
inline constexpr Key periodo_ritorno{"periodo-ritorno", "TR", "periodo di ritorno [anni], maggiore di 1",
                                     "coefficiente 1.0", KeyType::number_or_text};
inline constexpr Key ce{"ce", "CE", "coefficiente di esposizione", "1.0", KeyType::number_or_text};
inline constexpr Key ct{"ct", "CT", "coefficiente termico", "1.0", KeyType::number_or_text};
inline constexpr Key unita{
    "unita", "U", R"(unità della relazione: "kN , m", "Kgf , m" o "kgf , cm", scritta esattamente così)",
    R"("kN , m")", KeyType::text};
inline constexpr Key lavoro{"lavoro", "NOME", "nome del lavoro nella relazione", "", KeyType::text};
inline constexpr Key relazione{"relazione", "DIR",
                               "scrive la relazione, coltre.txt o coltrecasipart.txt, in questa cartella", "",
                               KeyType::text};
inline constexpr Key altitudini{"altitudini", "DIR", "cartella di altitudini.txt", "quella del programma",
                                KeyType::text};
inline constexpr Key passaggi{
    "passaggi", "", "aggiunge i passaggi: ogni formula con i simboli, con i numeri e con il suo valore", "",
    KeyType::flag};
inline constexpr Key illustrata{"illustrata", "FILE",
                                "scrive la relazione illustrata, in HTML, in questo file", "", KeyType::text};
inline constexpr Key impaginazione{"impaginazione", "I",
                                   "della relazione illustrata: completa, sintetica o passaggi", "completa",
                                   KeyType::text};
inline constexpr Key committente{"committente", "NOME", "committente, nella relazione illustrata", "",
                                 KeyType::text};
inline constexpr Key ubicazione{"ubicazione", "LUOGO", "ubicazione dell'opera, nella relazione illustrata",
                                "comune e provincia", KeyType::text};
inline constexpr Key progettista{"progettista", "NOME", "progettista, nella relazione illustrata", "",
                                 KeyType::text};
inline constexpr Key elaborato{"elaborato", "SIGLA", "sigla dell'elaborato, nella relazione illustrata", "",
                               KeyType::text};
inline constexpr Key revisione{"revisione", "R", "revisione dell'elaborato, nella relazione illustrata", "",
                               KeyType::text};
inline constexpr Key data{"data", "DATA", "data della relazione illustrata", "oggi", KeyType::text};
inline constexpr Key sovrascrivi{
    "sovrascrivi", "", "la relazione illustrata sostituisce un file che esiste già; senza, è un errore", "",
    KeyType::flag};
/// Those that play no part without an illustrated report.
inline constexpr std::array of_illustrated{impaginazione, committente, ubicazione, progettista,
                                           elaborato,     revisione,   data,       sovrascrivi};
}  // namespace keys

/// In the order of the help.
std::span<const Key> common_keys();

/// The key of an entry of a calculation.
Key key_of(const Entry& entry);

/// The key of this name, of whatever calculation; nothing if there is none.
std::optional<Key> find_key(std::string_view name);

bool takes(Kind kind, std::string_view key);

/// The text between the quotation marks of the command's messages.
std::string in_quotes(std::string_view text);

/// A request: texts exactly as given, a number as it stands in the request.
class Request {
  public:
    std::optional<Kind> kind;

    /// The text given for the key; null if there is none.
    [[nodiscard]] const std::string* value(std::string_view key) const {
        return (m_marks & mark(key)) == 0 ? nullptr : find(key);
    }
    [[nodiscard]] const std::string* value(const Key& key) const { return value(key.name); }
    /// Whether the flag is given and true.
    [[nodiscard]] bool flag(const Key& key) const;
    [[nodiscard]] std::string value_or(const Key& key, std::string_view otherwise) const;

    /// @param key  one that find_key() or common_keys() gave; a value that it has already is replaced
    void set(const Key& key, std::string text);

    /// All that was given, in its order.
    [[nodiscard]] std::span<const std::pair<std::string_view, std::string>> values() const {
        return m_values;
    }

  private:
    /// A bit by length and first letter: few names share it.
    static std::uint64_t mark(std::string_view key) {
        return std::uint64_t{1} << ((5 * key.size() + static_cast<unsigned char>(key.front())) % 64);
    }
    [[nodiscard]] const std::string* find(std::string_view key) const;

    std::vector<std::pair<std::string_view, std::string>> m_values;  // by the names of keys
    std::uint64_t m_marks = 0;  // of those names: most that are looked for are not there
};

/// The texts of the calculation's entries in the order of its row; empty where none was given.
std::vector<std::string> entry_texts(const Request& request);

/// The zone of a text such as "2"; nothing for anything but a whole number from 0 to 3.
std::optional<SnowZone> zone_of(std::string_view text);

/// The layout of the illustrated report of this name; nothing if there is none.
std::optional<Layout> layout_of(std::string_view text);

/// What is wrong with a request, in Italian: a key of another calculation, a missing one, no whole site, a
/// zone outside 0 to 3, an unknown unit system. Looks at no file.
Failure validation_error(const Request& request);

/// What a calculation takes from entries that it cannot wholly understand: "1,5" is 1. In Italian, one text
/// an entry.
/// @param request  without a validation error
std::vector<std::string> partly_understood(const Request& request);

/// The coefficients CE and Ct that lie outside of 0.5 to 1.5, if they count in the calculation: perhaps a
/// slip. In Italian, one text a coefficient.
std::vector<std::string> unusual_coefficients(const Request& request);

}  // namespace coltre
