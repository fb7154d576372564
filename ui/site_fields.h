#pragma once

#include <string>

namespace coltre {

/// Texts of the main window that the special cases read at the moment of their click.
struct SiteFields {
    std::string asinput;       ///< altitude, m
    std::string ComboEsp;      ///< exposure coefficient CE
    std::string TextCTermico;  ///< thermal coefficient Ct
};

}  // namespace coltre
