#pragma once

#include <QWidget>
#include <functional>

#include "startup/program.h"
#include "ui/site_fields.h"
#include "ui/user_dialogs.h"

namespace coltre {

/// The window of the special cases, not shown yet.
QWidget* new_special_cases(Program& program, UserDialogs& dialogs, std::function<SiteFields()> site_fields,
                           std::function<void()> show_ground_load, QWidget* parent);

}  // namespace coltre
