#pragma once

#include "calculate/click.h"

namespace coltre {

/// What is to be said, before `Calcola` goes on, of an altitude above 1500 m.
struct AltitudeNotice {
    Message message;
    std::string asinput;  ///< new text of the altitude field, set as soon as the message has been read
};

/// @return nothing for an altitude up to 1500 m, and for one that cannot be used
std::optional<AltitudeNotice> altitude_notice(const Fields& fields);

/// A click on `Calcola`: ground load, unit system, heading of the report, load cases of the roof, end of the
/// report. Results go into the program's cells, coltre.txt into its WorkDirectory. Reported: a cylindrical
/// roof that cannot be, the report written or not written, and any fault that stops the calculation; all that
/// was computed before it stays. Deliberate: an altitude above 1500 m counts as typed; only a later click
/// reads what altitude_notice() puts into its field.
Outcome Calcola(const Fields& fields, Program& program);

/// New texts of the labels that show the widths of a cylindrical roof as soon as these are known, also where
/// the calculation stopped afterwards.
struct WidthLabels {
    std::optional<std::string> L1output, L2output;
};
WidthLabels width_labels(const Calculation& calculation);

}  // namespace coltre
