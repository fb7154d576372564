
#include "cli/result.h"
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

void append_coefficients(std::string& json, const Result& result) {
    JsonObject object(json);
    for (const auto& [label, mu] : result.calculation.coefficients)
        object.number(label, mu);
    object.close();
}

void append_results(std::string& json, const Result& result) {
    JsonObject object(json);
    for (const auto& [cell, value] : result.calculation.results)
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

std::string to_json(const Result& result) {
    std::string json;
    json.reserve(512);
    JsonObject object(json);
    if (!result.id.empty()) object.member("id") += result.id;
    if (result.kind) object.text("calcolo", describe(*result.kind).name);
    if (!result.province.empty()) {
        object.text("provincia", result.province);
        object.text("comune", result.municipality);
    }
    if (result.altitude) object.number("altitudine", *result.altitude);
    if (result.zone) object.number("zona", *result.zone);
    if (result.qsk) object.number("qsk", *result.qsk);
    append_coefficients(object.member("mu"), result);
    append_results(object.member("risultati"), result);
    if (!result.report.empty()) object.text("relazione", result.report);
    if (!result.illustrated_report.empty()) object.text("illustrata", result.illustrated_report);
    if (!result.partly_understood.empty()) append_texts(object.member("letture"), result.partly_understood);
    append_messages(object.member("messaggi"), result.messages);
    if (result.error.empty()) {
        object.member("errore") += "null";
    } else {
        object.text("errore", result.error);
    }
    if (result.trace) {
        append_data(object.member("dati"), *result.trace);
        append_steps(object.member("passaggi"), *result.trace);
    }
    object.close();
    return json;
}

}  // namespace coltre::cli
