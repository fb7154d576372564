#include "requests/json_request.h"

#include <rapidjson/memorystream.h>
#include <rapidjson/reader.h>

#include <algorithm>

#include "requests/json_memory.h"
#include "text/characters.h"

namespace coltre {

namespace {

/// Whether a "\u" escape named half a character: the parser lets the second half pass alone.
bool has_half_character(std::string_view text) {
    for (std::size_t i = text.find('\xED'); i != std::string_view::npos; i = text.find('\xED', i + 1)) {
        if (static_cast<unsigned char>(text[i + 1]) >= 0xA0) return true;
    }
    return false;
}

/// Takes the request from the parser's events, which bear the parser's names. The first error is kept and the
/// reading goes on, so that the "id" is found wherever it stands.
class RequestHandler : public rapidjson::BaseReaderHandler<rapidjson::UTF8<>, RequestHandler> {
  public:
    /// @param stream  that the parser reads: the line, or a text of the same length
    RequestHandler(std::string_view line, const rapidjson::MemoryStream& stream, UnknownKeys unknown,
                   JsonRequest& result)
        : m_line(line), m_stream(stream), m_unknown(unknown), m_result(result) {}

    bool Null() { return literal("null"); }
    bool Bool(bool value) {
        const std::string_view text = value ? "true" : "false";
        if (m_key && m_key->type == KeyType::flag && is_entry()) {
            m_result.request.set(*m_key, std::string(text));
            return true;
        }
        return literal(text);
    }

    bool RawNumber(const char* /*text*/, std::size_t length, bool /*copy*/) {
        if (!is_entry()) return true;
        if (m_key && m_key->type == KeyType::number_or_text) {
            m_result.request.set(*m_key, std::string(m_line.substr(m_stream.Tell() - length, length)));
        } else {
            wrong_type("un numero");
        }
        return true;
    }

    bool String(const char* characters, std::size_t length, bool /*copy*/) {
        const std::string_view text(characters, length);
        if (has_half_character(text)) return false;
        if (!is_entry()) return true;
        if (m_is_kind) {
            m_result.request.kind = kind_of(text);
            if (!m_result.request.kind)
                error("calcolo sconosciuto: " + in_quotes(text), JsonFault::unknown_kind);
        } else if (m_key && m_key->type == KeyType::flag) {
            wrong_type("un testo");
        } else if (m_key) {
            m_result.request.set(*m_key, std::string(text));
        }
        return true;
    }

    bool StartObject() { return open("un oggetto"); }
    bool EndObject(std::size_t /*members*/) { return close(); }
    bool StartArray() {
        if (m_depth == 0) error(no_object);
        return open("una lista");
    }
    bool EndArray(std::size_t /*elements*/) { return close(); }

    bool Key(const char* characters, std::size_t length, bool /*copy*/) {
        const std::string_view name(characters, length);
        if (has_half_character(name)) return false;
        if (m_depth != 1) return true;
        m_is_id = name == "id";
        m_is_kind = name == "calcolo";
        m_key = m_is_id || m_is_kind ? std::nullopt : find_key(name);
        if (!m_is_id && !m_is_kind && !m_key) unknown_key(name);
        const bool repeated = (m_is_id && !m_result.id.empty()) || (m_is_kind && m_result.request.kind) ||
                              (m_key && m_result.request.value(*m_key) != nullptr);
        if (repeated) error("chiave ripetuta: " + in_quotes(name));
        if (m_is_id) {
            m_result.id = {};
            m_id_start = m_line.find_first_not_of(json_blanks, m_line.find(':', m_stream.Tell()) + 1);
        }
        return true;
    }

  private:
    static constexpr std::string_view no_object = "la richiesta deve essere un oggetto JSON";

    void error(std::string_view text, JsonFault fault = JsonFault::wrong_entry) {
        if (m_result.error) return;
        m_result.error = text;
        m_result.fault = fault;
    }

    void unknown_key(std::string_view name) {
        if (m_unknown == UnknownKeys::refused) {
            error("chiave sconosciuta: " + in_quotes(name));
        } else {
            m_result.unknown_keys.emplace_back(name);
        }
    }

    void wrong_type(std::string_view what) {
        if (m_is_kind) error("«calcolo» deve essere un testo, non " + std::string(what));
        if (!m_key) return;
        std::string_view expected = "un testo";
        if (m_key->type == KeyType::number_or_text) expected = "un numero o un testo";
        if (m_key->type == KeyType::flag) expected = "true o false";
        error(in_quotes(m_key->name) + " deve essere " + std::string(expected) + ", non " +
              std::string(what));
    }

    /// Whether the value just read, no object and no list, is for the request itself: neither the "id", which
    /// is kept here, nor inside another value, nor outside of the object.
    bool is_entry() {
        if (m_depth == 0) error(no_object);
        if (m_depth != 1) return false;
        if (m_is_id) keep_id(m_stream.Tell());
        return !m_is_id;
    }

