#include "document/document.h"

namespace coltre {

Pieces plain(std::string_view text) {
    return {{std::string(text), Style::plain}};
}

std::string plain_text(const Pieces& pieces) {
    std::string text;
    for (const Piece& piece : pieces)
        text += piece.text;
    return text;
}

}  // namespace coltre
