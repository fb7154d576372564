#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "engine/checked.h"
#include "platform/messages.h"

// The directive language of the reports: how a number becomes a field of a report line. docs/directives.md
// holds the language, in the order of the steps of formatta().
namespace coltre {

/// The number as text, converted, rounded, padded and followed by its column separator as the directives say.
/// "(FD_08)(DV_04)(SC_|)" turns 1.2 into "  1.2   |".
/// @param value       finite
/// @param directives  directive string; empty for the plain number text
/// @param factor      scale factor, finite; also fixes the decimal shift where no unit is converted
/// @param messages    takes the error message of a wrong directive
/// @return nothing at an overflow, which ends the calculation as a numeric error; the empty text after a
///         wrong directive; asterisks for a number that does not fit its field
std::optional<std::string> formatta(double value, std::string_view directives, double factor,
                                    Messages& messages);

/// Converts the value by the unit command of the directive string. A command that names one unit twice keeps
/// the value; one that is not in the table keeps it too, with a message.
/// @param value          multiplied in place; kept at an overflow
/// @param decimal_shift  out: the command's decimal shift, 0 where the value was kept
/// @return Fault::numeric_error at an overflow
Fault converti_unita(double& value, std::string_view directives, std::int16_t& decimal_shift,
                     Messages& messages);

/// Position of the decimal point in a number text; where there is none one is appended. -1 for the exponent
/// form.
int decimal_point_position(std::string& text);

}  // namespace coltre
