#pragma once

#include <optional>
#include <string>
#include <vector>

#include "calculate/click.h"

// What changes the load of a calculation, and by how much: the same core, run again with one input changed.
namespace coltre {

/// The greatest load that a calculation gave: of a roof its qs, of a drift qs2, of a snow guard Fs.
/// @return its result; nothing for a calculation without one
std::optional<Result> worst_load(const Calculation& calculation);

/// One input changed.
struct Variation {
    std::string what;            ///< Italian: "altitudine 189 m (− 50)"
    std::optional<double> load;  ///< greatest load then; nothing where the calculation stops
};

/// Everything that a calculation of numbers depends on.
struct LoadInputs {
    SnowZone zone = 0;
    double altitude = 0;  ///< m
    double factor = 1;    ///< of the return period
    double CE = 1, Ct = 1;
    Entries entries;
};

/// The greatest load of these inputs; nothing where the calculation stops.
std::optional<double> worst_load(const LoadInputs& inputs);

/// The changes that a designer asks about: altitude by 50 m, CE, return periods, the neighbouring zones, each
/// slope by 5 degrees and each length by a tenth. Those that play no part are left out.
std::vector<Variation> variations(const LoadInputs& inputs);

}  // namespace coltre
