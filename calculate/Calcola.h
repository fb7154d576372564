#pragma once

#include "calculate/click.h"
#include "calculate/entry_reader.h"
#include "startup/program.h"

namespace coltre {

/// Texts and states of the main window's controls at the moment of the click. Numbers are read
/// leniently.
struct MainWindowFields {
    std::string asinput;       ///< altitude, m
    std::string ComboEsp;      ///< exposure coefficient CE
    std::string TextCTermico;  ///< thermal coefficient Ct
    RoofFamily SSTab1 = RoofFamily::one_pitch;
    std::string inputalfa;               ///< one pitch, degrees
    std::string inputalfa1, inputalfa2;  ///< two pitches
    std::string inputalfa3, inputalfa4;  ///< several pitches
    std::string Lcopcil, hcopcil;        ///< cylindrical: width and rise, m
    std::string udmcombo;                ///< unit system of the report
    bool Check1Box = false;              ///< write the report
};

/// The roof of the selected tab, read as the calculation reads it.
Roof read_roof(const MainWindowFields& fields, EntryReader& reader);

/// The road of a click on `Calcola`: ground load, unit system, heading of the report, load cases of the
/// selected roof, end of the report. Results go into the program's cells, coltre.txt into its WorkDirectory.
/// Told on the way: an altitude above 1500 m, a cylindrical roof that cannot be, the report written or not
/// written, and any fault that stops the calculation; all that was computed before it stays.
ClickOutcome Calcola(const MainWindowFields& fields, Program& program);

}  // namespace coltre
