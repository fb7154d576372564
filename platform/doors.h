#pragma once

#include "platform/message_boxes.h"
#include "platform/program_end.h"

namespace coltre {

/// What the core needs of whoever runs it: the window, the command or a test.
struct Doors {
    MessageBoxes& message_boxes;
    ProgramEnd& program_end;
};

}  // namespace coltre
