#include "site/altitude_fields.h"

#include <algorithm>
#include <experimental/simd>

#include "text/characters.h"

namespace coltre {

namespace {

/// An object, not a function, so that the search for one is compiled as one loop.
constexpr auto ends_field = [](char c) { return c == ',' || c == '\r' || c == '\n'; };

/// The first character that ends a field, or the end of the text; several are looked at in one step.
const char* find_field_end(const char* first, const char* last) {
    namespace simd = std::experimental;
    using Block = simd::native_simd<char>;
    constexpr auto size = static_cast<std::ptrdiff_t>(Block::size());
    for (; last - first >= size; first += size) {
        const Block block(first, simd::element_aligned);
        const auto ends = block == ',' || block == '\r' || block == '\n';
        if (any_of(ends)) return first + find_first_set(ends);
    }
    return std::find_if(first, last, ends_field);
}

/// Whether a field begins at the position, or only blanks lie between its beginning and the position.
bool is_field_start(std::string_view bytes, std::size_t position) {
    while (position > 0 && bytes[position - 1] == ' ')
        --position;
    return position == 0 || ends_field(bytes[position - 1]);
}

}  // namespace

bool FieldReader::next() {
    if (at_end()) return false;
    const char* const first = m_bytes.data() + m_position;
    const char* const last = m_bytes.data() + m_bytes.size();
    const char* const end = find_field_end(first, last);
    m_raw = std::string_view(first, end);
    m_field = m_raw.substr(std::min(m_raw.find_first_not_of(' '), m_raw.size()));
    m_position += m_raw.size();
    const std::string_view rest = m_bytes.substr(m_position);
    m_ending = rest.substr(0, rest.starts_with("\r\n") ? 2 : 1);
    m_position += m_ending.size();
    return true;
}

std::optional<FieldReader> find_field(std::string_view bytes, std::string_view wanted) {
    if (wanted.empty()) {
        for (FieldReader reader(bytes); reader.next();) {
            if (reader.field().empty()) return reader;
        }
        return std::nullopt;
    }
    // No field starts with a blank or holds an end.
    if (wanted.front() == ' ' || std::ranges::any_of(wanted, ends_field)) return std::nullopt;
    // Looking for the text and then at what surrounds it is many times faster than reading every field.
    for (std::size_t found = bytes.find(wanted); found != std::string_view::npos;
         found = bytes.find(wanted, found + 1)) {
        const std::size_t end = found + wanted.size();
        if ((end < bytes.size() && !ends_field(bytes[end])) || !is_field_start(bytes, found)) continue;
        FieldReader reader(bytes, found);
        reader.next();
        return reader;
    }
    return std::nullopt;
}

std::optional<std::string_view> municipality_of(std::string_view field) {
    const std::size_t blank = field.find(' ');
    if (blank == std::string_view::npos) return std::nullopt;
    return field.substr(0, blank);
}

std::string_view altitude_of(std::string_view field) {
    return trim_blanks(field.substr(field.size() - std::min<std::size_t>(field.size(), 4)));
}

}  // namespace coltre
