#include "cli/json_request.h"

#include <nlohmann/json.hpp>

#include "cli/json_text.h"

namespace coltre::cli {

namespace {

/// Takes the request from the parser's events. The first mistake is kept and the reading goes on, so that the
/// "id" is found wherever it stands. The value of "id", whatever it is, is written again as it comes.
class RequestReader {
  public:
    using number_integer_t = nlohmann::json::number_integer_t;
    using number_unsigned_t = nlohmann::json::number_unsigned_t;
    using number_float_t = nlohmann::json::number_float_t;
    using string_t = nlohmann::json::string_t;
    using binary_t = nlohmann::json::binary_t;

    explicit RequestReader(JsonRequest& result) : m_result(result) {}

    bool null() { return literal("null"); }
    bool boolean(bool value) { return literal(value ? "true" : "false"); }
    bool number_integer(number_integer_t value) { return number(value == 0 ? "-0" : std::to_string(value)); }
    bool number_unsigned(number_unsigned_t value) { return number(std::to_string(value)); }
    bool number_float(number_float_t /*value*/, const string_t& text) { return number(text); }

    bool string(string_t& text) {
        if (echo_value([&] { append_json_string(m_result.id, text); })) return true;
        if (outside()) return true;
        if (m_is_kind) {
            m_result.request.kind = kind_of(text);
            if (!m_result.request.kind) mistake("calcolo sconosciuto: " + in_quotes(text));
        } else if (m_key) {
            m_result.request.set(*m_key, std::move(text));
        }
        return true;
    }
    bool binary(binary_t& /*value*/) { return false; }  // only other formats than JSON hold binary values

    bool start_object(std::size_t /*elements*/) { return open('{'); }
    bool end_object() { return close('}'); }
    bool start_array(std::size_t /*elements*/) { return open('['); }
    bool end_array() { return close(']'); }

    bool key(string_t& name) {
        if (m_in_id) {
            separate();
            append_json_string(m_result.id, name);
            m_result.id += ':';
            m_after_key = true;
            return true;
        }
        if (m_depth != 1) return true;
        m_is_id = name == "id";
        m_is_kind = name == "calcolo";
        m_key = m_is_id || m_is_kind ? std::nullopt : find_key(name);
        if (!m_is_id && !m_is_kind && !m_key) mistake("chiave sconosciuta: " + in_quotes(name));
        const bool repeated = (m_is_id && !m_result.id.empty()) || (m_is_kind && m_result.request.kind) ||
                              (m_key && m_result.request.value(*m_key) != nullptr);
        if (repeated) mistake("chiave ripetuta: " + in_quotes(name));
        if (m_is_id) m_result.id.clear();
        return true;
    }

    bool parse_error(std::size_t position, const std::string& /*token*/,
                     const nlohmann::json::exception& error) {
        constexpr int number_overflow = 406;
        if (m_in_id) m_result.id.clear();  // cut in the middle
        m_result.mistake = "JSON illeggibile al carattere " + std::to_string(position);
        m_number_end = error.id == number_overflow ? position : 0;
        return false;
    }

    /// Where the number ends that is too large for the parser; 0 if there was none.
    [[nodiscard]] std::size_t number_end() const { return m_number_end; }

  private:
    /// True when the value stands in no object: the line is no request.
    bool outside() {
        if (m_depth > 0) return false;
        mistake("la richiesta deve essere un oggetto JSON");
        return true;
    }

    void mistake(std::string text) {
        if (m_result.mistake.empty()) m_result.mistake = std::move(text);
    }

    void separate() {
        if (m_after_key) {
            m_after_key = false;
        } else if (!m_result.id.empty() && m_result.id.back() != '[' && m_result.id.back() != '{') {
            m_result.id += ',';
        }
    }

    /// Writes a value that belongs to the "id"; false if it does not.
    template <typename Write>
    bool echo_value(Write write) {
        if (m_in_id) {
            separate();
        } else if (m_depth != 1 || !m_is_id) {
            return m_depth > 1;  // deep inside a value that is a mistake already
        }
        write();
        return true;
    }

    void wrong_type(std::string_view what) {
        if (m_is_kind) mistake("«calcolo» deve essere un testo, non " + std::string(what));
        if (!m_key) return;
        mistake(in_quotes(m_key->name) + " deve essere " + (m_key->is_number ? "un numero o " : "") +
                "un testo, non " + std::string(what));
    }

    bool literal(std::string_view text) {
        if (!echo_value([&] { m_result.id += text; }) && !outside()) wrong_type(text);
        return true;
    }

    bool number(const std::string& text) {
        if (echo_value([&] { m_result.id += text; }) || outside()) return true;
        if (m_key && m_key->is_number) {
            m_result.request.set(*m_key, text);
        } else {
            wrong_type("un numero");
        }
        return true;
    }

    bool open(char bracket) {
        const bool of_id = m_in_id || (m_depth == 1 && m_is_id);
        if (of_id) {
            if (m_in_id) separate();
            m_result.id += bracket;
            m_in_id = true;
        } else if (m_depth == 1) {
            wrong_type(bracket == '{' ? "un oggetto" : "una lista");
        } else if (m_depth == 0 && bracket == '[') {
            outside();
        }
        ++m_depth;
        return true;
    }

    bool close(char bracket) {
        --m_depth;
        if (m_in_id) m_result.id += bracket;
        if (m_depth == 1) m_in_id = false;
        return true;
    }

    JsonRequest& m_result;
    std::size_t m_depth = 0;
    std::optional<Key> m_key;
    bool m_is_kind = false;
    bool m_is_id = false;
    bool m_in_id = false;      // inside an "id" that is an object or a list
    bool m_after_key = false;  // the next value of the "id" follows its key
    std::size_t m_number_end = 0;
};

}  // namespace

JsonRequest read_json_request(std::string_view line) {
    JsonRequest result;
    if (line.find_first_not_of(" \t\r") == std::string_view::npos) {
        result.mistake = "riga vuota";
        return result;
    }
    RequestReader reader(result);
    nlohmann::json::sax_parse(line, &reader);
    if (reader.number_end() == 0) return result;

    // A number beyond the range of doubles ends the parser. Between quotation marks it is a text, which every
    // field reads as what it is: too large. One such number is one too many for any request, so one try is
    // enough.
    constexpr std::string_view number_characters = "+-.0123456789Ee";
    const std::size_t last = line.find_last_of(number_characters, reader.number_end() - 1);
    const std::size_t before = line.find_last_not_of(number_characters, last);
    const std::size_t start = before == std::string_view::npos ? 0 : before + 1;
    std::string quoted(line);
    quoted.insert(last + 1, 1, '"').insert(start, 1, '"');
    JsonRequest second;
    RequestReader second_reader(second);
    nlohmann::json::sax_parse(quoted, &second_reader);
    return second;
}

}  // namespace coltre::cli
