#include "cli/answers.h"
#include "text/json_text.h"

namespace coltre::cli {

namespace {

std::string_view icon_name(Icon icon) {
    switch (icon) {
        case Icon::error:
            return "errore";
        case Icon::information:
            return "informazione";
        case Icon::warning:
            return "avviso";
        case Icon::none:
            break;
    }
    return "nessuna";
}

void append_coefficients(std::string& json, const Answer& answer) {
    JsonObject object(json);
    for (const auto& [label, mu] : answer.calculation.coefficients)
        object.number(label, mu);
    object.close();
}

void append_results(std::string& json, const Answer& answer) {
    JsonObject object(json);
    for (const auto& [cell, value] : answer.calculation.results)
        object.number(cell->name, value);
    object.close();
}

void append_texts(std::string& json, const std::vector<std::string>& texts) {
    json += '[';
    for (const std::string& text : texts) {
        if (json.back() != '[') json += ", ";
        append_json_string(json, text);
    }
    json += ']';
}

void append_data(std::string& json, const Trace& trace) {
    json += '[';
    for (const Datum& datum : trace.data) {
        if (json.back() != '[') json += ", ";
        JsonObject object(json);
        object.text("simbolo", datum.symbol);
        object.number("valore", datum.value);
        object.text("unita", datum.unit);
        object.text("testo", datum.text);
        object.close();
    }
    json += ']';
}

void append_steps(std::string& json, const Trace& trace) {
    json += '[';
    for (const Step& step : trace.steps) {
        if (json.back() != '[') json += ", ";
        JsonObject object(json);
        object.text("simbolo", step.symbol);
        object.text("formula", step.formula);
        object.text("numeri", step.numbers);
        if (step.value) {
            object.number("valore", *step.value);
        } else {
            object.member("valore") += "null";
            object.text("errore", fault_text(step.fault));
        }
        object.text("unita", step.quantity.unit);
        if (!step.condition.empty()) {
            object.text("condizione", step.condition);
            object.text("condizione_numeri", step.condition_numbers);
        }
        if (!step.governs.empty()) object.text("governa", step.governs);
        if (!step.words.empty()) object.text("nota", step.words);
        object.text("fonte", step.source);
        object.close();
    }
    json += ']';
}

void append_messages(std::string& json, const std::vector<Message>& messages) {
    json += '[';
    for (const Message& message : messages) {
        if (json.back() != '[') json += ", ";
        JsonObject object(json);
        object.text("icona", icon_name(message.icon));
        object.text("titolo", message.title);
        object.text("testo", message.text);
        object.close();
    }
    json += ']';
}

}  // namespace

std::string to_json(const Answer& answer) {
    std::string json;
    json.reserve(512);
    JsonObject object(json);
    if (!answer.id.empty()) object.member("id") += answer.id;
    if (answer.kind) object.text("calcolo", describe(*answer.kind).name);
    if (!answer.province.empty()) {
        object.text("provincia", answer.province);
        object.text("comune", answer.municipality);
    }
    if (answer.altitude) object.number("altitudine", *answer.altitude);
    if (answer.zone) object.number("zona", *answer.zone);
    if (answer.qsk) object.number("qsk", *answer.qsk);
    append_coefficients(object.member("mu"), answer);
    append_results(object.member("risultati"), answer);
    if (!answer.report.empty()) object.text("relazione", answer.report);
    if (!answer.illustrated_report.empty()) object.text("illustrata", answer.illustrated_report);
    if (!answer.partly_understood.empty()) append_texts(object.member("letture"), answer.partly_understood);
    if (!answer.unusual.empty()) append_texts(object.member("avvisi"), answer.unusual);
    append_messages(object.member("messaggi"), answer.messages);
    if (answer.error) {
        object.text("errore", *answer.error);
    } else {
        object.member("errore") += "null";
    }
    if (answer.trace) {
        append_data(object.member("dati"), *answer.trace);
        append_steps(object.member("passaggi"), *answer.trace);
    }
    object.close();
    return json;
}

}  // namespace coltre::cli
