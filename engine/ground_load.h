#pragma once

#include "engine/checked.h"
#include "engine/program_cells.h"
#include "engine/trace.h"

// Ground snow load of the site.
// Source: Decree of 16 January 1996; circular of 4 July 1996.
namespace coltre {

/// Above this altitude, m, the local conditions decide, which a message says; the load is still computed from
/// the altitude as typed.
inline constexpr double highest_regulated_altitude = 1500;

/// Sets the return period factor of the ground load.
/// @param Tr     years
/// @param trace  takes the step; null if nobody asks for it
/// @return a fault, see return_period_factor(), leaves the cell as it was
Fault set_return_period_factor(ProgramCells& cells, double Tr, Trace* trace = nullptr);

/// Sets the qsk cell to the characteristic ground load of the zone cell's zone, before the user's factors. A
/// zone code outside 0 to 3 leaves the cell as it was. Constant up to and including 200 m, and not continuous
/// there: zone II drops from 1.0 to 0.997 just above.
/// @param altitude  above sea level, m
/// @param trace     takes the step; null if nobody asks for it
/// @return a fault leaves the cell as it was
Fault set_base_load(ProgramCells& cells, double altitude, Trace* trace = nullptr);

/// Multiplies the qsk cell by the return period factor, CE and Ct, in this order.
/// @param CE  exposure coefficient   @param Ct  thermal coefficient
/// @param trace  takes the steps; null if nobody asks for them
/// @return a fault leaves the cell as it was
Fault apply_load_factors(ProgramCells& cells, double CE, double Ct, Trace* trace = nullptr);

/// Factor of the ground load for a return period: 0.273 (1 - 0.5 ln(-ln(1 - 1/Tr))).
/// 10 years give 0.5802, 50 give 0.8056, 500 give 1.1212.
/// @param Tr  years; up to 1 year, and so many that 1/Tr is lost beside 1, are numeric errors
template <typename Number>
Number return_period_factor(const Number& Tr) {
    return 0.273 * (1 - 0.5 * ln(0 - ln(1 - 1 / Tr)));
}

}  // namespace coltre
