#include "calculate/calculations.h"

#include <algorithm>
#include <array>

namespace coltre {

namespace {

using namespace results;
using enum Reading;

// clang-format off

// {symbol, key, control, meaning, unit, reading, number}
constexpr Entry one_pitch_entries[] = {
    {"alfa", "alfa", "inputalfa", "inclinazione della falda [gradi]", "°", lenient, &Entries::alfa},
};
constexpr Entry two_pitches_entries[] = {
    {"alfa1", "alfa1", "inputalfa1", "inclinazione della prima falda [gradi]", "°", lenient, &Entries::alfa1},
    {"alfa2", "alfa2", "inputalfa2", "inclinazione della seconda falda [gradi]", "°", lenient, &Entries::alfa2},
};
constexpr Entry several_pitches_entries[] = {
    {"alfa1", "alfa1", "inputalfa3", "inclinazione della prima falda [gradi]", "°", lenient, &Entries::alfa1},
    {"alfa2", "alfa2", "inputalfa4", "inclinazione della seconda falda [gradi]", "°", lenient, &Entries::alfa2},
};
constexpr Entry cylindrical_entries[] = {
    {"L", "larghezza", "Lcopcil", "larghezza della copertura [m]", "m", lenient, &Entries::L},
    {"H", "altezza", "hcopcil", "altezza della copertura [m]", "m", lenient, &Entries::H},
};
constexpr Entry level_change_entries[] = {
    {"b1", "b1", "b1input", "larghezza della copertura a quota superiore [m]", "m", strict, &Entries::b1},
    {"b2", "b2", "b2input", "larghezza della copertura a quota inferiore [m]", "m", strict, &Entries::b2},
    {"h", "h", "h2input", "dislivello tra le due coperture [m]", "m", strict, &Entries::h},
    {"alfa", "alfa", "deltainput", "inclinazione della falda [gradi]", "°", strict, &Entries::alfa},
};
constexpr Entry wall_entries[] = {
    {"h", "h", "h3input", "altezza della parete [m]", "m", strict, &Entries::h},
};
constexpr Entry snow_guard_entries[] = {
    {"qs", "qs", "qsinput", "carico neve sulla copertura [kN/m²]", "kN/m²", lenient, &Entries::qs},
    {"b", "b", "biinput", "distanza in piano dall'ostacolo al colmo [m]", "m", lenient, &Entries::b},
    {"alfa", "alfa", "angoloinput", "inclinazione della falda [gradi]", "°", lenient, &Entries::alfa},
};

constexpr ResultPlace one_pitch_places[] = {
    {"carico_1", &qs_1},
    {"spor_1", &qe_1},
};
// Three arrangements in pairs, side 1 and side 2: both full, side 1 halved, side 2 halved.
constexpr ResultPlace two_pitches_places[] = {
    {"carico_2", &qs_2a}, {"carico_3", &qs_2c},
    {"carico_4", &qs_2b}, {"carico_5", &qs_2c},
    {"carico_6", &qs_2a}, {"carico_7", &qs_2d},
    {"spor_2", &qe_2a}, {"spor_3", &qe_2b}, {"spor_4", &qe_2c}, {"spor_5", &qe_2d},
};
// Side 1, valley, side 2. No overhang: spor_6 and spor_7 are never written.
constexpr ResultPlace several_pitches_places[] = {
    {"carico_8", &qs_3a},
    {"carico_9", &qs_3c},
    {"carico_10", &qs_3b},
};
// L1output and L2output are refreshed as soon as L1 is known, and written otherwise.
constexpr ResultPlace cylindrical_places[] = {
    {"carico_11", &qs_4a}, {"carico_12", &qs_4b}, {"carico_13", &qs_4c},
    {"spor_8", &qe_4a}, {"spor_9", &qe_4b}, {"spor_10", &qe_4c},
};
constexpr ResultPlace level_change_places[] = {
    {"carico_14", &level_qs2},
    {"carico_15", &level_qs1},
    {"lsoutput", &level_ls},
};
constexpr ResultPlace wall_places[] = {
    {"carico_16", &wall_qs1},
    {"carico_17", &wall_qs2},
    {"ls2outputA", &wall_ls}, {"ls2outputB", &wall_ls},
};
constexpr ResultPlace snow_guard_places[] = {
    {"Fsoutput", &Fs},
};

constexpr std::string_view level_change_quotation =
    "<In corrisponenza di bruschi cambiamenti di quota delle coperture si considererà la distribuzione di carico più "
    "gravosa tra quelle indicate in assenza di discontinuità e quella qui riportata> (Circ. 4 luglio 96 - C.6.4)";
constexpr std::string_view snow_guard_quotation =
    "<La forza esercitata da una massa di neve contro una protezione viene calcolata nell'ipotesi che il coefficiente "
    "di attrito tra neve e manto sia nullo. La forza va considerata nella direzione dello slittamento per unità di "
    "lunghezza dell' ostacolo.> (Circ. 4 luglio 96 - C.6.6)";

constexpr std::string_view roofs_heading = "la-copertura";

// {kind, name, meaning, window, page, entries, places, sketch, picture, needs_ground_load, example, manual_heading, quotation}
constexpr std::array<Description, 7> table{{
    {Kind::one_pitch, "una-falda", "copertura ad una falda", Window::main, 0, one_pitch_entries, one_pitch_places,
     "sketch_1", "copertura-una-falda", true, "--provincia Torino --comune Torino --alfa 15 --relazione .", roofs_heading},
    {Kind::two_pitches, "due-falde", "copertura a due falde", Window::main, 1, two_pitches_entries, two_pitches_places,
     "sketch_2", "copertura-due-falde", true, "--provincia Cuneo --comune Cuneo --alfa1 25 --alfa2 40", roofs_heading},
    {Kind::several_pitches, "piu-falde", "copertura a più falde, condizione aggiuntiva", Window::main, 2,
     several_pitches_entries, several_pitches_places,
     "sketch_3", "copertura-piu-falde", true, "--zona 2 --altitudine 350 --alfa1 20 --alfa2 40", roofs_heading},
    {Kind::cylindrical, "cilindrica", "copertura cilindrica", Window::main, 3, cylindrical_entries, cylindrical_places,
     "sketch_4", "copertura-cilindrica", true, "--zona 1 --altitudine 120 --larghezza 20 --altezza 4 --ce 0.9", roofs_heading},
    {Kind::level_change, "discontinuita", "coperture con discontinuità di quota", Window::special_cases, 0,
     level_change_entries, level_change_places,
     "sketch_5", "discontinuita", true, "--zona 0 --altitudine 600 --b1 10 --b2 8 --h 2.5 --alfa 10",
     "coperture-con-discontinuità-di-quota", level_change_quotation},
    {Kind::wall, "parete", "accumulo contro una parete verticale", Window::special_cases, 1, wall_entries, wall_places,
     "sketch_6", "parete", true, "--zona 0 --altitudine 600 --h 2.30 --unita \"Kgf , m\"", "pareti-verticali"},
    {Kind::snow_guard, "ostacolo", "forza su paraneve e ostacoli", Window::special_cases, 2,
     snow_guard_entries, snow_guard_places,
     "sketch_7", "ostacolo", false, "--zona 3 --altitudine 40 --qs 1.28 --b 5 --alfa 10",
     "ostacoli-sulle-coperture", snow_guard_quotation},
}};

// clang-format on

}  // namespace

std::span<const Description> calculations() {
    return table;
}

const Description& describe(Kind kind) {
    return *std::ranges::find(table, kind, &Description::kind);
}

Kind kind_of(Window window, int page) {
    return std::ranges::find_if(
               table, [&](const Description& row) { return row.window == window && row.page == page; })
        ->kind;
}

std::optional<Kind> kind_of(std::string_view name) {
    const auto row = std::ranges::find(table, name, &Description::name);
    if (row == table.end()) return std::nullopt;
    return row->kind;
}

}  // namespace coltre
