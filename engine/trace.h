#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "engine/checked.h"
#include "engine/results.h"

// The steps of a calculation, for whoever checks it by hand.
//
// Formulas and conditions are written with numbers, symbols (letters, digits, "_"), + - * / ^ ( ), ln, tan,
// arctan, sin, cos, min and max with commas, and pi; a negative number stands in parentheses; conditions with
// < <= > >= == and "and", chains such as "0 <= alfa <= 30" among them.
namespace coltre {

/// A number that a calculation starts from, under the symbol that formulas call it.
struct Datum {
    std::string symbol;
    double value;
    std::string_view unit;  ///< empty for a coefficient
    std::string text;       ///< what it was read from; empty for one that an earlier calculation left
};

/// What a step is for, as the chapters of a document go.
enum class Stage { ground_load, coefficients, loads, overhang_and_drift };

/// One quantity of a calculation: how it came about.
struct Step {
    std::string symbol{};         ///< once in a trace
    std::string formula{};        ///< in symbols: of data or of earlier steps
    std::string numbers{};        ///< the same with their values, in the shortest digits that give them back
    std::optional<double> value;  ///< nothing: it could not be computed, and no step follows
    Fault fault = Fault::none;    ///< why not
    std::string condition{};      ///< that chose this formula among others; empty where there is one alone
    std::string condition_numbers{};  ///< the same with values
    std::string governs{};            ///< the operand of a min or max that gave the value; empty without one
    Quantity quantity{};
    std::string_view source{};  ///< where the formula comes from
    std::string_view words{};   ///< Italian: what the branch or the limit that governed means
    Stage stage{};
};

/// How a calculation came about: what it started from and its steps, in their order.
struct Trace {
    std::vector<Datum> data;
    std::vector<Step> steps;
};

}  // namespace coltre
