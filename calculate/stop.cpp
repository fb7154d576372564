#include "calculate/stop.h"

namespace coltre {

Stop stop_of(const CalculationEnd& end) {
    return {end.fault, "Non si può calcolare " + std::string(end.quantity) + "."};
}

std::string_view fault_text(Fault fault) {
    switch (fault) {
        case Fault::none:
            return {};
        case Fault::division_by_zero:
            return "divisione per zero";
        case Fault::numeric_error:
            return "errore numerico";
        case Fault::invalid_conversion:
            return "conversione non valida";
        case Fault::incongruent_dimensions:
            return "dimensioni non congruenti";
    }
    return {};
}

Message message_of(const Stop& stop) {
    return {Icon::error, std::string(program_title),
            "Calcolo interrotto: " + std::string(fault_text(stop.fault)) + ".\r" + stop.explanation};
}

}  // namespace coltre
