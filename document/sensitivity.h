#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "calculate/click.h"
#include "document/document.h"
#include "engine/results.h"

// What changes the load of a calculation, and by how much: the same core, run again with one input changed.
namespace coltre {

/// The greatest load that a calculation gave: of a roof its qs, of a drift qs2, of a snow guard Fs.
/// @return its result; nothing for a calculation that stopped before it had all of its loads
std::optional<Result> worst_load(Kind kind, const Calculation& calculation);

/// One input changed.
struct Variation {
    std::string what;            ///< Italian: "altitudine 189 m (− 50)"
    std::optional<double> load;  ///< greatest load then; nothing where it is not computed
};

/// Everything that a calculation of numbers depends on.
struct LoadInputs {
    SnowZone zone = 0;
    double altitude = 0;  ///< m
    double factor = 1;    ///< of the return period
    double CE = 1, Ct = 1;
    Entries entries;
};

/// The numbers of the fields, as a click reads them.
/// @return nothing where one of them cannot be used
std::optional<LoadInputs> load_inputs(const Fields& fields, SnowZone zone, double factor);

/// The ground load of these inputs, kN/m2; nothing where it cannot be computed.
std::optional<double> ground_load(const LoadInputs& inputs);

/// The greatest load of these inputs; nothing where the calculation stops before it.
std::optional<double> worst_load(const LoadInputs& inputs);

/// The changes that a designer asks about: altitude by 50 m, CE, return periods, the neighbouring zones, each
/// slope by 5 degrees and each length by a tenth; also those that leave this load as it is.
std::vector<Variation> variations(const LoadInputs& inputs);

/// The variations as a table: what changes, the greatest load then, by how much it differs.
Table variation_table(const LoadInputs& inputs);

/// What the greatest load of a calculation is: "qs" of a roof, "qs2" of a drift, "Fs" of a snow guard.
struct LoadName {
    std::string_view symbol;
    Quantity quantity;
};
LoadName greatest_load_name(Kind kind);

/// The greatest load over the altitude, in the zone of the inputs and in the other three.
/// @return nothing for a calculation that the ground load plays no part in
std::optional<Drawing> load_over_altitude(const LoadInputs& inputs);

}  // namespace coltre
