#pragma once

#include <span>
#include <string>
#include <string_view>

#include "engine/checked.h"
#include "engine/program_cells.h"
#include "platform/file_replacement.h"
#include "platform/messages.h"

namespace coltre {

/// What the reports print besides results and entries.
struct ReportData {
    std::string_view JobName;
    double altitude;                       ///< m, as typed, also above 1500
    std::span<const std::string> entries;  ///< the texts of the calculation's entries, as typed
};

/// What both reports say of the site and the calculation in their heading, before the ground load.
struct ReportHeading {
    std::string_view unit_caption;  ///< the words before the units: the two reports write them differently
    std::string_view job_name;
    UnitSystem unit_system;
    SnowZone zone;         ///< printed as its code: deliberate
    double altitude;       ///< m, as typed
    double return_period;  ///< years
};

/// A text report while it is written: it takes its place on disk when it is closed.
class ReportFile {
  public:
    /// @param suite_path  the report, in the suite's notation
    ReportFile(std::string_view suite_path, Messages& messages);

    /// Writes nothing from a fault() on: the report ends before the line of that number.
    void line(std::string_view utf8);
    void blank_line() { line(std::string_view{}); }
    void heading(const ReportHeading& heading);

    /// The report's path, in the suite's notation.
    [[nodiscard]] const std::string& name() const { return m_name; }

    /// Puts the report in place.
    void close() { static_cast<void>(m_file.commit()); }

    /// What to tell the user where the file could not be created or written: a whole sentence.
    [[nodiscard]] Failure failure() const;

    /// Fault::numeric_error once a number was too large for formatted().
    [[nodiscard]] Fault fault() const { return m_fault; }

    /// The number through formatta(), with a scale factor of 1; empty at a fault().
    [[nodiscard]] std::string formatted(double value, std::string_view directives,
                                        std::string_view conversion = {});

  private:
    std::string m_name;
    FileReplacement m_file;
    Messages& m_messages;
    Fault m_fault = Fault::none;
};

}  // namespace coltre
