#pragma once

namespace coltre {

/// What the windows share besides the program's cells.
struct WindowValues {
    double working_value = 0;  ///< the number that `Form2` asks for
};

}  // namespace coltre
