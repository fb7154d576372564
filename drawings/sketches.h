#pragma once

#include <span>
#include <string>

#include "drawings/drawing.h"
#include "engine/calculation.h"

// The sketches of the seven calculations, from entries and results.
//
// Scale. A pitch is drawn at its true slope, lengths in one scale. Pitches alone give no size: each slope
// takes the width that its room allows. A length that would leave the page or vanish in it (a lower roof of a
// thousand drift lengths, a step of some centimetres beside a wide roof) is drawn at the limit of its room
// and its dimension line carries a break mark: the slopes stay true, and so does the value written. Load
// ordinates have a scale of their own, the largest of the sketch being as tall as its room; a negative load
// has none.
//
// Entries that make no roof (pitches outside [0, 90[, lengths outside [0.01, 100000] m or not finite, a rise
// of more than half the width) give a neutral sketch: an ordinary shape without values and dimensions, with
// every label at its usual place.
namespace coltre {

/// Where the drift line of the level change ends on its roof, twips of the sketch.
inline constexpr double drift_end_whole = 4680;  ///< the drift lies wholly on the lower roof
inline constexpr double drift_end_cut = 5160;    ///< the drift is cut at the end of the lower roof

/// What is said of numbers that belong to other entries than those on show.
inline constexpr const char* pending_results = "risultati non aggiornati: premere Calcola";

/// Says on the drawing that the numbers in its labels belong to the entries of the last calculation, not to
/// these.
void mark_as_pending(Drawing& drawing);

/// Writes small lines above the drawing, in this order.
void add_notes(Drawing& drawing, std::span<const std::string> notes);

/// Whether a calculated drift of a level change lies wholly on the lower roof: its length is shown.
/// @param loads  the results of these entries
bool drift_lies_on_roof(const Entries& entries, const ProgramCells& loads);

/// A calculation's load cases with the slots of their labels. A load that acts in several places has its
/// label at the first, and repeats its number at the others:
///  - one pitch: carico_1; spor_1 at the eaves
///  - two pitches: carico_2 and carico_3 both sides full, carico_4 and carico_5 side 1 halved, carico_6 and
///    carico_7 side 2 halved; spor_2 (side 1 full), spor_3 (side 1 halved), spor_4 (side 2 full), spor_5
///    (side 2 halved) at the eaves
///  - several pitches: carico_8 side 1, carico_9 valley, carico_10 side 2
///  - cylindrical: carico_11, spor_8, L1output uniform load; carico_12, spor_9, carico_13, spor_10, L2output
///    asymmetric load. L1 may come out wider than the roof: its zone is drawn as wide as the roof.
///  - level change: carico_14 at the step, carico_15 at the end of the drift, lsoutput. The Role::drift_line
///    of a drift that is cut at the end of the lower roof ends at drift_end_cut, and with its results
///    lsoutput and the four elements of Role::drift_length are away. They come and go with a calculation
///    alone: before, they stay as they were.
///  - wall: carico_17 at the wall, carico_16 at the end of the drift; in section ls2outputA, in plan
///    ls2outputB
///  - snow guard: Fsoutput
/// @param loads  the results of these entries, or null: ordinates follow the shape coefficients, for a ground
///               load of 1 kN/m2
/// @param drift_length_shown  without results: whether the length of the drift was shown last
Drawing sketch(const Entries& entries, const ProgramCells* loads, bool drift_length_shown = true);

}  // namespace coltre
