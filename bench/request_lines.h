#pragma once

#include <string>

// Requests of the batch benchmarks.
namespace coltre {

/// The i-th of a mixed series of requests, one JSON line without its end: every roof family, sites given by
/// zone and altitude.
inline std::string request_by_zone(long i) {
    const std::string head = "{\"id\": " + std::to_string(i) + ", \"zona\": " + std::to_string(i % 4) +
                             ", \"altitudine\": " + std::to_string(i % 1500) + ", \"calcolo\": ";
    const std::string slope = std::to_string(i % 59);
    switch (i % 4) {
        case 0:
            return head + "\"una-falda\", \"alfa\": " + slope + "}";
        case 1:
            return head + "\"due-falde\", \"alfa1\": " + slope + ", \"alfa2\": 30}";
        case 2:
            return head + "\"piu-falde\", \"alfa1\": " + slope + ", \"alfa2\": 30, \"ce\": 0.9}";
        default:
            return head + "\"cilindrica\", \"larghezza\": 20, \"altezza\": 4.5}";
    }
}

/// The same with the site given by name.
inline std::string request_by_name(long i) {
    constexpr const char* sites[] = {"\"Torino\", \"comune\": \"Agliè\"", "\"Cuneo\", \"comune\": \"Cuneo\"",
                                     "\"Enna\", \"comune\": \"Enna\"",
                                     "\"Siracusa\", \"comune\": \"Siracusa\""};
    return "{\"id\": " + std::to_string(i) + ", \"calcolo\": \"una-falda\", \"provincia\": " + sites[i % 4] +
           ", \"alfa\": " + std::to_string(i % 59) + "}";
}

}  // namespace coltre
