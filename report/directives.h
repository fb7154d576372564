#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace coltre {

/// Where the directives of a string stand, and their arguments; docs/directives.md holds the language. A
/// directive counts where it stands first. The string must outlive the object.
class Directives {
  public:
    /// In the order of their steps.
    enum Keyword { cu, cs, dv, cd, zr, fd, fs, np, sc, count };

    explicit Directives(std::string_view written);

    [[nodiscard]] std::string_view written() const { return m_written; }

    [[nodiscard]] bool has(Keyword keyword) const { return m_start[keyword] != std::string_view::npos; }

    /// Whether "(dv_nn)" stands before every "(cd_nn)": the "(cd_mm)" that it becomes is the one that counts.
    [[nodiscard]] bool dv_is_first() const { return m_start[dv] < m_start[cd]; }

    /// The argument "nn": two characters, read leniently and rounded to a whole number, a half to the even
    /// neighbour. Nothing if the directive is absent.
    [[nodiscard]] std::optional<int> number(Keyword keyword) const;

    /// Whether "(cu_a_b)" names one unit twice.
    [[nodiscard]] bool has_same_units() const;

    /// The character of "(zr_c)", a blank if the directive is absent.
    [[nodiscard]] std::string_view fill() const;

    /// The text of "(sc_text)"; empty if the directive is absent or has no ")".
    /// @param decimals  mm of the "(cd_mm)" that has taken the place of a "(dv_nn)" inside the text
    [[nodiscard]] std::string separator(int decimals) const;

  private:
    /// What stands behind the underscore, up to the end of the string.
    [[nodiscard]] std::string_view behind(Keyword keyword) const {
        return m_written.substr(m_start[keyword] + 4);
    }

    std::string_view m_written;
    std::array<std::size_t, count> m_start;
};

}  // namespace coltre
