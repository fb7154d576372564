#pragma once

#include <QMimeData>
#include <QString>
#include <memory>
#include <vector>

#include "engine/results.h"

namespace coltre {

/// A result as its label shows it.
struct ShownResult {
    QString meaning;  ///< "Carico neve sulla copertura, falda"
    double value = 0;
    Quantity quantity;
};

/// Results for the clipboard, a row each of meaning, number and unit: text with tabs for a spreadsheet, a
/// table for a word processor. Numbers are rounded as the labels show them, with the decimal separator of the
/// user.
/// @param remark  what is to be known of them, in a row above; empty: nothing
std::unique_ptr<QMimeData> copied(const std::vector<ShownResult>& results, const QString& remark);

}  // namespace coltre
