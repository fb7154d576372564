#pragma once

#include <array>
#include <string_view>

namespace coltre {

/// A row of the table of exposure coefficients.
struct Exposure {
    double CE;
    std::string_view topography;                  ///< Italian
    std::array<std::string_view, 3> description;  ///< Italian, in lines; the last may be empty
};

/// Source: circular of 4 July 1996.
inline constexpr std::array<Exposure, 3> exposures{{
    {0.9,
     "Battuta dai venti",
     {"Aree pianeggianti non ostruite esposte su tutti i lati,", "senza costruzioni o alberi più alti", ""}},
    {1.0,
     "Normale",
     {"Aree in cui non è presente una significativa rimozione",
      "di neve sulla costruzione prodotta dal vento,", "a causa del terreno, altre costruzioni o alberi"}},
    {1.1,
     "Riparata",
     {"Aree in cui la costruzione considerata è sensibilmente",
      "più bassa del circostante terreno o circondata", "da costruzioni o alberi più alti"}},
}};

}  // namespace coltre
