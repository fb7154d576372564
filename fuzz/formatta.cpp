#include <algorithm>
#include <cctype>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "fuzz/input.h"
#include "fuzz/require.h"
#include "fuzz/shown_number.h"
#include "platform/messages.h"
#include "report/formatta_cond.h"
#include "text/characters.h"
#include "text/number_reading.h"

// Input: value, scale factor, then the directive string.

namespace {

using namespace coltre;
using namespace coltre::fuzz;

constexpr auto npos = std::string_view::npos;

/// A directive string as far as the width of its field depends on it.
class Directives {
  public:
    explicit Directives(std::string_view written) : m_written(written), m_lower(written) {
        for (char& c : m_lower)
            c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    }

    [[nodiscard]] bool has(std::string_view keyword) const { return m_lower.find(keyword) != npos; }

    /// False where directives lie inside each other, or where the seven characters of "(dv_nn)" are not its
    /// own: their rewriting then changes other directives.
    [[nodiscard]] bool are_apart() const {
        bool open = false;
        for (const char c : m_written) {
            if (open && c == '(') return false;
            open = c == '(' || (open && c != ')');
        }
        const std::size_t dv = m_lower.find("(dv_");
        if (dv == npos) return true;
        const std::string_view behind = m_written.substr(dv + 4);
        return behind.find(')') == bytes_of_characters(behind, 2);
    }

    [[nodiscard]] std::optional<double> argument(std::string_view keyword) const {
        const std::size_t start = m_lower.find(keyword);
        if (start == npos) return std::nullopt;
        const std::string_view behind = m_written.substr(start + keyword.size());
        return std::nearbyint(read_leniently(behind.substr(0, bytes_of_characters(behind, 2))).value);
    }

    [[nodiscard]] std::string_view separator() const {
        const std::size_t start = m_lower.find("(sc_");
        if (start == npos) return {};
        const std::string_view behind = m_written.substr(start + 4);
        const std::size_t end = behind.find(')');
        return end == npos ? std::string_view() : behind.substr(0, end);
    }

    /// How far the directives may move a value before it is brought into its field; nothing where they make
    /// another number of it.
    [[nodiscard]] std::optional<double> tolerance(double factor) const {
        if (has("(cu_") || has("(cs_") || has("(zr_")) return std::nullopt;
        const bool dv_counts = m_lower.find("(dv_") < m_lower.find("(cd_");
        if (dv_counts && factor != 1) return std::nullopt;
        const std::optional<double> decimals = argument(dv_counts ? "(dv_" : "(cd_");
        return decimals ? 0.5 * std::pow(10, -*decimals) : 0;
    }

  private:
    std::string_view m_written;
    std::string m_lower;
};

/// A power of ten, which is what a picture shows when it rounds up past its field.
bool is_rounded_up(std::string_view field) {
    std::string_view digits = trim_blanks(field);
    if (digits.starts_with('-')) digits.remove_prefix(1);
    if (digits.ends_with('.')) digits.remove_suffix(1);
    return digits.starts_with('1') && digits.find_first_not_of('0', 1) == npos;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Input input(data, size);
    const auto value = input.finite();
    const auto factor = input.finite();
    if (!value || !factor) return 0;
    Messages messages;
    const std::optional<std::string> text = formatta(*value, input.rest(), *factor, messages);

    const bool unknown_unit =
        !messages.empty() &&
        messages.front().text == "Stringa di conversione unità di misura non riconosciuta.";
    const std::size_t refusals = messages.size() - (unknown_unit ? 1 : 0);
    if (!std::isfinite(*value * *factor)) require(!text && messages.empty(), "an overflow gives nothing");
    if (!text) {
        require(refusals == 0, "an overflow is no wrong directive");
        return 0;
    }
    const std::string& result = *text;
    require(refusals <= 1, "one wrong directive ends the steps");
    require(result.empty() == (refusals == 1), "the result is empty after a wrong directive and only then");
    const Directives directives(input.rest());
    if (result.empty() || input.rest().empty() || !directives.are_apart()) return 0;

    require(result.ends_with(directives.separator()), "the separator ends the result");
    const std::string_view field =
        std::string_view(result).substr(0, result.size() - directives.separator().size());
    const auto width = directives.argument(directives.has("(fd_") ? "(fd_" : "(fs_");
    if (width) {
        const auto length = static_cast<double>(character_count(field));
        require(length == *width || (length == *width + 1 && is_rounded_up(field)),
                "the field has its width");
        if (field == std::string(field.size(), '*')) return 0;
    } else {
        require(trim_blanks(field) == field, "no blanks around a number without a field");
    }
    if (const auto tolerance = directives.tolerance(*factor))
        require(shows(field, *value * *factor, *tolerance), "the field shows the value");
    return 0;
}
