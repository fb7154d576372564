#pragma once

#include <QString>

class QWidget;

namespace coltre {

/// Asks where to save a file, and before an existing one is replaced.
/// @param suggested  whose suffix a name without one gets
/// @return empty where the user would rather not
QString choose_file_to_save(QWidget* parent, const QString& title, const QString& suggested,
                            const QString& filter);

/// Asks which file to open.
/// @param suggested  where the choice begins
QString choose_file_to_open(QWidget* parent, const QString& title, const QString& suggested,
                            const QString& filter);

}  // namespace coltre
