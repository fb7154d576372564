#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "engine/checked.h"
#include "engine/program_cells.h"
#include "engine/results.h"
#include "engine/trace.h"

// The seven calculations: what they take, what they give, and how they stop.
namespace coltre {

/// The calculations: four roof families and three special cases.
enum class Kind { one_pitch, two_pitches, several_pitches, cylindrical, level_change, wall, snow_guard };

/// The numbers that a calculation takes; each reads its own members.
struct Entries {
    Kind kind = Kind::one_pitch;
    double alfa = 0;   ///< slope, degrees (one pitch; level change: of the upper roof; snow guard)
    double alfa1 = 0;  ///< pitch of side 1, degrees (two and several pitches)
    double alfa2 = 0;  ///< pitch of side 2, degrees
    double L = 0;      ///< width (span) of a cylindrical roof, m
    double H = 0;      ///< rise of a cylindrical roof, m
    double b1 = 0;     ///< width of the upper roof, m (level change)
    double b2 = 0;     ///< width of the lower roof, m (level change)
    double h = 0;      ///< difference of level, or height of the wall, m
    double qs = 0;     ///< snow load on the roof, kN/m2 (snow guard)
    double b = 0;      ///< horizontal distance from the obstacle to the ridge, m (snow guard)
};

/// A result and the value that its cell took.
struct Result {
    const ResultCell* cell;
    double value;
};

/// The shape coefficient of a load case, under the label of that load case.
struct Coefficient {
    std::string_view label;
    double mu;
};

/// One load case of a roof.
struct LoadCase {
    std::string_view label;    ///< its coefficient as the report names it: "mu1", "0.5mu1(alfa1)", ...
    double mu;                 ///< shape coefficient
    double qs;                 ///< roof load, kN/m2
    std::optional<double> qe;  ///< load of the snow overhanging the eaves, kN/m; several pitches have none
};

/// How a calculation ended: all well, or the fault and the quantity whose step met it.
struct CalculationEnd {
    Fault fault = Fault::none;
    std::string_view quantity;         ///< what could not be computed, as users know it
    const ResultCell* cell = nullptr;  ///< its row; null where it is a coefficient

    [[nodiscard]] bool stopped() const { return fault != Fault::none; }
};

/// What a calculation gave, in the order of its steps; of one that stopped, what came before the stop.
struct Calculation {
    std::vector<Result> results;  ///< a cell that a later step sets again keeps its place
    std::vector<Coefficient> coefficients;
    std::vector<LoadCase> load_cases;  ///< those that are complete: the rows of the report
    CalculationEnd end;
};

/// Computes a roof's load cases, or a special case, from the qsk cell into its result cells. A fault stops it
/// at its step: cells set before keep their new value, nothing after it changes.
/// @param trace  takes the steps; null if nobody asks for them. The results are the same bits.
Calculation calculate(ProgramCells& cells, const Entries& entries, Trace* trace = nullptr);

}  // namespace coltre
