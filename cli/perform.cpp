#include "cli/perform.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "calculate/Calcola.h"
#include "calculate/Calcola2.h"
#include "calculate/return_period.h"
#include "cli/site_choice.h"
#include "platform/files.h"
#include "report/unit_systems.h"

namespace coltre::cli {

namespace {

Fields fields_of(const Request& request, std::string altitude, char decimal_separator) {
    return {.asinput = std::move(altitude),
            .ComboEsp = request.value_or(keys::ce, "1.0"),
            .TextCTermico = request.value_or(keys::ct, "1.0"),
            .kind = *request.kind,
            .entries = entry_texts(request),
            .udmcombo = request.value_or(keys::unita, unit_items.front()),
            .Check1Box = request.value(keys::relazione) != nullptr,
            .decimal_separator = decimal_separator};
}

void append(Messages& messages, Messages more) {
    std::ranges::move(more, std::back_inserter(messages));
}

}  // namespace

Result perform(const Request& request, const Surroundings& surroundings, SiteMemory& memory) {
    Result result;
    result.kind = request.kind;
    if (std::string error = validation_error(request); !error.empty()) {
        result.fail(End::wrong_request, std::move(error));
        return result;
    }
    result.partly_understood = partly_understood(request);

    Program program;
    program.directories.ProgramDirectory = surroundings.own_directory;
    if (const std::string* const directory = request.value(keys::altitudini)) {
        program.directories.ProgramDirectory = suite_notation(*directory);
    }
    if (const std::string* const directory = request.value(keys::relazione)) {
        program.directories.WorkDirectory = suite_notation(*directory);
    }
    program.directories.JobName = request.value_or(keys::lavoro, "");

    std::string altitude;
    if (request.value(keys::provincia) != nullptr) {
        const auto site = site_by_name(request, program, memory, result);
        if (!site) return result;
        altitude = site->altitude;
    }
    if (const std::string* const given = request.value(keys::altitudine)) altitude = *given;
    if (const std::string* const given = request.value(keys::zona)) program.cells.zone = *zone_of(*given);
    result.zone = program.cells.zone;

    if (const std::string* const Tr = request.value(keys::periodo_ritorno)) {
        ReturnPeriodOutcome outcome = confirm_return_period(*Tr, program.cells);
        if (outcome.message) result.messages.push_back(*std::move(outcome.message));
        if (outcome.fault != Fault::none) {
            result.fail(End::failed_with_message, std::string(fault_text(outcome.fault)));
            return result;
        }
    }

    const Fields fields = fields_of(request, std::move(altitude), surroundings.decimal_separator);
    const bool main_window = describe(fields.kind).window == Window::main;
    if (main_window) {
        if (auto notice = altitude_notice(fields)) result.messages.push_back(std::move(notice->message));
    }
    Outcome outcome = main_window ? Calcola(fields, program) : Calcola2(fields, program);
    append(result.messages, std::move(outcome.messages));
    result.calculation = std::move(outcome.calculation);
    result.altitude = outcome.altitude;
    result.qsk = outcome.qsk;
    if (outcome.fault != Fault::none) {
        result.fail(End::failed_with_message, std::string(fault_text(outcome.fault)));
    } else if (!outcome.file_failure.empty()) {
        result.fail(End::failed_with_message, outcome.file_failure);
    }
    if (!outcome.report.empty()) result.report = find_path(outcome.report).string();
    return result;
}

}  // namespace coltre::cli
