#include "requests/request.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "report/unit_systems.h"
#include "text/characters.h"
#include "text/number_reading.h"
#include "text/number_text.h"

namespace coltre {

namespace {

using namespace keys;

constexpr std::array common{provincia,  comune,        zona,        altitudine, periodo_ritorno, ce,
                            ct,         unita,         lavoro,      relazione,  altitudini,      passaggi,
                            illustrata, impaginazione, committente, ubicazione, progettista,     elaborato,
                            revisione,  data,          sovrascrivi};

std::string missing(const Key& key) {
    return "manca " + in_quotes(key.name);
}

/// What the request lacks.
Failure missing_value(const Request& request) {
    for (const Entry& entry : describe(*request.kind).entries) {
        if (request.value(entry.key) == nullptr) return missing(key_of(entry));
    }
    const bool has_province = request.value(provincia) != nullptr;
    if (has_province != (request.value(comune) != nullptr)) {
        return "provincia e comune vanno dati insieme: " + missing(has_province ? comune : provincia);
    }
    if (has_province) return {};
    const bool has_zone = request.value(zona) != nullptr;
    const bool has_altitude = request.value(altitudine) != nullptr;
    if (!has_zone && !has_altitude) return "manca il sito: provincia e comune, oppure zona e altitudine";
    if (!has_zone) return missing(zona);
    if (!has_altitude) return missing(altitudine);
    return {};
}

/// What is wrong with the illustrated report that is asked for.
Failure illustrated_report_error(const Request& request) {
    const std::string* const file = request.value(illustrata);
    if (file == nullptr) {
        const auto* const vain = std::ranges::find_if(of_illustrated, [&](const Key& key) {
            return key.type == KeyType::flag ? request.flag(key) : request.value(key) != nullptr;
        });
        if (vain == of_illustrated.end()) return std::nullopt;
        return in_quotes(vain->name) + " serve solo con " + in_quotes(illustrata.name);
    }
    if (file->empty()) return "manca il nome del file di " + in_quotes(illustrata.name);
    const std::string name = lower_case(file->substr(file->find_last_of("/\\") + 1));
    if (!name.ends_with(".html"))
        return "il file di " + in_quotes(illustrata.name) + " deve finire in .html: " + in_quotes(*file);
    if (name == ".html")
        return "il file di " + in_quotes(illustrata.name) +
               " non ha nome davanti a .html: " + in_quotes(*file);
    const std::string* const layout = request.value(impaginazione);
    if (layout != nullptr && !layout_of(*layout))
        return "l'impaginazione deve essere completa, sintetica o passaggi: " + in_quotes(*layout);
    return {};
}

/// @return nothing for a text that is a number or, read strictly, none at all
std::optional<std::string> partly_understood(std::string_view key, const std::string& text) {
    const LenientNumber number = read_leniently(text);
    if (number.wholly_understood || number.beyond_range) return std::nullopt;
    return std::string(key) + " " + in_quotes(text) + ": letto come " + shortest_number_text(number.value);
}

}  // namespace

std::span<const Key> common_keys() {
    return common;
}

Key key_of(const Entry& entry) {
    // The help has the symbol for the value, "--larghezza L"; of a longer one the first letter.
    constexpr std::string_view letters = "ABCDEFGHIJKLMNOPQRSTUVWXYZ";
    const auto number = static_cast<std::size_t>((entry.symbol.front() | 0x20) - 'a');
    return {entry.key, letters.substr(number, 1), entry.meaning, "", KeyType::number_or_text};
}

std::optional<Key> find_key(std::string_view name) {
    const auto key = std::ranges::find(common, name, &Key::name);
    if (key != common.end()) return *key;
    for (const Description& calculation : calculations()) {
        const auto entry = std::ranges::find(calculation.entries, name, &Entry::key);
        if (entry != calculation.entries.end()) return key_of(*entry);
    }
    return std::nullopt;
}

bool takes(Kind kind, std::string_view key) {
    const auto entries = describe(kind).entries;
    return std::ranges::find(entries, key, &Entry::key) != entries.end() ||
           std::ranges::find(common, key, &Key::name) != common.end();
}

std::string in_quotes(std::string_view text) {
    return "«" + std::string(text) + "»";
}

const std::string* Request::find(std::string_view key) const {
    const auto found = std::ranges::find(m_values, key, &std::pair<std::string_view, std::string>::first);
    return found == m_values.end() ? nullptr : &found->second;
}

bool Request::flag(const Key& key) const {
    const std::string* const given = value(key);
    return given != nullptr && *given == "true";
}

std::string Request::value_or(const Key& key, std::string_view otherwise) const {
    const std::string* const given = value(key);
    return given != nullptr ? *given : std::string(otherwise);
}

void Request::set(const Key& key, std::string text) {
    const auto found =
        std::ranges::find(m_values, key.name, &std::pair<std::string_view, std::string>::first);
    if (found != m_values.end()) {
        found->second = std::move(text);
    } else {
        constexpr std::size_t usual = 8;
        if (m_values.empty()) m_values.reserve(usual);
        m_values.emplace_back(key.name, std::move(text));
        m_marks |= mark(key.name);
    }
}

std::vector<std::string> entry_texts(const Request& request) {
    const auto entries = describe(*request.kind).entries;
    std::vector<std::string> texts;
    texts.reserve(entries.size());
    for (const Entry& entry : entries) {
        const std::string* const text = request.value(entry.key);
        texts.push_back(text != nullptr ? *text : std::string());
    }
    return texts;
}

std::optional<SnowZone> zone_of(std::string_view text) {
    const StrictNumber number = read_strictly(text, '.');
    if (number.verdict != StrictNumber::Verdict::number) return std::nullopt;
    if (number.value < 0 || number.value > 3 || number.value != std::floor(number.value)) return std::nullopt;
    return static_cast<SnowZone>(number.value);
}

std::optional<Layout> layout_of(std::string_view text) {
    if (text == "completa") return Layout::complete;
    if (text == "sintetica") return Layout::brief;
    if (text == "passaggi") return Layout::steps_alone;
    return std::nullopt;
}

Failure validation_error(const Request& request) {
    if (!request.kind) return "manca " + in_quotes("calcolo");
    for (const auto& [key, text] : request.values()) {
        if (!takes(*request.kind, key))
            return in_quotes(key) + " non è del calcolo " + in_quotes(describe(*request.kind).name);
    }
    if (Failure missing = missing_value(request)) return missing;

    if (const std::string* const zone = request.value(zona); zone != nullptr && !zone_of(*zone)) {
        return "la zona deve essere 0, 1, 2 o 3: " + in_quotes(*zone);
    }
    if (const std::string* const unit = request.value(unita); unit != nullptr && !unit_system_of(*unit)) {
        return "l'unità deve essere \"kN , m\", \"Kgf , m\" o \"kgf , cm\": " + in_quotes(*unit);
    }
    for (const Key& key : {relazione, altitudini}) {
        const std::string* const directory = request.value(key);
        if (directory == nullptr) continue;
        if (directory->empty()) return "per " + in_quotes(key.name) + " manca il nome della cartella";
        if (directory->find('\0') != std::string::npos) {
            return "la cartella di " + in_quotes(key.name) + " contiene un carattere nullo";
        }
    }
    return illustrated_report_error(request);
}

std::vector<std::string> partly_understood(const Request& request) {
    std::vector<std::string> texts;
    const auto read = [&](std::string_view key) {
        const std::string* const text = request.value(key);
        if (text == nullptr) return;
        if (auto reading = partly_understood(key, *text)) texts.push_back(*std::move(reading));
    };
    // The zone is read strictly, and so are the entries of a level change and of a wall.
    for (const Key& key : {altitudine, periodo_ritorno, ce, ct})
        read(key.name);
    for (const Entry& entry : describe(*request.kind).entries)
        if (entry.reading == Reading::lenient) read(entry.key);
    return texts;
}

std::vector<std::string> unusual_coefficients(const Request& request) {
    std::vector<std::string> texts;
    if (!describe(*request.kind).needs_ground_load) return texts;
    for (const Key& key : {ce, ct}) {
        const std::string* const text = request.value(key);
        if (text == nullptr) continue;
        const double value = read_leniently(*text).value;
        if (value < 0.5 || value > 1.5)
            texts.push_back(std::string(key.name) + " " + in_quotes(*text) +
                            ": fuori dell'intervallo usuale, da 0.5 a 1.5");
    }
    return texts;
}

}  // namespace coltre
