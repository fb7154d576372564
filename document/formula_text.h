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

/// A value as results are printed, with the decimals of its kind; one that they would hide, or that is beyond
/// all measure, as in formulas.
std::string value_text(double value, const Quantity& quantity);

/// The number with its unit behind it: "3,00 m", "20°", a coefficient alone.
std::string with_unit(std::string number, std::string_view unit);

/// What governed a step, in symbols and words; empty where no limit was taken.
Pieces governing_text(const Step& step);

/// symbol = formula = numbers = value unit, without what says the same twice; at the right the condition and
/// the limit that governed, in words besides symbols.
/// @param more  what is to be said besides: behind the words of the branch, where there are some
FormulaLine step_line(const Step& step, std::string_view more = {});

}  // namespace coltre
