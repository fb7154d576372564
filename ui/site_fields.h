#pragma once

#include <string>

namespace coltre {

/// The main window's fields that the special cases read, each under the name of its control.
struct SiteFields {
    std::string asinput, ComboEsp, TextCTermico;
};

}  // namespace coltre
