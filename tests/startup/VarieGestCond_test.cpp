#include "startup/VarieGestCond.h"

#include <gmock/gmock.h>

namespace coltre {
namespace {

TEST(FindEntry, GivesTheValueOrNothing) {
    struct Case {
        const char *list, *key;
        std::optional<std::string> value;
        const char* separator = "=";
        const char* extra_separators = "";
    };
    for (const Case& c :
         {Case{"|DIROOT=C:\\Suite|", "diRoot", "C:\\Suite"},
          Case{"|vecchio_diroot=c:\\x|", "diroot", std::nullopt},
          Case{"|a=1|diroot=c:\\x|diroot=b|", "diroot", "c:\\x"}, Case{"|b=1|a=2", "a", ""},
          Case{"|diroot= c:\\la mia |", "diroot", " c:\\la mia "}, Case{"  a=12  ", "  a ", "12"},
          Case{"|diroot=|", "|diroot=", ""}, Case{"|=c:\\x|", "  ", std::nullopt},
          Case{"à=1", "à", std::nullopt}, Case{"a=12", "a", "12"}, Case{"|CITTÀ=Forlì|", "città", "Forlì"},
          Case{"a=1;b=2,c=3", "b", "2", "=", ";,"}, Case{"a=1Xb=2xc=3X", "b", "2xc=3", "=", "X"},
          Case{"a=1§b=è§", "b", "è", "=", "§"}, Case{"|a:=1|", "a", "1", ":="}})
        EXPECT_EQ(find_entry(c.list, c.key, c.separator, c.extra_separators), c.value) << c.list;
}

TEST(ParseSuiteRoot, GivesTheRootInLowerCase) {
    const std::pair<const char*, const char*> cases[] = {
        {"|DIROOT=C:\\CITTÀ|  ", "c:\\città"},
        {"diroot=c:\\suite", ""},
        {"|diroot=c:\\suite", ""},
        {"|diroot=|autonomo=1|", ""},
        {"|diroot=é|    ", ""},  // ten characters
        {"|diroot=c:|", "c:"},
        {"|autonomo=1|diroot=  c:\\Una Suite |x=y|", "c:\\una suite"},
        // Blanks at the front shift the positions, which count characters.
        {"  |diroot=c:\\suite|", "t=c:\\sui"},
        {" |città=è|diroot=c:\\FORLÌ|", "=c:\\forl"},
    };
    for (const auto& [command_line, root] : cases)
        EXPECT_EQ(parse_suite_root(command_line), root) << command_line;
}

}  // namespace
}  // namespace coltre
