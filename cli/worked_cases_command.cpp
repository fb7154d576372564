#include "cli/worked_cases_command.h"

#include <algorithm>

#include "cli/command.h"
#include "document/html.h"
#include "platform/date.h"
#include "platform/file_replacement.h"
#include "platform/files.h"
#include "requests/worked_cases.h"
#include "version/version.h"

namespace coltre::cli {

namespace {

void list(std::ostream& out, const CaseOutcome& outcome) {
    out << outcome.worked->id << ": " << outcome.worked->title << '\n';
    for (const auto& [expected, found, agrees] : outcome.numbers)
        if (!agrees)
            out << "  " << expected.name << ": atteso " << expected.value << ", trovato "
                << (found.empty() ? "nessun valore" : found) << '\n';
    if (outcome.fault) out << "  " << *outcome.fault << '\n';
}

}  // namespace

int worked_cases_command(const std::string& html, std::ostream& out, std::ostream& err) {
    const std::vector<CaseOutcome> outcomes = run_worked_cases();
    for (const CaseOutcome& outcome : outcomes)
        if (!outcome.passed) list(out, outcome);
    out << "Coltre " << version_and_build() << ": " << summary(outcomes) << ".\n";
    const bool all_passed = std::ranges::all_of(outcomes, &CaseOutcome::passed);
    if (html.empty()) return all_passed ? all_well : failed;

    const std::filesystem::path path = find_path(suite_notation(to_path(html)));
    const DocumentDate date = document_date();
    Failure failure;
    if (date.error) {
        failure = date.error;
    } else {
        FileReplacement file(path);
        file.write(to_html(
            worked_cases_document(outcomes, "Coltre " + std::string(version_and_build()), date.text)));
        failure = file.commit();
    }
    if (failure) {
        err << "Impossibile scrivere il file " << path_text(path) << ": " << *failure << ".\n";
        return failed;
    }
    return all_passed ? all_well : failed;
}

}  // namespace coltre::cli
