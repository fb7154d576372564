#pragma once

#include "calculate/click.h"
#include "calculate/entry_reader.h"
#include "startup/program.h"

namespace coltre {

/// Texts and states at the moment of a click on `Calcola2`.
struct SpecialCasesFields {
    // Of the main window, read leniently.
    std::string asinput;       ///< altitude, m
    std::string ComboEsp;      ///< exposure coefficient CE
    std::string TextCTermico;  ///< thermal coefficient Ct
    // Of the special cases window. Level change and wall are read strictly, the snow guard leniently.
    SpecialCase cartelle = SpecialCase::level_change;
    std::string b1input, b2input, h2input, deltainput;  ///< level change: b1, b2, h in m, slope in degrees
    std::string h3input;                                ///< wall: height, m
    std::string qsinput, biinput, angoloinput;          ///< snow guard: kN/m2, m, degrees
    std::string udmcombo;                               ///< unit system of the report's heading
    bool Check1Box = false;                             ///< write the report
    char decimal_separator = '.';                       ///< of the user's locale, for the strict fields
};

/// The entries of the selected page, read as the calculation reads them.
SpecialCaseEntries read_entries(const SpecialCasesFields& fields, EntryReader& reader);

/// The road of a click on `Calcola2`: design ground load (written back into the shared qsk cell: intended),
/// unit system, heading of the report, the special case of the selected page, end of the report. Results go
/// into the program's cells, coltrecasipart.txt into its WorkDirectory. An altitude above 1500 m is not told
/// here.
ClickOutcome Calcola2(const SpecialCasesFields& fields, Program& program);

}  // namespace coltre
