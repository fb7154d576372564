#pragma once

#include <QComboBox>
#include <QTableView>
#include <span>
#include <string_view>

namespace coltre {

// What the windows have in common.

/// Puts the contents of a window into a scroll area: where the screen is too small for them scroll bars come,
/// and nothing is out of reach.
/// @return what is scrolled: the ground under the controls
QWidget& let_contents_scroll(QWidget& window);

/// Gives a window whose contents scroll the size that it was designed with, or more where its contents need
/// it, but no more than its screen has room for.
void fit_to_screen(QWidget& window);

/// Shows a window, over all others.
void bring_to_front(QWidget& window);

/// Tells screen readers which of the widgets are windows and pictures: by itself either is a box without
/// meaning.
void tell_roles_to_screen_readers();

/// Has buttons and check boxes answer to their mnemonics at once. By themselves they do so a tenth of a
/// second later, when the next key may have been pressed already: Alt+R, Enter would calculate without the
/// report.
void answer_mnemonics_at_once(QWidget& window);

/// Fills an empty list. Before its window is laid out: a list keeps the least width that it had when it was
/// first measured.
void fill(QComboBox& list, std::span<const std::string_view> items);

/// Gives the rows of a table, all alike, the height of their text.
void set_row_height(QTableView& table);

/// Keeps the mouse wheel from choosing entries of the closed lists of a window: a turn over a list that
/// happens to lie under the pointer would change the site or a coefficient unseen.
void leave_lists_to_clicks_and_keys(QWidget& window);

}  // namespace coltre
