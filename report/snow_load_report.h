#pragma once

#include <string>
#include <string_view>

#include "engine/calculation.h"
#include "report/report_file.h"
#include "report/unit_systems.h"

namespace coltre {

/// What the snow load report prints besides the results.
struct SnowLoadReportData {
    std::string_view WorkDirectory;
    std::string_view JobName;
    std::string_view Lcopcil;  ///< width of a cylindrical roof, printed as typed
    std::string_view hcopcil;  ///< its rise, likewise
    double altitude;           ///< m, as typed, also above 1500
};

/// The report coltre.txt: its heading when it is opened, then the lines of each load case as soon as it is
/// computed, in the unit system of the cells.
class SnowLoadReport : public Report {
  public:
    /// Opens the report and writes the heading. After a failure file().failure() says why.
    /// @param cells  qsk, zone, return period and unit system are read now, L1 when the roof is told
    SnowLoadReport(const SnowLoadReportData& data, const ProgramCells& cells, MessageBoxes& message_boxes);

    void on_roof(const Roof& roof) override;
    void on_load_case(const LoadCase& load_case) override;

    [[nodiscard]] ReportFile& file() override { return m_file; }
    [[nodiscard]] Message confirmation() const override;

  private:
    std::string m_path;
    std::string m_Lcopcil;
    std::string m_hcopcil;
    const ProgramCells& m_cells;
    ConversionDirectives m_conversion;
    ReportFile m_file;
    std::size_t m_label_width = 0;
};

}  // namespace coltre
