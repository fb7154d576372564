#include "ui/result_display.h"

namespace coltre {

namespace {

constexpr int overhang_decimals = 3;

constexpr DisplayRow one_pitch[] = {
    {"carico_1", results::qs_1, load_decimals},
    {"spor_1", results::qe_1, overhang_decimals},
};

// Three arrangements in pairs, side 1 and side 2: both full, side 1 halved, side 2 halved.
constexpr DisplayRow two_pitches[] = {
    {"carico_2", results::qs_2a, load_decimals},   {"carico_3", results::qs_2c, load_decimals},
    {"carico_4", results::qs_2b, load_decimals},   {"carico_5", results::qs_2c, load_decimals},
    {"carico_6", results::qs_2a, load_decimals},   {"carico_7", results::qs_2d, load_decimals},
    {"spor_2", results::qe_2a, overhang_decimals}, {"spor_3", results::qe_2b, overhang_decimals},
    {"spor_4", results::qe_2c, overhang_decimals}, {"spor_5", results::qe_2d, overhang_decimals},
};

// Side 1, valley, side 2. No overhang: spor_6 and spor_7 are never written.
constexpr DisplayRow several_pitches[] = {
    {"carico_8", results::qs_3a, load_decimals},
    {"carico_9", results::qs_3c, load_decimals},
    {"carico_10", results::qs_3b, load_decimals},
};

constexpr DisplayRow cylindrical[] = {
    {"carico_11", results::qs_4a, load_decimals},  {"carico_12", results::qs_4b, load_decimals},
    {"carico_13", results::qs_4c, load_decimals},  {"spor_8", results::qe_4a, overhang_decimals},
    {"spor_9", results::qe_4b, overhang_decimals}, {"spor_10", results::qe_4c, overhang_decimals},
};

}  // namespace

std::span<const DisplayRow> display_rows(RoofFamily family) {
    switch (family) {
        case RoofFamily::one_pitch:
            return one_pitch;
        case RoofFamily::two_pitches:
            return two_pitches;
        case RoofFamily::several_pitches:
            return several_pitches;
        case RoofFamily::cylindrical:
            return cylindrical;
    }
    return {};
}

}  // namespace coltre
