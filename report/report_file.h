#pragma once

#include <string>
#include <string_view>

#include "engine/program_cells.h"
#include "platform/file_replacement.h"
#include "platform/messages.h"

namespace coltre {

/// A line of a report under construction. Columns are 1-based and count characters.
class ReportLine {
  public:
    explicit ReportLine(std::string_view text) : m_text(text) {}

    /// Adds blanks so that the next text starts at the column; nothing if the line is already past it.
    ReportLine& tab(std::size_t column);
    /// Adds blanks up to the next print zone; zones start at columns 1, 15, 29, 43 and so on.
    ReportLine& next_zone();
    ReportLine& add(std::string_view text);

    [[nodiscard]] const std::string& text() const { return m_text; }

  private:
    std::string m_text;
};

/// What both reports say of the site and the calculation in their heading.
struct ReportHeading {
    std::string_view unit_caption;  ///< the words before the units: the two reports write them differently
    std::string_view job_name;
    UnitSystem unit_system;
    SnowZone zone;         ///< printed as its code: deliberate
    double altitude;       ///< m, as typed
    double return_period;  ///< years
    std::string_view qsk;  ///< formatted ground load
};

/// A text report while it is written: it takes its place on disk when it is closed.
class ReportFile {
  public:
    /// @param suite_path  the report, in the suite's notation
    ReportFile(std::string_view suite_path, Messages& messages);

    void line(std::string_view utf8);
    void line(const ReportLine& line) { this->line(line.text()); }
    void blank_line() { line(std::string_view{}); }
    void heading(const ReportHeading& heading);

    /// The report's path, in the suite's notation.
    [[nodiscard]] const std::string& name() const { return m_name; }

    /// Puts the report in place.
    void close() { static_cast<void>(m_file.commit()); }

    /// What to tell the user where the file could not be created or written, in Italian; empty while all is
    /// well.
    [[nodiscard]] std::string failure() const;

    /// The number through formatta(), with a scale factor of 1.
    [[nodiscard]] std::string formatted(double value, std::string_view directives,
                                        std::string_view conversion = {}) const;

  private:
    std::string m_name;
    FileReplacement m_file;
    Messages& m_messages;
};

}  // namespace coltre
