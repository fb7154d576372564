#include "calculate/click.h"

#include "engine/both_observers.h"
#include "engine/ground_load.h"

namespace coltre {

bool tell_if_stopped(const std::optional<Stop>& stop, ClickOutcome& outcome, MessageBoxes& message_boxes) {
    if (!stop) return false;
    outcome.fault = stop->fault;
    tell_stop(*stop, message_boxes);
    return true;
}

std::optional<Stop> set_base_load(ProgramCells& cells, double altitude) {
    const Fault fault = set_base_ground_load(cells, altitude);
    if (fault == Fault::none) return std::nullopt;
    return Stop{fault, "Il carico neve al suolo qsk non si può calcolare: l'altitudine è troppo grande."};
}

std::optional<Stop> apply_coefficients(ProgramCells& cells, double CE, double Ct) {
    const Fault fault = apply_load_factors(cells, CE, Ct);
    if (fault == Fault::none) return std::nullopt;
    return Stop{fault, "Il carico neve al suolo qsk è troppo grande."};
}

void calculate_with_report(Report* report, CalculationObserver& observer, ClickOutcome& outcome,
                           MessageBoxes& message_boxes,
                           const std::function<std::optional<Stop>(CalculationObserver&)>& calculate) {
    if (report == nullptr) {
        tell_if_stopped(calculate(observer), outcome, message_boxes);
        return;
    }
    ReportFile& file = report->file();
    if (file.failure().empty()) {
        BothObservers observers(*report, observer);
        tell_if_stopped(calculate(observers), outcome, message_boxes);
        file.close();
        if (file.failure().empty()) outcome.report = file.name();
    }
    if (outcome.report.empty()) {
        outcome.file_failure = file.failure();
        message_boxes.show({Icon::error, std::string(program_title), outcome.file_failure});
    } else if (outcome.fault == Fault::none) {
        message_boxes.show(report->confirmation());
    }
}

}  // namespace coltre
