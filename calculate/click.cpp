#include "calculate/click.h"

#include "engine/ground_load.h"
#include "text/characters.h"
#include "text/number_reading.h"

namespace coltre {

namespace {

std::string beyond_range(std::string_view name) {
    return "Il numero scritto per «" + std::string(name) + "» è troppo grande.";
}

}  // namespace

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

void tell_stop(const Stop& stop, MessageBoxes& message_boxes) {
    message_boxes.show(
        {Icon::error, std::string(program_title),
         "Calcolo interrotto: " + std::string(fault_text(stop.fault)) + ".\r" + stop.explanation});
}

bool stopped(const std::optional<Stop>& stop, ClickOutcome& outcome, MessageBoxes& message_boxes) {
    if (!stop) return false;
    outcome.fault = stop->fault;
    tell_stop(*stop, message_boxes);
    return true;
}

double EntryReader::lenient(std::string_view name, std::string_view text) {
    if (m_stop) return 0;
    const LenientNumber number = read_leniently(text);
    if (number.beyond_range) m_stop = {Fault::numeric_error, beyond_range(name)};
    return number.value;
}

double EntryReader::strict(std::string_view name, std::string_view text, char decimal_separator) {
    if (m_stop) return 0;
    const StrictNumber number = read_strictly(text, decimal_separator);
    switch (number.verdict) {
        case StrictNumber::Verdict::number:
            break;
        case StrictNumber::Verdict::beyond_range:
            m_stop = {Fault::numeric_error, beyond_range(name)};
            break;
        case StrictNumber::Verdict::not_a_number:
            m_stop = {Fault::invalid_conversion, trim_blanks(text).empty()
                                                     ? "Il campo «" + std::string(name) + "» è vuoto."
                                                     : "Il testo scritto per «" + std::string(name) +
                                                           "» non è un numero: «" + std::string(text) + "»."};
            break;
    }
    return number.value;
}

EntryReader::Coefficients EntryReader::coefficients(std::string_view ComboEsp,
                                                    std::string_view TextCTermico) {
    const double CE = lenient("coefficiente di esposizione", ComboEsp);
    return {CE, lenient("coefficiente termico", TextCTermico)};
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
        stopped(calculate(observer), outcome, message_boxes);
        return;
    }
    ReportFile& file = report->file();
    if (file.failure().empty()) {
        BothObservers observers(*report, observer);
        stopped(calculate(observers), outcome, message_boxes);
        file.close();
        outcome.report_written = file.failure().empty();
    }
    if (!outcome.report_written) {
        outcome.file_failure = file.failure();
        message_boxes.show({Icon::error, std::string(program_title), outcome.file_failure});
    } else if (outcome.fault == Fault::none) {
        message_boxes.show(report->confirmation());
    }
}

void BothObservers::on_cell(const ResultCell& cell, double value) {
    m_first.on_cell(cell, value);
    m_second.on_cell(cell, value);
}

void BothObservers::on_coefficient(std::string_view label, double mu) {
    m_first.on_coefficient(label, mu);
    m_second.on_coefficient(label, mu);
}

void BothObservers::on_roof(const Roof& roof) {
    m_first.on_roof(roof);
    m_second.on_roof(roof);
}

void BothObservers::on_load_case(const LoadCase& load_case) {
    m_first.on_load_case(load_case);
    m_second.on_load_case(load_case);
}

void BothObservers::on_special_case(const SpecialCaseEntries& entries) {
    m_first.on_special_case(entries);
    m_second.on_special_case(entries);
}

}  // namespace coltre
