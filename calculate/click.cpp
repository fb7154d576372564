#include "calculate/click.h"

#include "engine/ground_load.h"

namespace coltre {

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

void close_report(ReportFile& report, const std::string& confirmation, ClickOutcome& outcome) {
    report.close();
    outcome.file_failure = report.failure();
    if (!outcome.file_failure.empty()) {
        outcome.tell(Icon::error, outcome.file_failure);
        return;
    }
    outcome.report = report.name();
    if (outcome.fault == Fault::none) outcome.tell(Icon::none, confirmation);
}

}  // namespace coltre
