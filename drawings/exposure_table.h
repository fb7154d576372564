#pragma once

#include "drawings/drawing.h"

namespace coltre {

/// The table of the exposure coefficient CE with its three topographies.
Drawing exposure_table();

}  // namespace coltre
