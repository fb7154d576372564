#pragma once

#include "engine/calculation.h"
#include "report/report_file.h"

// The report coltrecasipart.txt. The numbers stay in kN and m whatever the heading says of the units:
// deliberate.
namespace coltre {

void write_special_cases_heading(ReportFile& report, const ReportData& data, const ProgramCells& cells);

/// The section of a special case, its results in the cells; nothing for a case that stopped.
void write_special_case(ReportFile& report, const ReportData& data, const ProgramCells& cells,
                        const Entries& entries, const Calculation& calculation);

}  // namespace coltre
