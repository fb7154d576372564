#include "ui/sketches/drawing.h"

#include <algorithm>

namespace coltre {

const LabelSlot* Drawing::find_slot(const std::string& name) const {
    const auto slot = std::ranges::find(label_slots, name, &LabelSlot::name);
    return slot == label_slots.end() ? nullptr : &*slot;
}

double text_width(const std::string& text) {
    constexpr double letter_width = 0.6 * text_height;
    const auto is_first_byte = [](char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; };
    return letter_width * static_cast<double>(std::ranges::count_if(text, is_first_byte));
}

}  // namespace coltre
