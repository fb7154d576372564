#include "cli/request.h"

#include <algorithm>
#include <cmath>

#include "report/unit_systems.h"
#include "text/number_reading.h"

namespace coltre::cli {

namespace {

// In the order of Key.
constexpr std::array<KeyInfo, key_count> keys{{
    {"provincia", "P", "provincia; ne viene la zona", false},
    {"comune", "C", "comune; ne viene l'altitudine, da altitudini.txt", false},
    {"zona", "0..3", "zona: 0 I Alpina, 1 I Mediterranea, 2 II, 3 III; vince su quella della provincia",
     true},
    {"altitudine", "M", "altitudine [m]; vince su quella del comune", true},
    {"periodo-ritorno", "TR", "periodo di ritorno [anni]; senza, il coefficiente resta 1.0", true},
    {"ce", "CE", "coefficiente di esposizione (1.0)", true},
    {"ct", "CT", "coefficiente termico (1.0)", true},
    {"unita", "U", "unità della relazione: \"kN , m\", \"Kgf , m\" o \"kgf , cm\" (kN , m)", false},
    {"lavoro", "NOME", "nome del lavoro nella relazione", false},
    {"relazione", "DIR", "scrive la relazione in questa cartella", false},
    {"altitudini", "DIR", "cartella di altitudini.txt (quella del programma)", false},
    {"alfa", "A", "inclinazione della falda [gradi]", true},
    {"alfa1", "A", "inclinazione della prima falda [gradi]", true},
    {"alfa2", "A", "inclinazione della seconda falda [gradi]", true},
    {"larghezza", "L", "larghezza della copertura [m]", true},
    {"altezza", "H", "altezza della copertura [m]", true},
    {"b1", "B", "larghezza della copertura a quota superiore [m]", true},
    {"b2", "B", "larghezza della copertura a quota inferiore [m]", true},
    {"h", "H", "dislivello, o altezza della parete [m]", true},
    {"qs", "Q", "carico neve sulla copertura [kN/m²]", true},
    {"b", "B", "distanza in piano dall'ostacolo al colmo [m]", true},
}};

constexpr std::array common{Key::provincia,       Key::comune,    Key::zona,      Key::altitudine,
                            Key::periodo_ritorno, Key::ce,        Key::ct,        Key::unita,
                            Key::lavoro,          Key::relazione, Key::altitudini};

constexpr std::array one_pitch{Key::alfa};
constexpr std::array two_pitches{Key::alfa1, Key::alfa2};
constexpr std::array vault{Key::larghezza, Key::altezza};
constexpr std::array level_change{Key::b1, Key::b2, Key::h, Key::alfa};
constexpr std::array wall{Key::h};
constexpr std::array snow_guard{Key::qs, Key::b, Key::alfa};

// In the order of Kind.
constexpr std::array<KindInfo, 7> all_kinds{{
    {Kind::una_falda, "una-falda", "copertura ad una falda", one_pitch,
     "--provincia Torino --comune Torino --alfa 15 --relazione ."},
    {Kind::due_falde, "due-falde", "copertura a due falde", two_pitches,
     "--provincia Cuneo --comune Cuneo --alfa1 25 --alfa2 40"},
    {Kind::piu_falde, "piu-falde", "copertura a più falde, condizione aggiuntiva", two_pitches,
     "--zona 2 --altitudine 350 --alfa1 20 --alfa2 40"},
    {Kind::cilindrica, "cilindrica", "copertura cilindrica", vault,
     "--zona 1 --altitudine 120 --larghezza 20 --altezza 4 --ce 0.9"},
    {Kind::discontinuita, "discontinuita", "coperture con discontinuità di quota", level_change,
     "--zona 0 --altitudine 600 --b1 10 --b2 8 --h 2.5 --alfa 10"},
    {Kind::parete, "parete", "accumulo contro una parete verticale", wall,
     "--zona 0 --altitudine 600 --h 2.30 --unita \"Kgf , m\""},
    {Kind::ostacolo, "ostacolo", "forza su paraneve e ostacoli", snow_guard,
     "--zona 3 --altitudine 40 --qs 1.28 --b 5 --alfa 10"},
}};

std::string find_missing(const Request& request) {
    for (const Key key : info(*request.kind).entries) {
        if (!request.value(key)) return "manca " + in_quotes(info(key).name);
    }
    const bool province = request.value(Key::provincia).has_value();
    const bool municipality = request.value(Key::comune).has_value();
    if (province != municipality) {
        return "provincia e comune vanno dati insieme: manca " + in_quotes(province ? "comune" : "provincia");
    }
    if (province) return {};
    const bool zone = request.value(Key::zona).has_value();
    const bool altitude = request.value(Key::altitudine).has_value();
    if (!zone && !altitude) return "manca il sito: provincia e comune, oppure zona e altitudine";
    if (!zone) return "manca " + in_quotes("zona");
    if (!altitude) return "manca " + in_quotes("altitudine");
    return {};
}

}  // namespace

std::string in_quotes(std::string_view text) {
    return "«" + std::string(text) + "»";
}

const KeyInfo& info(Key key) {
    return keys[static_cast<std::size_t>(key)];
}

std::optional<Key> key_of(std::string_view name) {
    const auto found = std::ranges::find(keys, name, &KeyInfo::name);
    if (found == keys.end()) return std::nullopt;
    return static_cast<Key>(found - keys.begin());
}

std::span<const KindInfo> kinds() {
    return all_kinds;
}

const KindInfo& info(Kind kind) {
    return all_kinds[static_cast<std::size_t>(kind)];
}

std::optional<Kind> kind_of(std::string_view name) {
    const auto found = std::ranges::find(all_kinds, name, &KindInfo::name);
    if (found == all_kinds.end()) return std::nullopt;
    return found->kind;
}

std::span<const Key> common_keys() {
    return common;
}

bool takes(Kind kind, Key key) {
    const auto entries = info(kind).entries;
    return std::ranges::find(common, key) != common.end() || std::ranges::find(entries, key) != entries.end();
}

bool reads_leniently(Kind kind, Key key) {
    if (!info(key).is_number || key == Key::zona) return false;
    if (std::ranges::find(common, key) != common.end()) return true;
    return kind != Kind::discontinuita && kind != Kind::parete;
}

std::optional<SnowZone> zone_of(std::string_view text) {
    const StrictNumber number = read_strictly(text, '.');
    if (number.verdict != StrictNumber::Verdict::number) return std::nullopt;
    if (number.value < 0 || number.value > 3 || number.value != std::floor(number.value)) return std::nullopt;
    return static_cast<SnowZone>(number.value);
}

std::string find_mistake(const Request& request) {
    if (!request.kind) return "manca " + in_quotes("calcolo");
    for (std::size_t i = 0; i < key_count; ++i) {
        const auto key = static_cast<Key>(i);
        if (request.value(key) && !takes(*request.kind, key)) {
            return in_quotes(info(key).name) + " non è del calcolo " + in_quotes(info(*request.kind).name);
        }
    }
    if (std::string missing = find_missing(request); !missing.empty()) return missing;

    if (const auto& zone = request.value(Key::zona)) {
        if (!zone_of(*zone)) return "la zona deve essere 0, 1, 2 o 3: " + in_quotes(*zone);
    }
    if (const auto& unit = request.value(Key::unita); unit && !unit_system_of(*unit)) {
        return "l'unità deve essere \"kN , m\", \"Kgf , m\" o \"kgf , cm\": " + in_quotes(*unit);
    }
    for (const Key key : {Key::relazione, Key::altitudini}) {
        const auto& directory = request.value(key);
        if (!directory) continue;
        if (directory->empty()) return "la cartella di " + in_quotes(info(key).name) + " è vuota";
        if (directory->find('\0') != std::string::npos) {
            return "la cartella di " + in_quotes(info(key).name) + " contiene un carattere nullo";
        }
    }
    return {};
}

}  // namespace coltre::cli
