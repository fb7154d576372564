#include <array>
#include <charconv>

#include "cli/json_text.h"
#include "cli/result.h"

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

/// Members of a JSON object, appended one after the other.
class ObjectWriter {
  public:
    explicit ObjectWriter(std::string& json) : m_json(json) { m_json += '{'; }

    /// The name is one of the program's own: nothing in it needs an escape.
    std::string& member(std::string_view name) {
        if (m_json.back() != '{') m_json += ", ";
        m_json += '"';
        m_json += name;
        m_json += "\": ";
        return m_json;
    }
    void text(std::string_view name, std::string_view value) { append_json_string(member(name), value); }
    /// The shortest text of a finite number; negative zero is written as 0.
    void number(std::string_view name, double value) {
        std::array<char, 32> text;
        const auto [end, error] =
            std::to_chars(text.data(), text.data() + text.size(), value == 0 ? 0 : value);
        member(name).append(text.data(), end);
    }
    void close() { m_json += '}'; }

  private:
    std::string& m_json;
};

void append_coefficients(std::string& json, const Result& result) {
    ObjectWriter object(json);
    for (const auto& [label, mu] : result.calculation.coefficients)
        object.number(label, mu);
    object.close();
}

void append_results(std::string& json, const Result& result) {
    ObjectWriter object(json);
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

void append_messages(std::string& json, const std::vector<Message>& messages) {
    json += '[';
    for (const Message& message : messages) {
        if (json.back() != '[') json += ", ";
        ObjectWriter object(json);
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
    ObjectWriter object(json);
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
    if (!result.partly_understood.empty()) append_texts(object.member("letture"), result.partly_understood);
    append_messages(object.member("messaggi"), result.messages);
    if (result.error.empty()) {
        object.member("errore") += "null";
    } else {
        object.text("errore", result.error);
    }
    object.close();
    return json;
}

}  // namespace coltre::cli
