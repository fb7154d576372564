#pragma once

#include <string_view>
#include <vector>

// What became of the municipalities of 1996: their names and provinces of today. The rules, the lists and the
// reports keep those of 1996. All texts live as long as the program.
namespace coltre {

/// A municipality of 1996 in the spelling of the built-in table.
struct Municipality {
    std::string_view province;
    std::string_view name;

    bool operator==(const Municipality&) const = default;
};

/// A name that came later.
struct LaterName {
    std::string_view name;
    std::string_view plate;  ///< of its province today, "BO"
    std::string_view since;  ///< "2014-01-01"; empty where only the spelling differs or the day is not known
    bool founded = false;    ///< out of parts of municipalities that live on
    std::vector<Municipality> made_of;
};

/// A municipality of 1996 that is gone.
struct Suppressed {
    Municipality municipality;
    std::string_view successor;  ///< of today
};

/// A municipality of 1996 that is in another province today.
struct MovedProvince {
    Municipality municipality;
    std::string_view plate;
};

const std::vector<LaterName>& later_names();
const std::vector<Suppressed>& suppressed();
const std::vector<MovedProvince>& moved_provinces();

/// What is another today.
struct Today {
    std::string_view name;   ///< empty where the municipality still has its own
    std::string_view since;  ///< of that name; empty also where an older municipality of 1996 had it
    std::string_view plate;  ///< of its province; empty where it is that of 1996
};

/// What became of a municipality; all empty where nothing changed, and for one that is not known.
Today today(const Municipality& municipality);

}  // namespace coltre
