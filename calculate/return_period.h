#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "engine/checked.h"
#include "engine/program_cells.h"
#include "engine/trace.h"
#include "platform/messages.h"

namespace coltre {

/// Question that `Modifica` asks before the return period dialog opens; answered with yes or no.
Message return_period_question();

/// What a click on `OkPerRit` leaves besides the cells.
struct ReturnPeriodOutcome {
    std::optional<Message> message;           ///< to be shown
    std::optional<std::string> OutputPerRit;  ///< new text of the label; nothing if the dialog stays open
    Fault fault = Fault::none;                ///< the number, or its factor, is beyond the range of numbers
};

/// A click on `OkPerRit` reads the return period leniently into its cell at once, before any
/// check, then sets the return period factor. A return period of 0 or less, or of up to 1 year, is refused
/// and leaves the factor as it was, though the cell keeps it: deliberate, a report written now
/// prints it.
/// @param trace  takes the return period and the step of its factor; null if nobody asks for them
ReturnPeriodOutcome confirm_return_period(std::string_view InputPerRIT, ProgramCells& cells,
                                          Trace* trace = nullptr);

/// Whether a return period that a cell keeps was refused: it has no factor.
/// @param Tr  years
bool is_refused_return_period(double Tr);

/// As at the start: 50 years, of which none is confirmed.
void withdraw_return_period(ProgramCells& cells);

}  // namespace coltre
