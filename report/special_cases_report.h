#pragma once

#include <string>
#include <string_view>

#include "engine/calculation.h"
#include "report/report_file.h"

namespace coltre {

/// What the special cases report prints besides the results.
struct SpecialCasesReportData {
    std::string_view WorkDirectory;
    std::string_view JobName;
    std::string_view angoloinput;  ///< slope at the snow guard, printed as typed
    double altitude;               ///< m, as typed
};

/// The report coltrecasipart.txt: its heading when it is opened, then the section of the special case when
/// that is complete. The numbers stay in kN and m whatever the heading says of the units: deliberate.
class SpecialCasesReport : public Report {
  public:
    /// Opens the report and writes the heading. After a failure file().failure() says why.
    SpecialCasesReport(const SpecialCasesReportData& data, const ProgramCells& cells,
                       MessageBoxes& message_boxes);

    void on_special_case(const SpecialCaseEntries& entries) override;

    [[nodiscard]] ReportFile& file() override { return m_file; }
    [[nodiscard]] Message confirmation() const override;

  private:
    void load_table(double mu2, double qs1, double qs2, double ls);

    std::string m_angoloinput;
    const ProgramCells& m_cells;
    ReportFile m_file;
};

}  // namespace coltre
