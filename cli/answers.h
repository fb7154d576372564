#pragma once

#include <string>

#include "requests/answer.h"
#include "requests/csv_request.h"

namespace coltre::cli {

/// The answer as one JSON object on one line, without a line end.
std::string to_json(const Answer& answer);

/// The answer as a short Italian table with units, line by line, without messages and error. Its steps are
/// needed for the data of the calculation.
/// @param with_steps  whether they are written as well
std::string to_table(const Answer& answer, bool with_steps);

/// The columns of answers behind those of the requests in the header of a table: the same whatever the
/// calculations, "errore" the last.
void append_csv_columns(std::string& line, char separator);

/// The cells of an answer in these columns, empty where they do not apply.
/// @param encoding  of the table
void append_csv_answer(std::string& line, const Answer& answer, char separator, CsvEncoding encoding);

}  // namespace coltre::cli
