#pragma once

#include <array>
#include <string_view>

#include "engine/program_cells.h"

// The result cells under the names that users see. Results are distinguished by the address of their row: the
// two drifts share their names.
namespace coltre {

/// What kind of number a result is.
struct Quantity {
    std::string_view unit;  ///< empty for a coefficient
    int decimals;           ///< that windows and tables show
};
namespace quantities {
inline constexpr Quantity coefficient{"", 4}, area_load{"kN/m²", 4}, line_load{"kN/m", 3}, length{"m", 2},
    slope{"°", 2};
inline constexpr Quantity exact_length{"m", 4};  // on the way to a result
}  // namespace quantities

/// A result cell under the name that users see.
struct ResultCell {
    std::string_view name;
    double ProgramCells::*cell;
    Quantity quantity;
    std::string_view meaning;  ///< Italian
};

/// One row a result cell, in the order in which their calculations fill them.
namespace results {
using namespace quantities;
// clang-format off
// One pitch.
inline constexpr ResultCell qs_1{"qs_1", &ProgramCells::qs_1, area_load, "carico sulla falda"};
inline constexpr ResultCell qe_1{"qe_1", &ProgramCells::qe_1, line_load, "neve sporgente in gronda"};
// Two pitches.
inline constexpr ResultCell qs_2a{"qs_2a", &ProgramCells::qs_2a, area_load, "falda 1, carica"};
inline constexpr ResultCell qs_2b{"qs_2b", &ProgramCells::qs_2b, area_load, "falda 1, dimezzata"};
inline constexpr ResultCell qe_2a{"qe_2a", &ProgramCells::qe_2a, line_load, "gronda della falda 1, carica"};
inline constexpr ResultCell qe_2b{"qe_2b", &ProgramCells::qe_2b, line_load, "gronda della falda 1, dimezzata"};
inline constexpr ResultCell qs_2c{"qs_2c", &ProgramCells::qs_2c, area_load, "falda 2, carica"};
inline constexpr ResultCell qs_2d{"qs_2d", &ProgramCells::qs_2d, area_load, "falda 2, dimezzata"};
inline constexpr ResultCell qe_2c{"qe_2c", &ProgramCells::qe_2c, line_load, "gronda della falda 2, carica"};
inline constexpr ResultCell qe_2d{"qe_2d", &ProgramCells::qe_2d, line_load, "gronda della falda 2, dimezzata"};
// Several pitches.
inline constexpr ResultCell qs_3a{"qs_3a", &ProgramCells::qs_3a, area_load, "al colmo della falda 1"};
inline constexpr ResultCell qs_3b{"qs_3b", &ProgramCells::qs_3b, area_load, "al colmo della falda 2"};
inline constexpr ResultCell qs_3c{"qs_3c", &ProgramCells::qs_3c, area_load, "nel compluvio"};
// Cylindrical.
inline constexpr ResultCell L1{"L1", &ProgramCells::L1, length, "larghezza della zona caricata"};
inline constexpr ResultCell L2{"L2", &ProgramCells::L2, length, "un quarto della zona caricata"};
inline constexpr ResultCell qs_4a{"qs_4a", &ProgramCells::qs_4a, area_load, "carico uniforme"};
inline constexpr ResultCell qs_4b{"qs_4b", &ProgramCells::qs_4b, area_load, "carico non uniforme, lato meno carico"};
inline constexpr ResultCell qs_4c{"qs_4c", &ProgramCells::qs_4c, area_load, "carico non uniforme, lato più carico"};
inline constexpr ResultCell qe_4a{"qe_4a", &ProgramCells::qe_4a, line_load, "gronda, carico uniforme"};
inline constexpr ResultCell qe_4b{"qe_4b", &ProgramCells::qe_4b, line_load, "gronda del lato meno carico"};
inline constexpr ResultCell qe_4c{"qe_4c", &ProgramCells::qe_4c, line_load, "gronda del lato più carico"};
// Level change.
inline constexpr ResultCell level_mu2{"mu2", &ProgramCells::level_mu2, coefficient, "coefficiente al gradino"};
inline constexpr ResultCell level_qs2{"qs2", &ProgramCells::level_qs2, area_load, "carico al gradino"};
inline constexpr ResultCell level_qs1{"qs1", &ProgramCells::level_qs1, area_load, "carico alla fine dell'accumulo"};
inline constexpr ResultCell level_ls{"ls", &ProgramCells::level_ls, length, "lunghezza di accumulo"};
// Wall.
inline constexpr ResultCell wall_qs1{"qs1", &ProgramCells::wall_qs1, area_load, "carico alla fine dell'accumulo"};
inline constexpr ResultCell wall_mu2{"mu2", &ProgramCells::mu2, coefficient, "coefficiente alla parete"};
inline constexpr ResultCell wall_qs2{"qs2", &ProgramCells::wall_qs2, area_load, "carico alla parete"};
inline constexpr ResultCell wall_ls{"ls", &ProgramCells::wall_ls, length, "lunghezza di accumulo"};
// Snow guard.
inline constexpr ResultCell Fs{"Fs", &ProgramCells::Fs, line_load, "forza sull'ostacolo, per unità di lunghezza"};
// clang-format on

inline constexpr std::array all{
    &qs_1,  &qe_1,      &qs_2a,     &qs_2b,     &qe_2a,    &qe_2b,    &qs_2c,    &qs_2d,    &qe_2c,   &qe_2d,
    &qs_3a, &qs_3b,     &qs_3c,     &L1,        &L2,       &qs_4a,    &qs_4b,    &qs_4c,    &qe_4a,   &qe_4b,
    &qe_4c, &level_mu2, &level_qs2, &level_qs1, &level_ls, &wall_qs1, &wall_mu2, &wall_qs2, &wall_ls, &Fs};

/// Loads of the snow overhanging the eaves.
inline constexpr std::array overhang_loads{&qe_1, &qe_2a, &qe_2b, &qe_2c, &qe_2d, &qe_4a, &qe_4b, &qe_4c};
}  // namespace results

}  // namespace coltre
