#include "report/directives.h"

#include <algorithm>
#include <cmath>

#include "text/characters.h"
#include "text/number_reading.h"

namespace coltre {

namespace {

constexpr auto npos = std::string_view::npos;

// In the order of Directives::Keyword.
constexpr std::array<std::array<char, 2>, Directives::count> names{{{'c', 'u'},
                                                                    {'c', 's'},
                                                                    {'d', 'v'},
                                                                    {'c', 'd'},
                                                                    {'z', 'r'},
                                                                    {'f', 'd'},
                                                                    {'f', 's'},
                                                                    {'n', 'p'},
                                                                    {'s', 'c'}}};

char lower_ascii(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c;
}

bool is_digit(char c) {
    return c >= '0' && c <= '9';
}

}  // namespace

Directives::Directives(std::string_view written) : m_written(written) {
    m_start.fill(npos);
    std::size_t dv_end = 0;
    for (std::size_t open = written.find('('); open != npos; open = written.find('(', open + 1)) {
        const std::string_view rest = written.substr(open);
        if (rest.size() < 4 || rest[3] != '_') continue;
        const auto found = std::ranges::find(names, std::array{lower_ascii(rest[1]), lower_ascii(rest[2])});
        const auto keyword = static_cast<Keyword>(found - names.begin());
        if (keyword == count || has(keyword)) continue;
        if (keyword == np && !rest.substr(4).starts_with("1)")) continue;
        // "(dv_nn)" gives way to "(cd_mm)" with seven characters, whatever stands there: what the later steps
        // look for is lost among them.
        if (keyword > dv && open < dv_end) continue;
        if (keyword == dv) dv_end = open + bytes_of_characters(rest, 7);
        m_start[keyword] = open;
    }
}

std::optional<int> Directives::number(Keyword keyword) const {
    if (!has(keyword)) return std::nullopt;
    const std::string_view rest = behind(keyword);
    const std::string_view nn = rest.substr(0, bytes_of_characters(rest, 2));
    if (nn.size() == 2 && is_digit(nn[0]) && is_digit(nn[1])) return 10 * (nn[0] - '0') + (nn[1] - '0');
    return static_cast<int>(std::nearbyint(read_leniently(nn).value));
}

bool Directives::has_same_units() const {
    if (!has(cu)) return false;
    const std::size_t end = behind(cu).find(')');
    if (end == npos) return false;
    const std::string_view units = behind(cu).substr(0, end);
    const std::size_t between = units.find('_');
    return between != npos && lower_case(units.substr(0, between)) == lower_case(units.substr(between + 1));
}

std::string_view Directives::fill() const {
    return has(zr) && !behind(zr).empty() ? first_character(behind(zr)) : " ";
}

std::string Directives::separator(int decimals) const {
    if (!has(sc)) return {};
    const std::size_t start = m_start[sc] + 4;
    const std::size_t end = m_written.find(')', start);
    if (start <= m_start[dv] && m_start[dv] < end) {
        return std::string(m_written.substr(start, m_start[dv] - start)) +
               (decimals < 10 ? "(cd_0" : "(cd_") + std::to_string(decimals);
    }
    return end == npos ? std::string() : std::string(m_written.substr(start, end - start));
}

}  // namespace coltre
