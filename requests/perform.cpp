#include "requests/perform.h"

#include <algorithm>
#include <filesystem>
#include <iterator>
#include <utility>

#include "calculate/Calcola.h"
#include "calculate/Calcola2.h"
#include "calculate/return_period.h"
#include "document/html.h"
#include "document/illustrated_report.h"
#include "document/request_line.h"
#include "platform/date.h"
#include "platform/file_replacement.h"
#include "platform/files.h"
#include "platform/system_files.h"
#include "report/unit_systems.h"
#include "requests/site_choice.h"
#include "version/version.h"

namespace coltre {

namespace {

void append(Messages& messages, Messages more) {
    std::ranges::move(more, std::back_inserter(messages));
}

/// Gives a datum that the calculation takes from a cell the text that it was typed as.
void keep_text(std::string_view symbol, const std::string* text, Trace& trace) {
    const auto datum = std::ranges::find(trace.data, symbol, &Datum::symbol);
    if (text != nullptr && datum != trace.data.end()) datum->text = *text;
}

/// Confirms the return period. One that has no factor stops the calculation before it begins.
Outcome confirm_return_period(const std::string& Tr, const Fields& fields, ProgramCells& cells) {
    Outcome outcome;
    outcome.entries.kind = fields.kind;
    if (fields.traced) outcome.trace = Trace{{zone_datum(cells)}, {}};
    ReturnPeriodOutcome period = confirm_return_period(Tr, cells, trace_of(outcome));
    if (period.message) outcome.messages.push_back(*std::move(period.message));
    outcome.fault = period.fault;
    return outcome;
}

Outcome calculate_fields(const Request& request, const Fields& fields, Program& program, Messages& messages) {
    if (const std::string* const Tr = request.value(keys::periodo_ritorno)) {
        Outcome outcome = confirm_return_period(*Tr, fields, program.cells);
        if (outcome.fault != Fault::none) return outcome;
        append(messages, std::move(outcome.messages));
    }
    if (describe(fields.kind).window == Window::special_cases) return Calcola2(fields, program);
    if (auto notice = altitude_notice(fields)) messages.push_back(std::move(notice->message));
    return Calcola(fields, program);
}

/// @param overwrite  a file that is there is replaced; else it is a failure, also one that has just appeared
Failure write_page(const std::filesystem::path& path, std::string_view html, bool overwrite) {
    system_files::Entry old;
    if (const int error = system_files::look_at(path, old)) return system_failure(error);
    if (!overwrite && old.kind != system_files::Entry::Kind::nothing)
        return "il file esiste già; --sovrascrivi, in un lotto «sovrascrivi», lo sostituisce";
    FileReplacement file(path);
    file.write(html);
    return overwrite ? file.commit() : file.commit_as_new();
}

/// Writes the illustrated report that the request asks for. What goes wrong is the request's error, unless
/// the calculation has failed before.
void write_illustrated_report(const Request& request, Subject subject, Answer& result) {
    const std::string& name = *request.value(keys::illustrata);
    const std::filesystem::path path = find_path(suite_notation(to_path(name)));
    subject.program = "Coltre " + std::string(version_and_build());
    subject.request = request_line(subject);
    const Layout layout =
        layout_of(request.value_or(keys::impaginazione, "completa")).value_or(Layout::complete);
    const std::string* const given_date = request.value(keys::data);
    const DocumentDate date =
        given_date != nullptr ? DocumentDate{*given_date, std::nullopt} : document_date();
    const TitleBlock title{.work = request.value_or(keys::lavoro, ""),
                           .client = request.value_or(keys::committente, ""),
                           .place = request.value_or(keys::ubicazione, ""),
                           .designer = request.value_or(keys::progettista, ""),
                           .sheet = request.value_or(keys::elaborato, ""),
                           .revision = request.value_or(keys::revisione, ""),
                           .date = date.text};

    const Failure failure = date.error ? date.error
                                       : write_page(path, to_html(illustrated_report(subject, title, layout)),
                                                    request.flag(keys::sovrascrivi));
    if (!failure) {
        result.illustrated_report = path_text(path);
    } else if (result.end == End::well) {
        result.fail(End::failed, "Impossibile scrivere il file " + path_text(path) + ": " + *failure + ".");
    }
}

}  // namespace

Fields fields_of(const Request& request, std::string altitude, char decimal_separator) {
    return {.asinput = std::move(altitude),
            .ComboEsp = request.value_or(keys::ce, "1.0"),
            .TextCTermico = request.value_or(keys::ct, "1.0"),
            .kind = *request.kind,
            .entries = entry_texts(request),
            .udmcombo = request.value_or(keys::unita, unit_items.front()),
            .Check1Box = request.value(keys::relazione) != nullptr,
            .decimal_separator = decimal_separator,
            .traced = request.flag(keys::passaggi) || request.value(keys::illustrata) != nullptr};
}

Answer perform(const Request& request, const Environment& environment, SiteMemory& memory) {
    Answer result;
    result.kind = request.kind;
    if (Failure error = validation_error(request)) {
        result.fail(End::wrong_request, *std::move(error));
        return result;
    }
    result.partly_understood = partly_understood(request);
    result.unusual = unusual_coefficients(request);

    Program program;
    program.directories.ProgramDirectory = environment.own_directory;
    if (const std::string* const directory = request.value(keys::altitudini)) {
        program.directories.ProgramDirectory = suite_notation(to_path(*directory));
    }
    if (const std::string* const directory = request.value(keys::relazione)) {
        program.directories.WorkDirectory = suite_notation(to_path(*directory));
    }
    program.directories.JobName = request.value_or(keys::lavoro, "");

    Subject subject;
    std::string altitude;
    if (request.value(keys::provincia) != nullptr) {
        const auto site = site_by_name(request, program, memory, result);
        if (!site) return result;
        altitude = subject.listed_altitude = site->altitude;
        subject.province = site->province;
        subject.municipality = site->municipality;
        subject.zone_of_province = request.value(keys::zona) == nullptr;
    }
    if (const std::string* const given = request.value(keys::altitudine)) altitude = *given;
    if (const std::string* const given = request.value(keys::zona)) program.cells.zone = *zone_of(*given);
    result.zone = program.cells.zone;

    const Fields fields = fields_of(request, std::move(altitude), environment.decimal_separator);
    Outcome outcome = calculate_fields(request, fields, program, result.messages);
    result.return_period = program.cells.confirmed_return_period;
    result.return_period_factor = program.cells.return_period_factor;
    if (outcome.trace) {
        keep_text("zona", request.value(keys::provincia), *outcome.trace);
        keep_text("zona", request.value(keys::zona), *outcome.trace);
        keep_text("Tr", request.value(keys::periodo_ritorno), *outcome.trace);
    }
    result.altitude = outcome.altitude;
    result.qsk = outcome.qsk;
    if (outcome.fault != Fault::none) {
        result.fail(End::failed_with_message, std::string(fault_text(outcome.fault)));
    } else if (outcome.report_failure) {
        result.fail(End::failed_with_message, *outcome.report_failure);
    }
    if (!outcome.report.empty()) result.report = path_text(find_path(outcome.report));
    if (request.value(keys::illustrata) != nullptr) {
        subject.fields = fields;
        subject.outcome = outcome;
        subject.job_name = program.directories.JobName;
        subject.zone = program.cells.zone;
        subject.return_period = program.cells.return_period;
        subject.return_period_text = request.value_or(keys::periodo_ritorno, "");
        subject.confirmed_return_period = program.cells.confirmed_return_period;
        write_illustrated_report(request, std::move(subject), result);
    }
    append(result.messages, std::move(outcome.messages));
    result.calculation = std::move(outcome.calculation);
    if (request.flag(keys::passaggi)) result.trace = std::move(outcome.trace);
    return result;
}

}  // namespace coltre
