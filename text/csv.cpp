#include "text/csv.h"

#include <algorithm>
#include <limits>
#include <new>

namespace coltre {

namespace {

constexpr std::string_view separators = ";,\t";
constexpr std::string_view byte_order_mark = "\xEF\xBB\xBF";
constexpr std::size_t block = 1U << 16U;  // bytes that are read at once

}  // namespace

CsvReader::CsvReader(std::istream& in) : m_in(in) {
    m_fields.reserve(most_fields);
}

bool CsvReader::next() {
    const bool is_first = m_line == 0;
    m_record = m_position = m_field = m_next_record;
    m_line = m_next_line;
    m_state = State::field_start;
    m_fault = CsvFault::none;
    m_fields.clear();
    m_first_line_end = 0;
    if (is_first) {
        while (m_buffer.size() < byte_order_mark.size() && fill()) {
        }
        m_has_byte_order_mark = m_buffer.starts_with(byte_order_mark);
        if (m_has_byte_order_mark) m_record = m_position = m_field = byte_order_mark.size();
    }

    while (!scan()) {
        if (m_position - m_record >= longest) {
            skip_long_line();
            break;
        }
        try {
            if (fill()) continue;
        } catch (const std::bad_alloc&) {
            m_fields.clear();
            skip_long_line();
            m_fault = CsvFault::no_memory;
            break;
        }
        if (m_position == m_record) return false;
        if (m_state == State::quoted) break_record(CsvFault::open_quotes);
        if (m_fault == CsvFault::none) end_field();
        end_record(m_fault != CsvFault::none && m_first_line_end > 0 ? m_first_line_end : m_position);
        break;
    }
    if (is_first && m_separator == '\0') m_separator = separators.front();
    return true;
}

bool CsvReader::more_at_hand() const {
    return m_buffer.find('\n', m_next_record) != std::string::npos || m_in.rdbuf()->in_avail() > 0;
}

/// Goes on in the record.
/// @return whether its end is there
bool CsvReader::scan() {
    for (; m_position < std::min(m_buffer.size(), m_record + longest); ++m_position) {
        const char c = m_buffer[m_position];
        const bool ends_line = c == '\n';
        if (ends_line && m_first_line_end == 0) m_first_line_end = m_position + 1;
        if (ends_line && m_state != State::quoted) {
            const bool with_return = m_position > m_record && m_buffer[m_position - 1] == '\r';
            if (m_line == 1 && with_return) m_line_end = "\r\n";
            if (m_fault == CsvFault::none) end_field();
            end_record(m_fault == CsvFault::none ? m_position + 1 : m_first_line_end);
            return true;
        }
        step(c);
        if (m_state == State::broken && m_first_line_end > 0) {
            end_record(m_first_line_end);
            return true;
        }
    }
    return false;
}

/// Takes a character that does not end the record.
void CsvReader::step(char c) {
    const bool separates =
        m_separator == '\0' ? separators.find(c) != std::string_view::npos : c == m_separator;
    switch (m_state) {
        case State::quoted:
            if (c == '"') m_state = State::behind_quotes;
            return;
        case State::broken:
            return;
        case State::behind_quotes:
            if (c == '"') {
                m_state = State::quoted;
                return;
            }
            if (c == '\r') {
                m_state = State::behind_return;
                return;
            }
            break;
        case State::field_start:
        case State::plain:
        case State::behind_return:
            break;
    }
    if (separates && m_state != State::behind_return) {
        if (m_line == 1) m_separator = c;
        end_field();
        m_field = m_position + 1;
        m_state = State::field_start;
        if (m_fields.size() == most_fields) break_record(CsvFault::too_many_fields);
    } else if (m_state == State::behind_quotes || m_state == State::behind_return) {
        break_record(CsvFault::text_after_quotes);
    } else if (m_state == State::field_start) {
        m_state = c == '"' ? State::quoted : State::plain;
    }
}

void CsvReader::end_field() {
    std::string_view field = std::string_view(m_buffer).substr(m_field, m_position - m_field);
    const bool ends_record = m_position == m_buffer.size() || m_buffer[m_position] == '\n';
    if (ends_record && field.ends_with('\r')) field.remove_suffix(1);
    m_fields.push_back(field);
}

void CsvReader::break_record(CsvFault fault) {
    m_fault = fault;
    m_state = State::broken;
    // What stands behind the first line is read again.
    if (m_first_line_end == 0) return;
    const char* const end = m_buffer.data() + m_first_line_end;
    std::erase_if(m_fields, [&](std::string_view field) { return field.data() + field.size() >= end; });
}

void CsvReader::end_record(std::size_t next_record) {
    m_next_record = next_record;
    const auto record = std::string_view(m_buffer).substr(m_record, next_record - m_record);
    m_next_line += static_cast<std::size_t>(std::ranges::count(record, '\n'));
}

/// Gives up a record that is too long, but for the lines behind its first one.
void CsvReader::skip_long_line() {
    if (m_first_line_end > 0) {
        break_record(CsvFault::open_quotes);
        end_record(m_first_line_end);
        return;
    }
    break_record(CsvFault::too_long);
    m_fields.clear();
    const std::size_t line_end = m_buffer.find('\n', m_position);
    if (line_end != std::string::npos) {
        end_record(line_end + 1);
        return;
    }
    m_buffer.clear();
    m_record = m_next_record = 0;
    m_in.ignore(std::numeric_limits<std::streamsize>::max(), '\n');
    ++m_next_line;
}

/// Reads more of the stream behind the record, as much as is at hand. Waits where nothing is.
/// @return false at the end of the stream
bool CsvReader::fill() {
    if (m_in.peek() == std::istream::traits_type::eof()) return false;
    const char* const old = m_buffer.data() + m_record;
    m_buffer.erase(0, m_record);
    m_position -= m_record;
    m_field -= m_record;
    if (m_first_line_end > 0) m_first_line_end -= m_record;
    m_record = 0;
    const std::size_t size = m_buffer.size();
    const auto at_hand = static_cast<std::size_t>(std::max<std::streamsize>(m_in.rdbuf()->in_avail(), 1));
    m_buffer.resize(size + std::min(at_hand, block));
    const std::streamsize count =
        m_in.readsome(m_buffer.data() + size, static_cast<std::streamsize>(m_buffer.size() - size));
    m_buffer.resize(size + static_cast<std::size_t>(count));
    for (std::string_view& field : m_fields)
        field = {m_buffer.data() + (field.data() - old), field.size()};
    return count > 0;
}

std::string csv_value(std::string_view field) {
    if (!field.starts_with('"')) return std::string(field);
    std::string value;
    for (std::size_t i = 1; i + 1 < field.size(); ++i) {
        value += field[i];
        if (field[i] == '"') ++i;
    }
    return value;
}

std::string csv_field(std::string_view value, char separator) {
    const bool plain = value.find_first_of("\"\r\n") == std::string_view::npos &&
                       value.find(separator) == std::string_view::npos;
    if (plain) return std::string(value);
    std::string field = "\"";
    for (const char c : value) {
        field += c;
        if (c == '"') field += c;
    }
    return field + '"';
}

}  // namespace coltre
