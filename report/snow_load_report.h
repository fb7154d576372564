#pragma once

#include "engine/calculation.h"
#include "report/report_file.h"

// The report coltre.txt, in the unit system of the cells.
namespace coltre {

void write_snow_load_heading(ReportFile& report, const ReportData& data, const ProgramCells& cells);

/// The section of the roof with the load cases that are complete; nothing where there are none.
void write_roof(ReportFile& report, const ReportData& data, const ProgramCells& cells, const Entries& entries,
                const Calculation& calculation);

}  // namespace coltre
