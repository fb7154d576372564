#include "ui/result_display.h"

namespace coltre {

namespace {

constexpr DisplayRow one_pitch[] = {
    {"carico_1", results::qs_1},
    {"spor_1", results::qe_1},
};

// Three arrangements in pairs, side 1 and side 2: both full, side 1 halved, side 2 halved.
constexpr DisplayRow two_pitches[] = {
    {"carico_2", results::qs_2a}, {"carico_3", results::qs_2c}, {"carico_4", results::qs_2b},
    {"carico_5", results::qs_2c}, {"carico_6", results::qs_2a}, {"carico_7", results::qs_2d},
    {"spor_2", results::qe_2a},   {"spor_3", results::qe_2b},   {"spor_4", results::qe_2c},
    {"spor_5", results::qe_2d},
};

// Side 1, valley, side 2. No overhang: spor_6 and spor_7 are never written.
constexpr DisplayRow several_pitches[] = {
    {"carico_8", results::qs_3a},
    {"carico_9", results::qs_3c},
    {"carico_10", results::qs_3b},
};

constexpr DisplayRow cylindrical[] = {
    {"carico_11", results::qs_4a}, {"carico_12", results::qs_4b}, {"carico_13", results::qs_4c},
    {"spor_8", results::qe_4a},    {"spor_9", results::qe_4b},    {"spor_10", results::qe_4c},
};

constexpr DisplayRow level_change[] = {
    {"carico_14", results::level_qs2},
    {"carico_15", results::level_qs1},
    {"lsoutput", results::level_ls},
};

constexpr DisplayRow wall[] = {
    {"carico_16", results::wall_qs1},
    {"carico_17", results::wall_qs2},
    {"ls2outputA", results::wall_ls},
    {"ls2outputB", results::wall_ls},
};

constexpr DisplayRow snow_guard[] = {
    {"Fsoutput", results::Fs},
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

std::span<const DisplayRow> display_rows(SpecialCase special_case) {
    switch (special_case) {
        case SpecialCase::level_change:
            return level_change;
        case SpecialCase::wall:
            return wall;
        case SpecialCase::snow_guard:
            return snow_guard;
    }
    return {};
}

}  // namespace coltre
