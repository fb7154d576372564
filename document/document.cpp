#include "document/document.h"

namespace coltre {

std::string plain_text(const Pieces& pieces) {
    std::string text;
    for (const Piece& piece : pieces)
        text += piece.text;
    return text;
}

}  // namespace coltre
