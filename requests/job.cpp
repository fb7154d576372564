#include "requests/job.h"

#include <algorithm>

#include "calculate/return_period.h"
#include "document/request_line.h"
#include "requests/json_request.h"
#include "requests/perform.h"
#include "requests/site_choice.h"
#include "site/regions.h"
#include "startup/start_up.h"
#include "text/characters.h"
#include "text/number_reading.h"

namespace coltre {

namespace {

/// What belongs to the command, and to no control.
constexpr std::array command_keys{keys::lavoro, keys::relazione, keys::altitudini, keys::passaggi,
                                  keys::illustrata};

/// A text that a message box has room for: what a file holds may have any length.
std::string shortened(const std::string& text, std::size_t most_characters = 300) {
    const std::size_t end = bytes_of_characters(text, most_characters);
    return end == text.size() ? text : text.substr(0, end) + "…";
}

std::string in_quotes_shortened(const std::string& text) {
    return in_quotes(shortened(text, 40));
}

bool is_batch(std::string_view bytes) {
    const std::size_t end = std::min(bytes.find('\n'), bytes.size());
    return bytes.find_first_not_of(json_blanks, end) != std::string_view::npos &&
           read_json_request(bytes.substr(0, end)).error == std::nullopt;
}

/// Why a file that is no job of this version cannot be opened: cut, damaged, of another program or of a later
/// version, as far as it shows.
std::string refusal(const JsonRequest& read, std::string_view bytes) {
    const bool is_object = bytes[bytes.find_first_not_of(json_blanks)] == '{';
    const bool later_calculation = read.fault == JsonFault::unknown_kind;
    if (is_object && read.fault == JsonFault::cut) return "il file è incompleto: " + *read.error;
    if (is_object && read.fault == JsonFault::unreadable) return "il file è danneggiato: " + *read.error;
    if (!is_object || (!read.request.kind && !later_calculation))
        return "il file è di un altro programma, non è un lavoro di Coltre";
    if (later_calculation || !read.unknown_keys.empty())
        return "il lavoro è forse di una versione più recente: " + *read.error;
    return "il lavoro è errato: " + *read.error;
}

JsonRequest refused(std::string error) {
    JsonRequest request;
    request.error = std::move(error);
    return request;
}

JsonRequest read_request(std::string_view bytes) {
    if (bytes.size() > longest_job)
        return refused("il file è più lungo di " + std::to_string(longest_job) + " byte");
    constexpr std::string_view byte_order_mark = "\xEF\xBB\xBF";
    if (bytes.starts_with(byte_order_mark)) bytes.remove_prefix(byte_order_mark.size());
    if (bytes.find_first_not_of(json_blanks) == std::string_view::npos) return refused("il file è vuoto");
    if (is_batch(bytes)) return refused("il file contiene più richieste, è un lotto del comando");
    JsonRequest request = read_json_request(bytes, UnknownKeys::listed);
    if (!request.error) request.error = validation_error(request.request);
    if (request.error) request.error = refusal(request, bytes);
    return request;
}

void take_site(const Request& request, const std::string& ProgramDirectory, Job& job) {
    if (const std::string* const province = request.value(keys::provincia)) {
        Program program;
        program.directories.ProgramDirectory = ProgramDirectory;
        SiteMemory memory;
        Answer answer;
        std::optional<Site> site = site_by_name(request, program, memory, answer);
        if (site) {
            job.province = site->province;
            job.municipality = site->municipality;
            if (request.value(keys::altitudine) == nullptr) job.fields.asinput = site->altitude;
        } else {
            job.not_taken.push_back("sito " + in_quotes_shortened(*request.value(keys::comune)) + ", " +
                                    in_quotes_shortened(*province) + ": " + shortened(*answer.error));
        }
        if (site || std::ranges::find(provinces(), *province) != provinces().end())
            job.zone = ZoneOfProvince(site ? site->province : *province).zone;
    }
    if (const std::string* const zone = request.value(keys::zona)) job.zone = *zone_of(*zone);
}

void take_exposure(Job& job) {
    const StrictNumber typed = read_strictly(job.fields.ComboEsp, '.');
    const auto is_typed = [&typed](std::string_view item) {
        return typed.verdict == StrictNumber::Verdict::number && typed.value == read_leniently(item).value;
    };
    const auto item = std::ranges::find_if(exposure_items, is_typed);
    if (item == exposure_items.end())
        job.not_taken.push_back("«ce» " + in_quotes_shortened(job.fields.ComboEsp) +
                                ": l'elenco ha 0.9, 1.0 e 1.1; vale 1.0");
    job.fields.ComboEsp = item != exposure_items.end() ? *item : exposure_items[1];
}

void take_return_period(const Request& request, Job& job) {
    const std::string* const typed = request.value(keys::periodo_ritorno);
    if (typed == nullptr) return;
    ProgramCells trial;
    const ReturnPeriodOutcome outcome = confirm_return_period(*typed, trial);
    if (outcome.OutputPerRit) {
        job.return_period = *typed;
    } else {
        job.not_taken.push_back("«periodo-ritorno» " + in_quotes_shortened(*typed) +
                                ": il periodo non è valido; vale il coefficiente 1");
    }
}

}  // namespace

Job read_job(std::string_view bytes, const std::string& ProgramDirectory) {
    Job job;
    const JsonRequest read = read_request(bytes);
    if (read.error) {
        job.error = shortened(*read.error);
        return job;
    }

    const Request& request = read.request;
    job.fields = fields_of(request, request.value_or(keys::altitudine, ""), '.');
    take_site(request, ProgramDirectory, job);
    take_exposure(job);
    take_return_period(request, job);
    for (const std::string& key : read.unknown_keys)
        job.not_taken.push_back("chiave sconosciuta " + in_quotes_shortened(key) +
                                ", forse di una versione più recente");
    const auto leave_to_command = [&](const Key& key) {
        if (request.value(key) != nullptr)
            job.not_taken.push_back("chiave " + in_quotes(key.name) + ", che serve soltanto al comando");
    };
    std::ranges::for_each(command_keys, leave_to_command);
    std::ranges::for_each(keys::of_illustrated, leave_to_command);
    if (!read.id.empty()) job.not_taken.emplace_back("chiave «id», che serve soltanto al lotto");
    return job;
}

std::string job_file(const Subject& subject) {
    return request_line(subject) + '\n';
}

}  // namespace coltre
