#include "drawings/drawing.h"

#include <algorithm>

#include "text/characters.h"

namespace coltre {

const LabelSlot* Drawing::find_slot(const std::string& name) const {
    const auto slot = std::ranges::find_if(
        label_slots, [&name](const LabelSlot& it) { return it.name == name && !it.repeats; });
    return slot == label_slots.end() ? nullptr : &*slot;
}

double text_width(const std::string& text) {
    constexpr double letter_width = 0.6 * text_height;
    return letter_width * static_cast<double>(character_count(text));
}

}  // namespace coltre