    void keep_id(std::size_t end) { m_result.id = m_line.substr(m_id_start, end - m_id_start); }

    bool literal(std::string_view text) {
        if (is_entry()) wrong_type(text);
        return true;
    }

    bool open(std::string_view what) {
        if (m_depth == 1 && !m_is_id) wrong_type(what);
        ++m_depth;
        return true;
    }

    bool close() {
        --m_depth;
        if (m_depth == 1 && m_is_id) keep_id(m_stream.Tell() + 1);  // the bracket is yet to be taken
        return true;
    }

    std::string_view m_line;
    const rapidjson::MemoryStream& m_stream;
    UnknownKeys m_unknown;
    JsonRequest& m_result;
    std::size_t m_depth = 0;
    std::optional<coltre::Key> m_key;
    bool m_is_kind = false;
    bool m_is_id = false;
    std::size_t m_id_start = 0;
};

/// Reads the line once.
/// @param parsed  what the parser sees of it, of the same length
/// @return false where the parser refuses a number because it is beyond the range of doubles
bool read_once(std::string_view line, std::string_view parsed, UnknownKeys unknown, JsonRequest& result) {
    constexpr unsigned flags = rapidjson::kParseNumbersAsStringsFlag | rapidjson::kParseValidateEncodingFlag |
                               rapidjson::kParseIterativeFlag;
    rapidjson::MemoryStream stream(parsed.data(), parsed.size());
    RequestHandler handler(line, stream, unknown, result);
    rapidjson::GenericReader<rapidjson::UTF8<>, rapidjson::UTF8<>, JsonMemory> reader;
    const rapidjson::ParseResult end = reader.Parse<flags>(stream, handler);
    // The parser takes a null character for the end of the text.
    if (!end.IsError() && stream.Tell() == line.size()) return true;
    const std::size_t position = end.IsError() ? end.Offset() : stream.Tell();
    const bool is_cut = line.find_first_not_of(json_blanks, position) == std::string_view::npos;
    result.fault = is_cut ? JsonFault::cut : JsonFault::unreadable;
    result.error =
        "JSON illeggibile al carattere " + std::to_string(character_count(line.substr(0, position)) + 1);
    // A number where reading ended may have gone on: the "18" of a line that was cut in "188".
    const bool ends_there = result.id.data() + result.id.size() == line.data() + position;
    if (!result.id.empty() && ends_there && result.id.back() >= '0' && result.id.back() <= '9')
        result.id = {};
    return end.Code() != rapidjson::kParseErrorNumberTooBig;
}

std::size_t digits_length(std::string_view text) {
    return std::min(text.find_first_not_of("0123456789"), text.size());
}

/// Length of the number at the front of the text, as JSON writes numbers; 0 if there is none.
std::size_t number_length(std::string_view text) {
    std::size_t length = text.starts_with('-') ? 1 : 0;
    const std::size_t whole = digits_length(text.substr(length));
    if (whole == 0) return 0;
    length += text[length] == '0' ? 1 : whole;
    const auto take = [&](std::size_t sign) {
        const std::size_t digits = digits_length(text.substr(std::min(length + sign, text.size())));
        if (digits > 0) length += sign + digits;
    };
    const auto at = [&](std::size_t i) { return i < text.size() ? text[i] : '\0'; };
    if (at(length) == '.') take(1);
    if (at(length) == 'e' || at(length) == 'E') take(at(length + 1) == '+' || at(length + 1) == '-' ? 2 : 1);
    return length;
}

/// The line with zeros as long in place of its numbers.
std::string without_numbers(std::string_view line) {
    std::string text(line);
    bool in_string = false;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '"') in_string = !in_string;
        if (in_string && text[i] == '\\') ++i;
        const std::size_t length = in_string ? 0 : number_length(std::string_view(text).substr(i));
        if (length > 2) text.replace(i, length, "0." + std::string(length - 2, '0'));
        if (length > 0) i += length - 1;
    }
    return text;
}

}  // namespace

JsonRequest read_json_request(std::string_view line, UnknownKeys unknown) {
    constexpr std::string_view byte_order_mark = "\xEF\xBB\xBF";
    if (line.starts_with(byte_order_mark)) line.remove_prefix(byte_order_mark.size());

    JsonRequest result;
    if (line.find_first_not_of(json_blanks) == std::string_view::npos) {
        result.fault = JsonFault::cut;
        result.error = "riga vuota";
        return result;
    }
    if (read_once(line, line, unknown, result)) return result;
    // A number beyond the range is a text like others: the field that reads it finds it too large. The parser
    // sees zeros, the request takes the numbers from the line.
    result = {};
    read_once(line, without_numbers(line), unknown, result);
    return result;
}

}  // namespace coltre
