#pragma once

#include <string_view>

#include "engine/calculation.h"
#include "report/report_file.h"

// The report coltrecasipart.txt. The numbers stay in kN and m whatever the heading says of the units:
// deliberate.
namespace coltre {

/// What the special cases report prints besides the results.
struct SpecialCasesReportData {
    std::string_view JobName;
    std::string_view angoloinput;  ///< slope at the snow guard, printed as typed
    double altitude;               ///< m, as typed
};

void write_heading(ReportFile& report, const SpecialCasesReportData& data, const ProgramCells& cells);

/// The section of a special case, its results in the cells.
void write_special_case(ReportFile& report, const SpecialCasesReportData& data, const ProgramCells& cells,
                        const SpecialCaseEntries& entries);

}  // namespace coltre
