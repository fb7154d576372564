#pragma once

#include <cstddef>
#include <istream>
#include <span>
#include <string>
#include <string_view>
#include <vector>

// Comma-separated values (RFC 4180) as spreadsheets write them: fields with ",", ";" or a tab between them,
// lines with LF or CR LF at their end. A field in quotation marks may hold separators, line ends and, each
// written twice, quotation marks. In a field without them a quotation mark is a character like others.
namespace coltre {

/// What is wrong with a record.
enum class CsvFault { none, open_quotes, text_after_quotes, too_many_fields, too_long, no_memory };

/// The records of a stream, in memory that does not grow with it. The first of the separators that stands in
/// the first line, outside of quotation marks, separates all fields. Of a record with a fault only the first
/// line is taken: quotation marks that nothing closes do not swallow the lines behind them.
class CsvReader {
  public:
    explicit CsvReader(std::istream& in);

    /// Reads the next record.
    /// @return false at the end of the stream
    bool next();

    /// Whether a further line can be read, whole or in part, without waiting for it.
    [[nodiscard]] bool more_at_hand() const;

    /// The fields of the record as they stand there, with their quotation marks; before a fault those that
    /// are whole. Valid up to the next record.
    [[nodiscard]] std::span<const std::string_view> fields() const { return m_fields; }
    [[nodiscard]] CsvFault fault() const { return m_fault; }
    /// Of the record's start, from 1.
    [[nodiscard]] std::size_t line() const { return m_line; }

    /// Of the stream: known with its first record.
    [[nodiscard]] char separator() const { return m_separator; }
    [[nodiscard]] std::string_view line_end() const { return m_line_end; }
    [[nodiscard]] bool has_byte_order_mark() const { return m_has_byte_order_mark; }

    static constexpr std::size_t longest = 1U << 20U;  ///< record, bytes: far beyond any request
    static constexpr std::size_t most_fields = 128;

  private:
    enum class State { field_start, plain, quoted, behind_quotes, behind_return, broken };

    bool scan();
    void step(char c);
    void end_field();
    void break_record(CsvFault fault);
    void end_record(std::size_t next_record);
    void skip_long_line();
    bool fill();

    std::istream& m_in;
    std::string m_buffer;
    std::size_t m_record = 0;    // where it starts in the buffer
    std::size_t m_position = 0;  // up to where it has been read
    std::size_t m_next_record = 0;
    std::size_t m_field = 0;           // where the field starts
    std::size_t m_first_line_end = 0;  // behind the record's first line; 0 while that goes on
    std::vector<std::string_view> m_fields;
    State m_state = State::field_start;
    CsvFault m_fault = CsvFault::none;
    std::size_t m_line = 0;
    std::size_t m_next_line = 1;
    char m_separator = '\0';
    std::string_view m_line_end = "\n";
    bool m_has_byte_order_mark = false;
};

/// What a field says: without its quotation marks, those inside it once.
/// @param field  whole, as it stands in the file
std::string csv_value(std::string_view field);

/// The value as a field: in quotation marks where it needs them.
std::string csv_field(std::string_view value, char separator);

}  // namespace coltre
