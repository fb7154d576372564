#pragma once

#include <string>

#include "document/document.h"

namespace coltre {

/// The document as one HTML file with its drawings as inline SVG: nothing is loaded from anywhere. The same
/// document gives the same bytes.
std::string to_html(const Document& document);

}  // namespace coltre
