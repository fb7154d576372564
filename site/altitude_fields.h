#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

// The fields of an altitude file, as its readers see them: bytes in Windows-1252, one character each.
namespace coltre {

/// Reads fields from the front to the back. A field starts behind the blanks at its beginning and stops at a
/// line end (CR LF, LF or CR) or at a comma, behind which the next field begins. Blanks at its end belong to
/// it.
class FieldReader {
  public:
    /// @param position  where the first field begins
    explicit FieldReader(std::string_view bytes, std::size_t position = 0)
        : m_bytes(bytes), m_position(position) {}

    /// Goes on to the next field.
    /// @return false, with all as it was, at the end of the file
    bool next();

    [[nodiscard]] bool at_end() const { return m_position == m_bytes.size(); }
    [[nodiscard]] std::string_view field() const { return m_field; }
    /// The field with the blanks before it.
    [[nodiscard]] std::string_view raw() const { return m_raw; }
    /// What ended the field: a comma, the bytes of a line end, or nothing at the end of the file.
    [[nodiscard]] std::string_view ending() const { return m_ending; }

  private:
    std::string_view m_bytes;
    std::size_t m_position;
    std::string_view m_field, m_raw, m_ending;
};

/// A reader of what follows the first field that equals `wanted`; nothing if there is none.
std::optional<FieldReader> find_field(std::string_view bytes, std::string_view wanted);

/// The municipality's name in a field: the text before the first blank; nothing if there is no blank.
std::optional<std::string_view> municipality_of(std::string_view field);

/// The altitude in a field: its last four characters without the blanks around them.
std::string_view altitude_of(std::string_view field);

}  // namespace coltre
