#include "ui/sketches/sketches.h"

#include "ui/sketches/families.h"

namespace coltre {

Drawing sketch_roof(const Roof& roof, const ProgramCells* loads) {
    switch (roof.family) {
        case RoofFamily::one_pitch:
            return one_pitch_sketch(roof, loads);
        case RoofFamily::two_pitches:
            return two_pitches_sketch(roof, loads);
        case RoofFamily::several_pitches:
            return several_pitches_sketch(roof, loads);
        case RoofFamily::cylindrical:
            return cylindrical_sketch(roof, loads);
    }
    return {};
}

Drawing sketch_special_case(const SpecialCaseEntries& entries, const ProgramCells* loads) {
    switch (entries.special_case) {
        case SpecialCase::level_change:
            return level_change_sketch(entries, loads);
        case SpecialCase::wall:
            return wall_sketch(entries, loads);
        case SpecialCase::snow_guard:
            return snow_guard_sketch(entries);
    }
    return {};
}

}  // namespace coltre
