#pragma once

#include <string>
#include <string_view>

#include "document/document.h"
#include "engine/trace.h"

// Formulas of a trace as they are printed: Greek letters, subscripts, a decimal comma.
namespace coltre {

/// A symbol of a trace: "mu1_alfa1" is µ with the subscript 1 and (α1); "qs_2a" is q with the subscript s,2a.
Pieces symbol_text(std::string_view symbol);

/// A formula, its form with numbers, or a condition. Numbers have at most four decimals, small ones four
/// significant digits.
Pieces formula_text(std::string_view formula);

/// A number with a decimal comma, rounded as in formulas: 1.53981625... is "1,5398".
std::string number_text(double value);

/// A number with a decimal comma and exactly so many decimals.
std::string fixed_text(double value, int decimals);

/// symbol = formula = numbers = value unit, without what says the same twice; at the right the condition and
/// the limit that governed.
FormulaLine step_line(const Step& step);

}  // namespace coltre
