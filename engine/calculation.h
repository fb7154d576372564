#pragma once

#include <optional>
#include <string_view>

#include "engine/checked.h"
#include "engine/program_cells.h"
#include "engine/short_list.h"

// What the calculations give, and how they stop.
namespace coltre {

/// What kind of number a result is.
struct Quantity {
    std::string_view unit;  ///< empty for a coefficient
    int decimals;           ///< that windows and tables show
};
namespace quantities {
inline constexpr Quantity coefficient{"", 4}, area_load{"kN/m²", 4}, line_load{"kN/m", 3}, length{"m", 2};
}  // namespace quantities

/// A result cell under the name that users see.
struct ResultCell {
    std::string_view name;
    double ProgramCells::*cell;
    Quantity quantity;
};

/// The result cells, in the order in which their calculations fill them.
namespace results {
using namespace quantities;
inline constexpr ResultCell qs_1{"qs_1", &ProgramCells::qs_1, area_load},
    qe_1{"qe_1", &ProgramCells::qe_1, line_load};
inline constexpr ResultCell qs_2a{"qs_2a", &ProgramCells::qs_2a, area_load},
    qs_2b{"qs_2b", &ProgramCells::qs_2b, area_load}, qe_2a{"qe_2a", &ProgramCells::qe_2a, line_load},
    qe_2b{"qe_2b", &ProgramCells::qe_2b, line_load}, qs_2c{"qs_2c", &ProgramCells::qs_2c, area_load},
    qs_2d{"qs_2d", &ProgramCells::qs_2d, area_load}, qe_2c{"qe_2c", &ProgramCells::qe_2c, line_load},
    qe_2d{"qe_2d", &ProgramCells::qe_2d, line_load};
inline constexpr ResultCell qs_3a{"qs_3a", &ProgramCells::qs_3a, area_load},
    qs_3b{"qs_3b", &ProgramCells::qs_3b, area_load}, qs_3c{"qs_3c", &ProgramCells::qs_3c, area_load};
inline constexpr ResultCell L1{"L1", &ProgramCells::L1, length}, L2{"L2", &ProgramCells::L2, length},
    qs_4a{"qs_4a", &ProgramCells::qs_4a, area_load}, qs_4b{"qs_4b", &ProgramCells::qs_4b, area_load},
    qs_4c{"qs_4c", &ProgramCells::qs_4c, area_load}, qe_4a{"qe_4a", &ProgramCells::qe_4a, line_load},
    qe_4b{"qe_4b", &ProgramCells::qe_4b, line_load}, qe_4c{"qe_4c", &ProgramCells::qe_4c, line_load};
inline constexpr ResultCell level_mu2{"mu2", &ProgramCells::level_mu2, coefficient},
    level_qs1{"qs1", &ProgramCells::level_qs1, area_load},
    level_qs2{"qs2", &ProgramCells::level_qs2, area_load}, level_ls{"ls", &ProgramCells::level_ls, length};
inline constexpr ResultCell wall_mu2{"mu2", &ProgramCells::mu2, coefficient},
    wall_qs1{"qs1", &ProgramCells::wall_qs1, area_load}, wall_qs2{"qs2", &ProgramCells::wall_qs2, area_load},
    wall_ls{"ls", &ProgramCells::wall_ls, length};
inline constexpr ResultCell Fs{"Fs", &ProgramCells::Fs, line_load};
}  // namespace results

/// The roof families, numbered as the tabs of the main window.
enum class RoofFamily { one_pitch = 0, two_pitches = 1, several_pitches = 2, cylindrical = 3 };

/// The special cases, numbered as the pages of the special cases window.
enum class SpecialCase { level_change = 0, wall = 1, snow_guard = 2 };

/// Geometry of a roof; each family reads its own members.
struct Roof {
    RoofFamily family = RoofFamily::one_pitch;
    double alfa1 = 0;  ///< pitch of the roof, of its side 1, degrees
    double alfa2 = 0;  ///< pitch of side 2, degrees (two and several pitches)
    double L = 0;      ///< width (span) of a cylindrical roof, m
    double H = 0;      ///< rise of a cylindrical roof, m
};

/// Entries of a special case; each case reads its own members.
struct SpecialCaseEntries {
    SpecialCase special_case = SpecialCase::level_change;
    double b1 = 0;    ///< width of the upper roof, m (level change)
    double b2 = 0;    ///< width of the lower roof, m (level change)
    double h = 0;     ///< difference of level, or height of the wall, m
    double alfa = 0;  ///< slope, degrees (level change: of the upper roof; snow guard)
    double qs = 0;    ///< snow load on the roof, kN/m2 (snow guard)
    double b = 0;     ///< horizontal distance from the obstacle to the ridge, m (snow guard)
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
    std::string_view quantity;  ///< what could not be computed: a result cell's name, or a coefficient's

    [[nodiscard]] bool stopped() const { return fault != Fault::none; }
};

/// What a calculation gave, in the order of its steps; of one that stopped, what came before the stop.
struct Calculation {
    ShortList<Result, 8> results;  ///< a cell that a later step sets again keeps its place
    ShortList<Coefficient, 4> coefficients;
    ShortList<LoadCase, 4> load_cases;  ///< those that are complete: the rows of the report
    CalculationEnd end;
};

/// A calculation while it runs: sets cells, until the first fault.
class Run {
  public:
    explicit Run(ProgramCells& cells) : m_cells(cells) {}

    /// Sets the cell to the result, or keeps the fault and leaves the cell as it was.
    /// @return true if the calculation goes on
    bool set(const ResultCell& cell, Checked result);

    /// Keeps the fault of a step that sets no result cell.
    /// @param quantity  what the step was to compute
    void stop(Fault fault, std::string_view quantity) { m_calculation.end = {fault, quantity}; }

    [[nodiscard]] ProgramCells& cells() { return m_cells; }
    [[nodiscard]] Calculation& calculation() { return m_calculation; }

  private:
    ProgramCells& m_cells;
    Calculation m_calculation;
};

}  // namespace coltre
