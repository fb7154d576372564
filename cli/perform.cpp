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
#include "text/number_reading.h"
#include "text/number_text.h"

namespace coltre::cli {

namespace {

/// What a calculation takes from entries that it cannot wholly understand: "1,5" is 1. The windows mark such
/// a field.
std::vector<std::string> misread_entries(const Request& request) {
    std::vector<std::string> misread;
    for (std::size_t i = 0; i < key_count; ++i) {
        const auto key = static_cast<Key>(i);
        const auto& text = request.value(key);
        if (!text || !reads_leniently(*request.kind, key)) continue;
        const LenientNumber number = read_leniently(*text);
        if (!number.wholly_understood && !number.beyond_range)
            misread.push_back(std::string(info(key).name) + " " + in_quotes(*text) + ": letto come " +
                              shortest_number_text(number.value));
    }
    return misread;
}

MainWindowFields main_window_fields(const Request& request, std::string altitude) {
    MainWindowFields fields;
    fields.asinput = std::move(altitude);
    fields.ComboEsp = request.value_or(Key::ce, "1.0");
    fields.TextCTermico = request.value_or(Key::ct, "1.0");
    fields.SSTab1 = static_cast<RoofFamily>(*request.kind);
    fields.inputalfa = request.value_or(Key::alfa, "");
    fields.inputalfa1 = fields.inputalfa3 = request.value_or(Key::alfa1, "");
    fields.inputalfa2 = fields.inputalfa4 = request.value_or(Key::alfa2, "");
    fields.Lcopcil = request.value_or(Key::larghezza, "");
    fields.hcopcil = request.value_or(Key::altezza, "");
    fields.udmcombo = request.value_or(Key::unita, unit_items.front());
    fields.Check1Box = request.value(Key::relazione).has_value();
    return fields;
}

SpecialCasesFields special_cases_fields(const Request& request, std::string altitude,
                                        char decimal_separator) {
    SpecialCasesFields fields;
    fields.asinput = std::move(altitude);
    fields.ComboEsp = request.value_or(Key::ce, "1.0");
    fields.TextCTermico = request.value_or(Key::ct, "1.0");
    fields.cartelle =
        static_cast<SpecialCase>(static_cast<int>(*request.kind) - static_cast<int>(Kind::discontinuita));
    fields.b1input = request.value_or(Key::b1, "");
    fields.b2input = request.value_or(Key::b2, "");
    fields.h2input = fields.h3input = request.value_or(Key::h, "");
    fields.deltainput = fields.angoloinput = request.value_or(Key::alfa, "");
    fields.qsinput = request.value_or(Key::qs, "");
    fields.biinput = request.value_or(Key::b, "");
    fields.udmcombo = request.value_or(Key::unita, unit_items.front());
    fields.Check1Box = request.value(Key::relazione).has_value();
    fields.decimal_separator = decimal_separator;
    return fields;
}

}  // namespace

Result perform(const Request& request, const Environment& environment, SiteMemory& memory) {
    Result result;
    result.kind = request.kind;
    result.error = find_mistake(request);
    result.wrong_request = !result.error.empty();
    if (result.wrong_request) return result;
    result.misread = misread_entries(request);

    Program program;
    program.directories.ProgramDirectory = environment.own_directory;
    if (const auto& directory = request.value(Key::altitudini)) {
        program.directories.ProgramDirectory = suite_notation(*directory);
    }
    if (const auto& directory = request.value(Key::relazione)) {
        program.directories.WorkDirectory = suite_notation(*directory);
    }
    program.directories.JobName = request.value_or(Key::lavoro, "");

    std::string altitude;
    if (request.value(Key::provincia)) {
        const auto site = site_by_name(request, program, memory, result);
        if (!site) return result;
        altitude = site->altitude;
    }
    if (const auto& given = request.value(Key::altitudine)) altitude = *given;
    if (const auto& given = request.value(Key::zona)) program.cells.zone = *zone_of(*given);
    result.zone = program.cells.zone;

    if (const auto& Tr = request.value(Key::periodo_ritorno)) {
        ReturnPeriodOutcome outcome = confirm_return_period(*Tr, program.cells);
        if (outcome.message) result.messages.push_back(*std::move(outcome.message));
        if (outcome.fault != Fault::none) {
            result.error = fault_text(outcome.fault);
            result.told = true;
            return result;
        }
    }

    const bool special = *request.kind >= Kind::discontinuita;
    ClickOutcome outcome =
        special ? Calcola2(special_cases_fields(request, altitude, environment.decimal_separator), program)
                : Calcola(main_window_fields(request, altitude), program);
    std::ranges::move(outcome.messages, std::back_inserter(result.messages));
    result.calculation = outcome.calculation;
    result.altitude = outcome.altitude;
    result.qsk = outcome.qsk;
    result.error =
        outcome.fault != Fault::none ? std::string(fault_text(outcome.fault)) : outcome.file_failure;
    result.told = !result.error.empty();
    if (!outcome.report.empty()) result.report = find_path(outcome.report).string();
    return result;
}

}  // namespace coltre::cli
