#pragma once

#include "drawings/drawing.h"
#include "engine/calculation.h"

// One sketch a calculation; sketches.h says what each holds.
namespace coltre {

Drawing one_pitch_sketch(const Entries& entries, const ProgramCells* loads);
Drawing two_pitches_sketch(const Entries& entries, const ProgramCells* loads);
Drawing several_pitches_sketch(const Entries& entries, const ProgramCells* loads);
Drawing cylindrical_sketch(const Entries& entries, const ProgramCells* loads);
Drawing level_change_sketch(const Entries& entries, const ProgramCells* loads, bool drift_length_shown);
Drawing wall_sketch(const Entries& entries, const ProgramCells* loads);
Drawing snow_guard_sketch(const Entries& entries);

/// What a calculation would give for a ground load of 1 kN/m2: the ordinates of a sketch before any
/// calculation.
ProgramCells results_of_unit_ground_load(const Entries& entries);

}  // namespace coltre
