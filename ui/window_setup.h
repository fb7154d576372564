#pragma once

#include <QComboBox>
#include <span>
#include <string_view>

namespace coltre {

// What the windows have in common.

/// Makes the window no larger than its screen has room for, as far as its contents allow: its buttons are to
/// be within reach.
void fit_to_screen(QWidget& window);

/// Has buttons and check boxes answer to their mnemonics at once. By themselves they do so a tenth of a
/// second later, when the next key may have been pressed already: Alt+R, Enter would calculate without the
/// report.
void answer_mnemonics_at_once(QWidget& window);

/// Fills an empty list and selects one of its items.
/// @param selected  from 0
void fill(QComboBox& list, std::span<const std::string_view> items, int selected);

/// Keeps the mouse wheel from choosing entries of the closed lists of a window: a turn over a list that
/// happens to lie under the pointer would change the site or a coefficient unseen.
void leave_lists_to_clicks_and_keys(QWidget& window);

}  // namespace coltre
