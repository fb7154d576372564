#include "text/characters.h"

#include <gmock/gmock.h>

namespace coltre {
namespace {

TEST(TrimBlanks, RemovesSpacesAlone) {
    EXPECT_EQ(trim_blanks("  a b  "), "a b");
    EXPECT_EQ(trim_blanks(" \ta\n "), "\ta\n");
    EXPECT_EQ(trim_blanks("\u00A0a "), "\u00A0a");
    EXPECT_EQ(trim_blanks("   "), "");
    EXPECT_EQ(trim_blanks(""), "");
}

struct CountCase {
    const char* name;
    std::string_view text;
    std::size_t characters;
    std::size_t bytes_of_two;
};

class Characters : public testing::TestWithParam<CountCase> {};

TEST_P(Characters, AreCountedAsTheyAreCut) {
    const CountCase& c = GetParam();
    EXPECT_EQ(character_count(c.text), c.characters);
    EXPECT_EQ(bytes_of_characters(c.text, c.characters), c.text.size());
    EXPECT_EQ(bytes_of_characters(c.text, c.characters + 1), c.text.size());
    EXPECT_EQ(bytes_of_characters(c.text, 2), c.bytes_of_two);
    EXPECT_EQ(first_character(c.text), c.text.substr(0, bytes_of_characters(c.text, 1)));
}

INSTANTIATE_TEST_SUITE_P(Texts, Characters,
                         testing::Values(CountCase{"Empty", "", 0, 0}, CountCase{"Ascii", "neve", 4, 2},
                                         CountCase{"TwoBytes", "perché", 6, 2},
                                         CountCase{"TwoBytesFirst", "àè!", 3, 4},
                                         CountCase{"ThreeAndFourBytes", "€😀", 2, 7},
                                         CountCase{"StrayContinuations", "\x80\x80g", 3, 2},
                                         CountCase{"ContinuationTooMany", "à\xA0g", 3, 3},
                                         CountCase{"CutCharacter", "a\xE2\x82", 3, 2},
                                         CountCase{"LeadAlone", "\xC3 a", 3, 2},
                                         CountCase{"NoLead", "\xFF\xFE", 2, 2}),
                         [](const auto& test) { return test.param.name; });

TEST(LowerCase, KnowsAsciiAndLatinLetters) {
    EXPECT_EQ(lower_case("AZ[@`{ 09"), "az[@`{ 09");
    EXPECT_EQ(lower_case("ÀÖØÞ"), "àöøþ");
    EXPECT_EQ(lower_case("×÷ßÿàþ"), "×÷ßÿàþ");
    // Bytes that are those of capitals, inside other characters.
    EXPECT_EQ(lower_case("Ā€\xC3"), "Ā€\xC3");
}

}  // namespace
}  // namespace coltre
