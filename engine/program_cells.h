#pragma once

#include <cstdint>
#include <optional>

namespace coltre {

/// Climatic zone of a site as the program keeps it: 0 = Zona I Alpina, 1 = Zona I Mediterranea, 2 = Zona II,
/// 3 = Zona III.
using SnowZone = std::int16_t;

/// Unit system of the reports: 1 = kN and m, 2 = kgf and m, 3 = kgf and cm; 0 before any window has set it.
using UnitSystem = std::int16_t;

/// The program-wide cells with their values at program start. One set belongs to a run of the program and is
/// handed by reference; its windows share it. Calculations leave their results here; nothing is ever cleared.
/// Loads per area in kN/m2, loads per length in kN/m, lengths in m.
struct ProgramCells {
    SnowZone zone = 0;
    double return_period = 50;  ///< Tr, years, as last typed
    /// Deliberate: 1 until a return period is confirmed, though 50 years give 0.806.
    double return_period_factor = 1;
    std::optional<double> confirmed_return_period;  ///< years, that the factor belongs to
    double qsk = 0;            ///< ground load after all factors; the special cases write theirs here too
    double working_value = 0;  ///< typed in `Form2`; nothing needs it so far
    UnitSystem unit_system = 0;

    // Shape coefficients. The wall drift shares mu2 with the roofs: deliberate.
    double mu1 = 0, mu2 = 0, mu3 = 0;

    // One pitch.
    double qs_1 = 0, qe_1 = 0;
    // Two pitches: a, b side 1 full and halved; c, d side 2 full and halved.
    double qs_2a = 0, qs_2b = 0, qs_2c = 0, qs_2d = 0;
    double qe_2a = 0, qe_2b = 0, qe_2c = 0, qe_2d = 0;
    // Several pitches: side 1, side 2, valley.
    double qs_3a = 0, qs_3b = 0, qs_3c = 0;
    // Cylindrical: widths of the loaded zone, then mu1, mu2 = 0.5 mu3, mu3.
    double L1 = 0, L2 = 0;
    double qs_4a = 0, qs_4b = 0, qs_4c = 0;
    double qe_4a = 0, qe_4b = 0, qe_4c = 0;

    // Level change.
    double level_mu2 = 0, level_qs1 = 0, level_qs2 = 0, level_ls = 0;
    // Wall; its mu2 is the shared cell above.
    double wall_qs1 = 0, wall_qs2 = 0, wall_ls = 0;
    // Snow guard.
    double Fs = 0;
};

}  // namespace coltre
