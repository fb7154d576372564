#include "ui/pagination.h"

#include <gtest/gtest.h>

#include <string>

namespace coltre {
namespace {

constexpr FlowItem line{10};
constexpr FlowItem paragraph{10, 4};
constexpr FlowItem heading{10, 8, true};
constexpr FlowItem table_header{10, 4, true};
constexpr FlowItem row{10, 0, false, 10};

struct Case {
    const char* name;
    std::vector<FlowItem> items;
    const char* places;  ///< on pages of 50: "page:top", "*" where it begins the page
};

class Pagination : public testing::TestWithParam<Case> {};

TEST_P(Pagination, PutsEachItemInItsPlace) {
    std::string places;
    for (const PlaceOnPages& place : paginate(GetParam().items, 50))
        places += (places.empty() ? "" : " ") + std::to_string(place.page) + ":" +
                  std::to_string(static_cast<int>(place.top)) + (place.begins_page ? "*" : "");
    EXPECT_EQ(places, GetParam().places);
}

INSTANTIATE_TEST_SUITE_P(
    Layouts, Pagination,
    testing::Values(
        Case{"nothing", {}, ""}, Case{"no_gap_at_the_top", {paragraph, paragraph}, "0:0* 0:14"},
        Case{"a_page_filled_to_its_end",
             {line, line, line, line, line, line},
             "0:0* 0:10 0:20 0:30 0:40 1:0*"},
        Case{"a_heading_goes_with_its_paragraph",
             {line, line, line, heading, paragraph},
             "0:0* 0:10 0:20 1:0* 1:14"},
        Case{"two_headings_in_a_row", {line, line, heading, heading, line}, "0:0* 0:10 1:0* 1:18 1:28"},
        Case{"the_gap_alone_turns_the_page", {line, line, line, {7}, paragraph}, "0:0* 0:10 0:20 0:30 1:0*"},
        Case{"a_table_repeats_its_header",
             {table_header, row, row, row, row, row, row, row, row, row},
             "0:0* 0:10 0:20 0:30 0:40 1:10* 1:20 1:30 1:40 2:10*"},
        Case{"a_table_begins_with_a_row_at_least",
             {line, line, line, heading, table_header, row},
             "0:0* 0:10 0:20 1:0* 1:14 1:24"},
        Case{"what_is_taller_than_a_page_has_its_own", {line, {80}, line}, "0:0* 1:0* 2:0*"},
        Case{"kept_together_but_taller_than_a_page",
             {line, {30, 0, true}, {30, 0, true}, line},
             "0:0* 0:10 1:0* 1:30"}),
    [](const auto& it) { return it.param.name; });

}  // namespace
}  // namespace coltre
