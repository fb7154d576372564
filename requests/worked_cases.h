#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "document/document.h"
#include "platform/failure.h"

// Cases that were worked without the program, formula by formula (data/casi-di-prova.jsonl, compiled in), and
// what the program that is installed makes of them: what an office shows of a program that it relies on.
namespace coltre {

/// The cases as they are delivered: a JSON object a line.
std::string_view worked_cases_text();

/// A number that was worked out, with as many decimals as count.
struct WorkedNumber {
    std::string name;  ///< "qsk", or that of a result
    std::string value;
};

/// A case worked without the program.
struct WorkedCase {
    std::string id;
    std::string title;   ///< Italian, like the texts that follow
    std::string source;  ///< of the numbers
    std::vector<std::string> working;
    std::string request;  ///< of a batch, JSON; names no file
    std::vector<WorkedNumber> expected;
    bool stops = false;  ///< the calculation must end before its last result, with just the expected ones
};

/// All cases, in their order.
const std::vector<WorkedCase>& worked_cases();

/// What the program found for one number of a case.
struct FoundNumber {
    WorkedNumber expected;
    std::string found;    ///< with the same decimals; empty where the program gave none
    bool agrees = false;  ///< differs by at most one in the last decimal
};

/// What the program made of a case.
struct CaseOutcome {
    const WorkedCase* worked = nullptr;
    std::vector<FoundNumber> numbers;
    Failure fault;        ///< what is wrong besides the numbers: a whole sentence
    bool passed = false;  ///< all agrees, and it stopped where it must and nowhere else
};

/// Runs a case, on fresh program cells, without a file.
CaseOutcome run(const WorkedCase& worked);

/// Runs all of them.
std::vector<CaseOutcome> run_worked_cases();

/// How many passed, in Italian: "109 casi, tutti riprodotti" or "109 casi, 2 non riprodotti".
std::string summary(std::span<const CaseOutcome> outcomes);

/// The cases with their working, each number expected and found, as a document to be handed in.
/// @param program  version and build
Document worked_cases_document(std::span<const CaseOutcome> outcomes, std::string_view program,
                               std::string_view date);

}  // namespace coltre
