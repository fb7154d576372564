#pragma once

#include <array>
#include <charconv>
#include <string>
#include <string_view>

namespace coltre {

/// Appends the text as a JSON string; bytes that are no UTF-8 become U+FFFD.
void append_json_string(std::string& json, std::string_view text);

/// Members of a JSON object, appended one after the other.
class JsonObject {
  public:
    explicit JsonObject(std::string& json) : m_json(json) { m_json += '{'; }

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

}  // namespace coltre
