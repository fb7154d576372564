#pragma once

#include "ui/sketches/sketch_widget.h"
#include "ui/user_dialogs.h"

namespace coltre {

/// Gives a sketch its result labels, the name that it is saved under first, and a way to tell what goes
/// wrong.
/// @param dialogs  outlive the sketch
void set_up_sketch(SketchWidget& sketch, const char* suggested_name, UserDialogs& dialogs);

}  // namespace coltre
