#pragma once

#include <vector>

// Where the parts of a long text stand on its pages. No Qt, no fonts: sizes in, places out.
namespace coltre {

/// What is never split: a line of text, a row of a table, a figure with its caption. Lengths in one unit.
struct FlowItem {
    double height = 0;
    double gap = 0;               ///< above it; away at the top of a page
    bool keep_with_next = false;  ///< a heading stays with what follows
    double repeated = 0;  ///< height of what stands above it where it begins a page: its table's header
};

struct PlaceOnPages {
    int page = 0;    ///< from 0
    double top = 0;  ///< of the item itself, from the top of the page's text
    bool begins_page = false;
};

/// Places the items on pages, in their order. Items that are kept together stand on one page unless they are
/// taller than it; an item taller than a page has one to itself and reaches over its end.
/// @return a place for each item
std::vector<PlaceOnPages> paginate(const std::vector<FlowItem>& items, double page_height);

/// Widths of columns that together are no wider than the room: those that need less than their share have
/// what they need, the others share the rest.
/// @param natural  what each needs not to break its texts
std::vector<double> column_widths(const std::vector<double>& natural, double room);

}  // namespace coltre
