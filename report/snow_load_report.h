#pragma once

#include <string_view>

#include "engine/calculation.h"
#include "report/report_file.h"

// The report coltre.txt, in the unit system of the cells.
namespace coltre {

/// What the snow load report prints besides the results.
struct SnowLoadReportData {
    std::string_view JobName;
    std::string_view Lcopcil;  ///< width of a cylindrical roof, printed as typed
    std::string_view hcopcil;  ///< its rise, likewise
    double altitude;           ///< m, as typed, also above 1500
};

void write_heading(ReportFile& report, const SnowLoadReportData& data, const ProgramCells& cells);

/// The section of the roof with the load cases that are complete; nothing where there are none.
void write_roof(ReportFile& report, const SnowLoadReportData& data, const ProgramCells& cells,
                const Roof& roof, const Calculation& calculation);

}  // namespace coltre
