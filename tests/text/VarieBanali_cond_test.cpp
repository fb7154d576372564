#include "text/VarieBanali_cond.h"

#include <gmock/gmock.h>

namespace coltre {
namespace {

TEST(LastOccurrence, CountsCharactersFromOne) {
    EXPECT_EQ(last_occurrence("123", "."), 0);
    EXPECT_EQ(last_occurrence(".12", "."), 1);
    EXPECT_EQ(last_occurrence("aaa", "aa"), 2);
    EXPECT_EQ(last_occurrence("perché. no.", "."), 11);
    EXPECT_EQ(last_occurrence("abc", ""), 0);
}

TEST(ReplaceAll, ChangesTheTextAndTellsTheLastReplacement) {
    struct Case {
        std::string text;
        const char *find, *replacement;
        bool ignore_case;
        const char* result;
        LastReplacement last;
    } cases[] = {{"banana", "a", "aa", false, "baanaanaa", {8, 9}},
                 {"xXx", "X", "y", false, "xyx", {2, 2}},
                 {"aaaaa", "aa", "b", false, "bba", {2, 2}},
                 {"aab", "ab", "", false, "a", {2, 1}},
                 {"caffÈ È qui", "è", "e'", true, "caffe' e' qui", {8, 9}},
                 {"è;è", ";", "à|", false, "èà|è", {2, 3}},
                 {"abc", "d", "e", true, "abc", {0, 0}},
                 {"abc", "", "e", false, "abc", {0, 0}}};
    for (Case& c : cases) {
        const LastReplacement last = replace_all(c.text, c.find, c.replacement, c.ignore_case);
        EXPECT_EQ(c.text, c.result);
        EXPECT_EQ(last.position, c.last.position) << c.result;
        EXPECT_EQ(last.end, c.last.end) << c.result;
    }
}

}  // namespace
}  // namespace coltre
