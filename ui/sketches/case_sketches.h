#pragma once

#include "engine/calculation.h"
#include "ui/sketches/drawing.h"

// One sketch a roof family and a special case; sketches.h says what each holds.
namespace coltre {

Drawing one_pitch_sketch(const Roof& roof, const ProgramCells* loads);
Drawing two_pitches_sketch(const Roof& roof, const ProgramCells* loads);
Drawing several_pitches_sketch(const Roof& roof, const ProgramCells* loads);
Drawing cylindrical_sketch(const Roof& roof, const ProgramCells* loads);

/// What a calculation would give for a ground load of 1 kN/m2: the ordinates of a sketch before any
/// calculation.
ProgramCells results_of_unit_ground_load(const Roof& roof);
ProgramCells results_of_unit_ground_load(const SpecialCaseEntries& entries);

Drawing level_change_sketch(const SpecialCaseEntries& entries, const ProgramCells* loads);
Drawing wall_sketch(const SpecialCaseEntries& entries, const ProgramCells* loads);
Drawing snow_guard_sketch(const SpecialCaseEntries& entries);

}  // namespace coltre
