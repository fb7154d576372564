#pragma once

#include <QMimeData>
#include <QString>
#include <memory>

namespace coltre {

/// @return false if the clipboard does not take the data: another program may hold it
bool put_on_clipboard(std::unique_ptr<QMimeData> data);

/// What is said then.
inline const QString clipboard_refuses =
    QStringLiteral("Gli appunti non accettano la copia: li occupa un altro programma. Riprovare.");

}  // namespace coltre
