#include "ui/pagination.h"

#include <algorithm>
#include <cstddef>
#include <numeric>

namespace coltre {

namespace {

/// The end of the group that begins with an item: behind the first item that is not kept with its next.
std::size_t end_of_group(const std::vector<FlowItem>& items, std::size_t first) {
    while (items[first].keep_with_next && first + 1 < items.size())
        ++first;
    return first + 1;
}

/// Height of a group that begins a page.
double height_at_top(const std::vector<FlowItem>& items, std::size_t first, std::size_t end) {
    double height = items[first].repeated + items[first].height;
    for (std::size_t i = first + 1; i < end; ++i)
        height += items[i].gap + items[i].height;
    return height;
}

}  // namespace

std::vector<PlaceOnPages> paginate(const std::vector<FlowItem>& items, double page_height) {
    std::vector<PlaceOnPages> places;
    places.reserve(items.size());
    int page = 0;
    double filled = 0;
    const auto turn_page = [&] {
        ++page;
        filled = 0;
    };
    for (std::size_t first = 0; first < items.size();) {
        const std::size_t end = end_of_group(items, first);
        const double group = height_at_top(items, first, end);
        const double here = items[first].gap + group - items[first].repeated;
        if (filled > 0 && filled + here > page_height && group <= page_height) turn_page();
        for (; first < end; ++first) {
            const FlowItem& item = items[first];
            if (filled > 0 && filled + item.gap + item.height > page_height) turn_page();
            const bool begins_page = filled == 0;
            const double top = begins_page ? item.repeated : filled + item.gap;
            places.push_back({page, top, begins_page});
            filled = top + item.height;
        }
    }
    return places;
}

std::vector<double> column_widths(const std::vector<double>& natural, double room) {
    std::vector<std::size_t> narrow_first(natural.size());
    std::iota(narrow_first.begin(), narrow_first.end(), std::size_t{0});
    std::ranges::sort(narrow_first, {}, [&](std::size_t i) { return natural[i]; });
    std::vector<double> widths(natural.size());
    std::size_t left = natural.size();
    for (const std::size_t i : narrow_first) {
        widths[i] = std::min(natural[i], room / static_cast<double>(left--));
        room -= widths[i];
    }
    return widths;
}

}  // namespace coltre
