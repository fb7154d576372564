#include "text/characters.h"

#include <gmock/gmock.h>

namespace coltre {
namespace {

TEST(TrimBlanks, RemovesSpacesAlone) {
    EXPECT_EQ(trim_blanks(" \ta b\n  "), "\ta b\n");
    EXPECT_EQ(trim_blanks("\u00A0a "), "\u00A0a");
    EXPECT_EQ(trim_blanks("   "), "");
}

TEST(Characters, AreCountedAsTheyAreCut) {
    struct Case {
        std::string_view text;
        std::size_t characters, bytes_of_two;
    };
    // Of the last three the bytes that make no character count one by one.
    for (const Case& c : {Case{"", 0, 0}, Case{"àè!", 3, 4}, Case{"\u0800\U0010FFFF", 2, 7},
                          Case{"à\xC1\xA0g", 4, 3}, Case{"a\xE2\x82", 3, 2}, Case{"\xC3 a", 3, 2}}) {
        EXPECT_EQ(character_count(c.text), c.characters) << c.text;
        EXPECT_EQ(bytes_of_characters(c.text, c.characters + 1), c.text.size()) << c.text;
        EXPECT_EQ(bytes_of_characters(c.text, 2), c.bytes_of_two) << c.text;
    }
}

TEST(LowerCase, KnowsAsciiAndLatinLetters) {
    EXPECT_EQ(lower_case("AZ[@`{ 09"), "az[@`{ 09");
    EXPECT_EQ(lower_case("ÀÖ×ØÞß÷ÿ"), "àö×øþß÷ÿ");
    // Bytes that are those of capitals, inside other characters.
    EXPECT_EQ(lower_case("Ā€\xC3"), "Ā€\xC3");
}

}  // namespace
}  // namespace coltre
