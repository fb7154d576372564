#pragma once

#include <QString>
#include <string_view>

namespace coltre {

/// A text of the rooms below, in UTF-8, as one of Qt's.
inline QString qt(std::string_view utf8) {
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

}  // namespace coltre
