#include "requests/worked_cases.h"

#include <rapidjson/document.h>
#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <map>
#include <optional>

#include "requests/json_memory.h"
#include "requests/json_request.h"
#include "requests/perform.h"
#include "text/number_text.h"

namespace coltre {

namespace {

using Pool = rapidjson::MemoryPoolAllocator<JsonMemory>;
using Value = rapidjson::GenericValue<rapidjson::UTF8<>, Pool>;
using Text = rapidjson::GenericStringBuffer<rapidjson::UTF8<>, JsonMemory>;

std::string text_of(const Value& value) {
    return {value.GetString(), value.GetStringLength()};
}

/// @param line  of the file that is compiled in: its form is the project's own
WorkedCase case_of(std::string_view line) {
    rapidjson::GenericDocument<rapidjson::UTF8<>, Pool, JsonMemory> read;
    read.Parse(line.data(), line.size());
    WorkedCase worked{.id = text_of(read["id"]),
                      .title = text_of(read["titolo"]),
                      .source = text_of(read["fonte"]),
                      .working{},
                      .request{},
                      .expected{}};
    for (const Value& text : read["passaggi"].GetArray())
        worked.working.push_back(text_of(text));
    Text request;
    rapidjson::Writer<Text, rapidjson::UTF8<>, rapidjson::UTF8<>, JsonMemory> writer(request);
    read["richiesta"].Accept(writer);
    worked.request = std::string(request.GetString(), request.GetSize());
    const Value& expected = read["attesi"];
    // "!=" of these iterators is ambiguous in C++20.
    for (auto member = expected.MemberBegin(); member < expected.MemberEnd(); ++member)
        worked.expected.push_back({text_of(member->name), text_of(member->value)});
    worked.stops = read.HasMember("interrotto");
    return worked;
}

int decimals_of(std::string_view number) {
    const std::size_t point = number.find('.');
    return point == std::string_view::npos ? 0 : static_cast<int>(number.size() - point - 1);
}

double value_of(std::string_view number) {
    double value = 0;
    std::from_chars(number.data(), number.data() + number.size(), value);
    return value;
}

/// What the program gave under the names of a case.
std::map<std::string, double> numbers_of(const Answer& answer) {
    std::map<std::string, double> numbers;
    if (answer.qsk) numbers.emplace("qsk", *answer.qsk);
    for (const auto& [cell, value] : answer.calculation.results)
        numbers.emplace(cell->name, value);
    return numbers;
}

FoundNumber compare(const WorkedNumber& expected, const std::map<std::string, double>& numbers) {
    const auto number = numbers.find(expected.name);
    if (number == numbers.end()) return {expected, "", false};
    const int decimals = decimals_of(expected.value);
    std::string found = fixed_number_text(number->second, decimals);
    const double unit = std::pow(10, -decimals);
    const bool agrees = std::abs(value_of(found) - value_of(expected.value)) < 1.5 * unit;
    return {expected, std::move(found), agrees};
}

std::string with_comma(std::string number) {
    std::ranges::replace(number, '.', ',');
    return number;
}

std::string number_of_cases(std::size_t number) {
    return std::to_string(number) + (number == 1 ? " caso" : " casi");
}

void append_case(const CaseOutcome& outcome, std::vector<Block>& blocks) {
    const WorkedCase& worked = *outcome.worked;
    blocks.emplace_back(Heading{3, worked.title});
    blocks.emplace_back(CodeBlock{worked.request});
    for (const std::string& line : worked.working)
        blocks.emplace_back(Paragraph{plain(line)});
    Table table{.columns = {ColumnAlign::left, ColumnAlign::right, ColumnAlign::right, ColumnAlign::left},
                .header = {plain("grandezza"), plain("atteso"), plain("trovato"), plain("esito")},
                .rows = {}};
    for (const auto& [expected, found, agrees] : outcome.numbers)
        table.rows.push_back({{{expected.name, Style::symbol}},
                              plain(with_comma(expected.value)),
                              plain(found.empty() ? "—" : with_comma(found)),
                              agrees ? plain("riprodotto") : Pieces{{"DIVERSO", Style::strong}}});
    if (!table.rows.empty()) blocks.emplace_back(std::move(table));
    if (worked.stops) blocks.emplace_back(Paragraph{{{"Il calcolo deve fermarsi qui.", Style::emphasis}}});
    if (outcome.fault) blocks.emplace_back(Paragraph{{{*outcome.fault, Style::strong}}});
    blocks.emplace_back(Paragraph{{{worked.source, Style::note}}});
}

}  // namespace

const std::vector<WorkedCase>& worked_cases() {
    static const std::vector<WorkedCase> cases = [] {
        std::vector<WorkedCase> read;
        std::string_view text = worked_cases_text();
        for (std::size_t end = text.find('\n'); end != std::string_view::npos; end = text.find('\n')) {
            read.push_back(case_of(text.substr(0, end)));
            text.remove_prefix(end + 1);
        }
        return read;
    }();
    return cases;
}

CaseOutcome run(const WorkedCase& worked) {
    CaseOutcome outcome{.worked = &worked, .numbers{}, .fault{}};
    const JsonRequest line = read_json_request(worked.request);
    SiteMemory memory;
    const Answer answer = !line.error ? perform(line.request, {}, memory) : Answer{};
    const std::map<std::string, double> numbers = numbers_of(answer);

    for (const WorkedNumber& expected : worked.expected)
        outcome.numbers.push_back(compare(expected, numbers));
    const bool stopped = answer.end != End::well;
    if (line.error) {
        outcome.fault = "Richiesta errata: " + *line.error + ".";
    } else if (stopped && !worked.stops) {
        outcome.fault = "Il calcolo si è fermato: " + *answer.error + ".";
    } else if (!stopped && worked.stops) {
        outcome.fault = "Il calcolo non si è fermato.";
    } else if (worked.stops && numbers.size() != worked.expected.size()) {
        outcome.fault = "Il calcolo è andato oltre il punto in cui deve fermarsi.";
    }
    outcome.passed = !outcome.fault && std::ranges::all_of(outcome.numbers, &FoundNumber::agrees);
    return outcome;
}

std::vector<CaseOutcome> run_worked_cases() {
    std::vector<CaseOutcome> outcomes;
    std::ranges::transform(worked_cases(), std::back_inserter(outcomes), run);
    return outcomes;
}

std::string summary(std::span<const CaseOutcome> outcomes) {
    const auto failed = std::ranges::count(outcomes, false, &CaseOutcome::passed);
    return number_of_cases(outcomes.size()) +
           (failed == 0 ? ", tutti riprodotti" : ", " + std::to_string(failed) + " non riprodotti");
}

Document worked_cases_document(std::span<const CaseOutcome> outcomes, std::string_view program,
                               std::string_view date) {
    Document document{.title = "Casi di prova di Coltre",
                      .page_header = "Casi di prova di Coltre",
                      .page_footer = std::string(program) + " — " + std::string(date),
                      .blocks{}};
    auto& blocks = document.blocks;
    blocks.emplace_back(Heading{1, document.title});
    blocks.emplace_back(Paragraph{{{summary(outcomes) + ".", Style::strong}}});
    blocks.emplace_back(Paragraph{plain(
        "Ogni caso è stato svolto per esteso senza il programma; i numeri attesi sono quelli di quello "
        "svolgimento, con i decimali che "
        "contano. Il programma che ha scritto questo documento ha eseguito la richiesta di ogni caso: un "
        "numero è "
        "riprodotto se, arrotondato agli stessi decimali, ne differisce al più di un'unità dell'ultimo.")});
    blocks.emplace_back(
        Paragraph{plain("Programma: " + std::string(program) + ". Data: " + std::string(date) + ".")});
    blocks.emplace_back(
        Paragraph{plain("Le richieste si eseguono anche da sole, con «coltre-calcolo lotto»; il file "
                        "casi-di-prova.jsonl, installato accanto al "
                        "manuale, le contiene tutte.")});
    for (const Description& calculation : calculations()) {
        bool first = true;
        for (const CaseOutcome& outcome : outcomes) {
            if (read_json_request(outcome.worked->request).request.kind != calculation.kind) continue;
            if (std::exchange(first, false))
                blocks.emplace_back(Heading{2, std::string(calculation.meaning)});
            append_case(outcome, blocks);
        }
    }
    return document;
}

}  // namespace coltre
