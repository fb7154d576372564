#pragma once

#include "document/composer.h"
#include "document/illustrated_report.h"

// The sections of the illustrated report, in their order. Each writes nothing where its case has nothing of
// the kind.
namespace coltre {

// sections_on_case.cpp: what was calculated, and from what
void write_title(Composer& write, const Subject& subject, const TitleBlock& title_block);
/// Why the calculation stopped, and that no error is where a steep pitch keeps no snow.
void write_stop(Composer& write, const Subject& subject);
void write_summary(Composer& write, const Subject& subject);
/// @param formulas_follow  in the document, all of them
void write_references(Composer& write, const Subject& subject, bool formulas_follow);
void write_data(Composer& write, const Subject& subject);

// sections_of_steps.cpp: the formulas, in chapters with their figures
/// @param diagrams  whether the diagrams of the ground load and of the coefficients are wanted
void write_steps(Composer& write, const Subject& subject, bool diagrams);
/// The chapters on the loads with their figures, and what is to be said of the ground load and the
/// coefficients.
void write_loads_alone(Composer& write, const Subject& subject);

// sections_on_use.cpp: what an office and a checker do with the numbers
void write_sensitivity(Composer& write, const Subject& subject);
void write_unit_systems(Composer& write, const Subject& subject);
void write_program(Composer& write, const Subject& subject);
void write_reproduction(Composer& write, const Subject& subject);
void write_signature(Composer& write);

}  // namespace coltre
