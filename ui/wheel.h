#pragma once

#include <QWidget>

namespace coltre {

/// Keeps the mouse wheel from choosing entries of the closed lists of a window: a turn over a list that
/// happens to lie under the pointer would change the site or a coefficient unseen.
void leave_lists_to_clicks_and_keys(QWidget& window);

}  // namespace coltre
