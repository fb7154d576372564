#pragma once

#include <string>

#include "requests/request.h"

// The Italian help of the command.
namespace coltre::cli {

std::string general_help();
std::string calculation_help(const Description& calculation);
std::string batch_help();
std::string places_help();
std::string worked_cases_help();
std::string altitudes_help();

}  // namespace coltre::cli
