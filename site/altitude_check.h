#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "platform/failure.h"

// What in an altitude file would make a reader fail or take something else than was meant.
//
// Faults are: a province without its header, without municipalities, or not closed by an empty line; in the
// block that counts for a province (the first of its name) a line without a blank, with a comma, a tab, or
// more words than two, and an altitude that is no number or not just the last four characters; a sound line
// of a new municipality behind the empty line that closed the block; a file in UTF-8.
//
// No faults are: text before the first header, later blocks of a province, blocks under another name, a
// repeated copy of a block without a header. No reader ever gets there. Nor is a name that occurs twice: the
// first counts.
namespace coltre {

/// A fault of an altitude file. The texts live as long as the program.
struct AltitudeFault {
    std::size_t line = 0;       ///< 1 for the first; 0 where something is missing from the whole file
    std::string_view province;  ///< empty for a fault of the whole file
    std::string_view reason;    ///< in Italian, as part of a sentence
};

/// The fault as a line of a list, "riga 3530: Vicenza: manca lo spazio tra il nome e l'altitudine".
std::string text_of(const AltitudeFault& fault);

/// What came of going through an altitude file.
struct AltitudeInspection {
    /// Those with a line first, in the order of the lines. The built-in table has two: the line "33543" in
    /// Vicenza, and Oristano's block that nothing closes.
    std::vector<AltitudeFault> faults;
    /// The file without its faults: in it there are none. All other lines stay byte for byte. A faulty line
    /// is brought into shape if its altitude can be told, else it takes the built-in altitude of its
    /// municipality, else it is dropped. A province without header or municipalities gets its built-in block.
    std::string repaired;
};

/// @param file  its bytes, any bytes at all
AltitudeInspection inspect_altitudes(std::string_view file);

/// What became of the check or the repair of altitudini.txt.
struct AltitudeFileCheck {
    Failure failure;                    ///< why the file could not be read or replaced
    std::vector<AltitudeFault> faults;  ///< found; after a repair they are gone
    std::string kept_name;  ///< of the file as it was before the repair; empty if none was replaced
};

/// Checks altitudini.txt.
/// @param ProgramDirectory  in the suite's notation
AltitudeFileCheck check_altitude_file(std::string_view ProgramDirectory);

/// Repairs altitudini.txt in one step; the file as it was is kept, see replace_altitude_file(). A file
/// without faults is left alone. Where there is no file yet, the repaired built-in table is put there.
AltitudeFileCheck repair_altitude_file(std::string_view ProgramDirectory);

}  // namespace coltre
