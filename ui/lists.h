#pragma once

#include <QComboBox>
#include <span>
#include <string_view>

namespace coltre {

/// Fills an empty list and selects one of its items.
/// @param selected  from 0
void fill(QComboBox& list, std::span<const std::string_view> items, int selected);

/// Keeps the mouse wheel from choosing entries of the closed lists of a window: a turn over a list that
/// happens to lie under the pointer would change the site or a coefficient unseen.
void leave_lists_to_clicks_and_keys(QWidget& window);

}  // namespace coltre
