#include "ui/clipboard.h"

#include <QClipboard>
#include <QGuiApplication>

namespace coltre {

bool put_on_clipboard(std::unique_ptr<QMimeData> data) {
    const QMimeData* const put = data.get();
    QClipboard& clipboard = *QGuiApplication::clipboard();
    clipboard.setMimeData(data.release());
    // Where another program owns it, its data come back.
    return clipboard.mimeData() == put;
}

}  // namespace coltre
