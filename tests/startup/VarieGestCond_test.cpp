#include "startup/VarieGestCond.h"

#include <gmock/gmock.h>

#include <optional>
#include <string>

namespace coltre {
namespace {

struct EntryCase {
    const char* name;
    const char* list;
    const char* key;
    std::optional<std::string> value;
    const char* separator = "=";
    const char* extra_separators = "";
};

class FindEntry : public testing::TestWithParam<EntryCase> {};

TEST_P(FindEntry, GivesTheValueOrNothing) {
    const EntryCase& c = GetParam();
    EXPECT_EQ(find_entry(c.list, c.key, c.separator, c.extra_separators), c.value);
}

INSTANTIATE_TEST_SUITE_P(
    Lists, FindEntry,
    testing::Values(EntryCase{"CaseOfTheValueIsKept", "|DIROOT=C:\\Suite|", "diroot", "C:\\Suite"},
                    EntryCase{"CaseOfTheKeyDoesNotCount", "|diroot=C:\\Suite|", "DirOot", "C:\\Suite"},
                    EntryCase{"WithoutBars", "diroot=c:\\x", "diroot", "c:\\x"},
                    EntryCase{"EmptyValueIsPresent", "|diroot=|", "diroot", ""},
                    EntryCase{"AbsentKey", "|autonomo=1|", "diroot", std::nullopt},
                    EntryCase{"AmongOthers", "|autonomo=1|diroot=c:\\x|utente=b|", "diroot", "c:\\x"},
                    EntryCase{"FirstOfTwo", "|a=1|a=2|", "a", "1"},
                    EntryCase{"BlanksInsideTheValueStay", "|diroot= c:\\la mia suite |", "diroot",
                              " c:\\la mia suite "},
                    EntryCase{"BlanksAroundListAndKey", "  diroot=c:\\x  ", "  diroot ", "c:\\x"},
                    EntryCase{"LastOfSeveralWithoutClosingBar", "|autonomo=1|diroot=c:\\x", "diroot", ""},
                    EntryCase{"PartOfAnotherKey", "|vecchio_diroot=c:\\x|", "diroot", std::nullopt},
                    EntryCase{"KeyWithBarAndSeparator", "|diroot=c:\\x|", "|diroot=", "c:\\x"},
                    EntryCase{"EmptyKey", "|=c:\\x|", "  ", std::nullopt},
                    EntryCase{"ThreeCharacters", "a=1", "a", std::nullopt},
                    EntryCase{"FourCharacters", "a=12", "a", "12"},
                    EntryCase{"ThreeCharactersOfFourBytes", "à=1", "à", std::nullopt},
                    EntryCase{"EmptyList", "", "diroot", std::nullopt},
                    EntryCase{"AccentsAreCompared", "|CITTÀ=Forlì|", "città", "Forlì"},
                    EntryCase{"ExtraSeparators", "a=1;b=2,c=3", "b", "2", "=", ";,"},
                    EntryCase{"ExtraSeparatorIsCaseSensitive", "a=1Xb=2xc=3X", "b", "2xc=3", "=", "X"},
                    EntryCase{"ExtraSeparatorOfTwoBytes", "a=1§b=è§", "b", "è", "=", "§"},
                    EntryCase{"LongSeparator", "|a:=1|", "a", "1", ":="}),
    [](const auto& test) { return test.param.name; });

struct RootCase {
    const char* name;
    const char* command_line;
    const char* root;
};

class ParseSuiteRoot : public testing::TestWithParam<RootCase> {};

TEST_P(ParseSuiteRoot, GivesTheRootInLowerCase) {
    EXPECT_EQ(parse_suite_root(GetParam().command_line), GetParam().root);
}

INSTANTIATE_TEST_SUITE_P(
    CommandLines, ParseSuiteRoot,
    testing::Values(RootCase{"Launcher", "|DIROOT=C:\\Suite|", "c:\\suite"},
                    RootCase{"WithoutBars", "diroot=c:\\suite", ""},
                    RootCase{"WithoutLeadingBar", "diroot=c:\\suite|", ""},
                    RootCase{"WithoutClosingBar", "|diroot=c:\\suite", ""},
                    RootCase{"EmptyValue", "|diroot=|autonomo=1|", ""},
                    RootCase{"TenCharacters", "|diroot=c|", ""},
                    RootCase{"TenCharactersAndBlanks", "|diroot=c|    ", ""},
                    RootCase{"ElevenCharacters", "|diroot=c:|", "c:"},
                    RootCase{"TenCharactersOfElevenBytes", "|diroot=é|", ""},
                    RootCase{"AmongOthers", "|autonomo=1|diroot=c:\\Una Suite|x=y|", "c:\\una suite"},
                    RootCase{"BlanksInsideTheEntry", "|diroot=  c:\\suite |", "c:\\suite"},
                    RootCase{"BlankValue", "|diroot=       |", ""},
                    RootCase{"BlanksBehind", "|diroot=c:\\suite|  ", "c:\\suite"},
                    // Two characters too early: "t=c:\sui" are characters 9 to 16.
                    RootCase{"BlanksBeforeShiftThePositions", "  |diroot=c:\\suite|", "t=c:\\sui"},
                    RootCase{"ShiftCountsCharacters", " |città=è|diroot=c:\\FORLÌ|", "=c:\\forl"},
                    RootCase{"Accents", "|diroot=c:\\CITTÀ|", "c:\\città"}),
    [](const auto& test) { return test.param.name; });

TEST(SetCaption, NamesTheDirectoryAndTheDetail) {
    EXPECT_EQ(set_caption("", ""), "Coltre - ARCOVIA 15");
    EXPECT_EQ(set_caption("d:\\dati\\lavori\\job001", ""), "Coltre - ARCOVIA 15 - d:\\dati\\lavori\\job001");
    EXPECT_EQ(set_caption("d:\\dati\\", ""), "Coltre - ARCOVIA 15 - d:\\dati");
    EXPECT_EQ(set_caption("d:\\dati\\", "tetto"), "Coltre - ARCOVIA 15 - d:\\dati\\tetto");
    EXPECT_EQ(set_caption("d:\\dati", "tetto\\"), "Coltre - ARCOVIA 15 - d:\\dati\\tetto\\");
    EXPECT_EQ(set_caption("", "tetto"), "Coltre - ARCOVIA 15 - tetto");
}

}  // namespace
}  // namespace coltre
