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
        const bool first = m_json.back() == '{';
        // In one go: three appended texts would take most of the time of writing an answer.
        std::size_t at = m_json.size();
        m_json.resize(at + (first ? 1 : 3) + name.size() + 3);
        const auto put = [&](std::string_view text) { at += text.copy(m_json.data() + at, text.size()); };
        if (!first) put(", ");
        put("\"");
        put(name);
        put("\": ");
        return m_json;
    }
    void text(std::string_view name, std::string_view value) { append_json_string(member(name), value); }
    /// The shortest text of a finite number; negative zero is written as 0.
    void number(std::string_view name, double value) {
        // Beyond these whole numbers the shortest text may have an exponent; up to them they need no search.
        constexpr double beyond = 100000;
        const int whole = value > -beyond && value < beyond ? static_cast<int>(value) : 0;
        std::array<char, 32> text;
        char* const last = text.data() + text.size();
        const auto [end, error] = value == whole ? std::to_chars(text.data(), last, whole)
                                                 : std::to_chars(text.data(), last, value);
        member(name).append(text.data(), end);
    }
    void close() { m_json += '}'; }

  private:
    std::string& m_json;
};

}  // namespace coltre
