#pragma once

#include <string>
#include <string_view>

#include "engine/calculation.h"
#include "platform/messages.h"

namespace coltre {

/// Why a calculation stopped, for the user.
struct Stop {
    Fault fault = Fault::none;
    std::string explanation;  ///< one Italian sentence or more, lines separated by "\r"
};

/// The stop of a calculation: what it could not compute. The callers add why.
Stop stop_of(const CalculationEnd& end);

/// The fault as a short Italian text: "divisione per zero", "errore numerico", "conversione non valida",
/// "dimensioni non congruenti"; empty for Fault::none.
std::string_view fault_text(Fault fault);

/// Says that the calculation stopped and why.
Message message_of(const Stop& stop);

}  // namespace coltre
