#include "text/names.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

namespace coltre {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(FoldName, ForgetsCaseAccentsApostrophesAndBlanks) {
    for (const char* name : {"Agliè", "Aglie'", "AGLIE", "AGLIÈ", "aglie’", "A glie`"})
        EXPECT_EQ(fold_name(name), "aglie") << name;
    EXPECT_EQ(fold_name("Reggio nell'Emilia"), "reggionellemilia");
    EXPECT_EQ(fold_name("Großœ-Östrich 1"), "grossœ-ostrich1");
    EXPECT_EQ(fold_name("\xC3"), "\xC3");
    EXPECT_EQ(fold_name(""), "");
}

TEST(NearestNames, PutsTheSameStartFirstThenTheFewestChanges) {
    const std::vector<std::string> names{"Forlì", "Formia", "Torino", "Fermo", "Terni"};
    EXPECT_THAT(nearest_names("for", names, 2), ElementsAre("Forlì", "Formia"));
    EXPECT_THAT(nearest_names("FORLI'", names, 1), ElementsAre("Forlì"));
    EXPECT_THAT(nearest_names("Trino", names, 1), ElementsAre("Torino"));
    // "formo" becomes "fermo" with 1 change, "forli" and "formia" with 2 each: of equals the first in the
    // list.
    EXPECT_THAT(nearest_names("Formo", names, 3), ElementsAre("Fermo", "Forlì", "Formia"));
    EXPECT_THAT(nearest_names("Formo", names, 9), testing::SizeIs(5));
    EXPECT_THAT(nearest_names("", names, 1), ElementsAre("Forlì"));
    EXPECT_THAT(nearest_names("x", {}, 3), IsEmpty());
    EXPECT_THAT(nearest_names(std::string(1000000, 'x'), names, 1), testing::SizeIs(1));
}

}  // namespace
}  // namespace coltre
