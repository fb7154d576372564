#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "document/subject.h"

// A check that needs nothing but the printed document: each formula computed anew from the rounded numbers
// that stand in it.
namespace coltre {

/// A result computed anew.
struct IndependentCheck {
    std::string symbol;
    std::string numbers;  ///< its formula with the printed numbers, as formulas of a trace are written
    double recomputed = 0;
    double deviation = 0;  ///< from the result, relative to it
    Quantity quantity{};
};

/// The checks of the ground load and of each result. Those that the printed numbers give no value for, a
/// division by a number that is printed as 0, are left out.
std::vector<IndependentCheck> independent_checks(const Subject& subject);

/// The value of a formula of engine/trace.h that has numbers in place of its symbols; nothing if it is none,
/// or has no finite value.
std::optional<double> formula_value(std::string_view numbers);

}  // namespace coltre
