#pragma once

#include <string>

#include "requests/request.h"

// The Italian help of the command.
namespace coltre::cli {

/// The command's own options, besides the keys of requests.
inline constexpr Key json_option{"json", "", "il risultato in JSON, su una riga", "tabella", KeyType::flag};
inline constexpr Key csv_option{"csv", "", "le richieste e i risultati sono tabelle CSV", "JSON",
                                KeyType::flag};

std::string general_help();
std::string calculation_help(const Description& calculation);
std::string batch_help();
std::string places_help();
std::string worked_cases_help();
std::string altitudes_help();

}  // namespace coltre::cli
