#include "calculate/return_period.h"

#include <utility>

#include "calculate/entry_reader.h"
#include "engine/ground_load.h"
#include "text/characters.h"
#include "text/number_text.h"

namespace coltre {

Message return_period_question() {
    return {Icon::information, std::string(program_title),
            "<Eventuali riduzioni del carico di riferimento qsk potranno essere autorizzate\r"
            "dal Servizio Tecnico Centrale, sentito il Consiglio Superiore dei LL.PP.>\r"
            "(Circ. 04/07/1996)\r"
            "Modificare il Periodo di Ritorno?"};
}

ReturnPeriodOutcome confirm_return_period(std::string_view InputPerRIT, ProgramCells& cells, Trace* trace) {
    const auto stopped = [](const Stop& stop) {
        return ReturnPeriodOutcome{message_of(stop), std::nullopt, stop.fault};
    };
    const auto refused = [](std::string text) {
        return ReturnPeriodOutcome{Message{Icon::error, std::string(program_title), std::move(text)}, {}, {}};
    };
    EntryReader reader(trace);
    const double Tr = reader.lenient("periodo di ritorno", "Tr", "anni", InputPerRIT);
    if (reader.stop()) return stopped(*reader.stop());
    cells.return_period = Tr;
    if (Tr <= 0) return refused("Il Periodo di Ritorno deve essere un numero maggiore di 0.");
    // Up to 1 year the factor's logarithm is not defined.
    if (Tr <= 1) return refused("Il Periodo di Ritorno deve essere un numero maggiore di 1.");
    const Fault fault = set_return_period_factor(cells, Tr, trace);
    if (fault != Fault::none) {
        return stopped(
            {fault, "Il Periodo di Ritorno è troppo lungo: il coefficiente non si può calcolare."});
    }
    cells.confirmed_return_period = Tr;
    return {std::nullopt, std::string(trim_blanks(display_number_text(Tr))), Fault::none};
}

bool is_refused_return_period(double Tr) {
    return return_period_factor(Checked(Tr)).fault() != Fault::none;
}

void withdraw_return_period(ProgramCells& cells) {
    const ProgramCells at_start;
    cells.return_period = at_start.return_period;
    cells.return_period_factor = at_start.return_period_factor;
    cells.confirmed_return_period = at_start.confirmed_return_period;
}

}  // namespace coltre
