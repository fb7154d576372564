#include "text/names.h"

#include <gmock/gmock.h>

namespace coltre {
namespace {

using testing::ElementsAre;

TEST(FoldName, ForgetsCaseAccentsApostrophesAndBlanks) {
    for (const char* name : {"Aglie'", "AGLIÈ", "aglie’", "A glie`"})
        EXPECT_EQ(fold_name(name), "aglie") << name;
    EXPECT_EQ(fold_name("Großœ-Östrich 1\xC3"), "grossœ-ostrich1\xC3");
}

TEST(NearestNames, PutsTheSameStartFirstThenTheFewestChanges) {
    const std::vector<std::string> names{"Forlì", "Formia", "Torino", "Fermo", "Terni", "Formia"};
    EXPECT_THAT(nearest_names("for", names, 2), ElementsAre("Forlì", "Formia"));
    EXPECT_THAT(nearest_names("Trino", names, 1), ElementsAre("Torino"));
    // Of 1, 2 and 2 changes: of equals the first in the list.
    EXPECT_THAT(nearest_names("Formo", names, 3), ElementsAre("Fermo", "Forlì", "Formia"));
    for (const std::string& like_none : {std::string(), std::string("1"), std::string(1000000, 'x')})
        EXPECT_THAT(nearest_names(like_none, names, 1), testing::IsEmpty());
}

}  // namespace
}  // namespace coltre
