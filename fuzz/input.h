#pragma once

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <optional>
#include <string>
#include <string_view>

// Seeds and findings are text files that a person can read and write: parameters a line each, then the rest.
namespace coltre::fuzz {

/// The bytes of one execution.
class Input {
  public:
    Input(const std::uint8_t* data, std::size_t size) : m_rest(reinterpret_cast<const char*>(data), size) {}

    /// The next line without its "\n"; empty at the end.
    std::string_view line() { return up_to("\n").value_or(""); }

    /// The next line as a number, 0 where it is none; nothing for "nan" and what is infinite.
    std::optional<double> finite() {
        const double value = std::strtod(std::string(line()).c_str(), nullptr);
        return std::isfinite(value) ? std::optional(value) : std::nullopt;
    }

    /// All bytes up to the mark, which is taken too, or up to the end; nothing if no byte is left.
    std::optional<std::string_view> up_to(std::string_view mark) {
        if (m_rest.empty()) return std::nullopt;
        const std::size_t found = m_rest.find(mark);
        const std::string_view taken = m_rest.substr(0, found);
        m_rest = found == std::string_view::npos ? std::string_view() : m_rest.substr(found + mark.size());
        return taken;
    }

    [[nodiscard]] std::string_view rest() const { return m_rest; }

  private:
    std::string_view m_rest;
};

}  // namespace coltre::fuzz
