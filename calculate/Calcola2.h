#pragma once

#include "calculate/click.h"

namespace coltre {

/// A click on `Calcola2`: design ground load (written back into the shared qsk cell: intended), unit system,
/// heading of the report, the special case, end of the report. Results go into the program's cells,
/// coltrecasipart.txt into its WorkDirectory. An altitude above 1500 m gives no message here.
/// @param fields  the site and coefficients are those of the main window
Outcome Calcola2(const Fields& fields, Program& program);

}  // namespace coltre
