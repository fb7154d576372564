#include "text/VarieBanali_cond.h"

#include <gmock/gmock.h>

#include <string>

namespace coltre {
namespace {

TEST(LastOccurrence, CountsCharactersFromOne) {
    EXPECT_EQ(last_occurrence("1.2.3", "."), 4);
    EXPECT_EQ(last_occurrence("123", "."), 0);
    EXPECT_EQ(last_occurrence("12.", "."), 3);
    EXPECT_EQ(last_occurrence(".12", "."), 1);
    EXPECT_EQ(last_occurrence("aaa", "aa"), 2);
    EXPECT_EQ(last_occurrence("perché no.", "."), 10);
    EXPECT_EQ(last_occurrence("xX", "X"), 2);
    EXPECT_EQ(last_occurrence("xX", "x"), 1);
    EXPECT_EQ(last_occurrence("", "."), 0);
    EXPECT_EQ(last_occurrence("abc", ""), 0);
}

TEST(ReplaceAll, ChangesTheTextAndTellsTheLastReplacement) {
    struct Case {
        const char* text;
        const char* find;
        const char* replacement;
        bool ignore_case;
        const char* result;
        int position;
        int end;
    };
    for (const Case& c : {
             Case{"banana", "a", "aa", false, "baanaanaa", 8, 9},
             Case{"xXx", "X", "y", true, "yyy", 3, 3},
             Case{"xXx", "X", "y", false, "xyx", 2, 2},
             Case{"aaaaa", "aa", "b", false, "bba", 2, 2},
             Case{"aab", "ab", "", false, "a", 2, 1},
             Case{"abc", "abc", "", false, "", 1, 0},
             Case{"caffÈ È qui", "è", "e'", true, "caffe' e' qui", 8, 9},
             Case{"è;è", ";", "à|", false, "èà|è", 2, 3},
             Case{"abc", "d", "e", true, "abc", 0, 0},
             Case{"abc", "", "e", false, "abc", 0, 0},
             Case{"", "a", "b", false, "", 0, 0},
         }) {
        std::string text = c.text;
        const LastReplacement last = replace_all(text, c.find, c.replacement, c.ignore_case);
        EXPECT_EQ(text, c.result);
        EXPECT_EQ(last.position, c.position) << c.text;
        EXPECT_EQ(last.end, c.end) << c.text;
    }
}

}  // namespace
}  // namespace coltre
