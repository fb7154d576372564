#pragma once

#include <cstddef>
#include <istream>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/failure.h"
#include "requests/request.h"
#include "text/csv.h"

// Requests as the lines of a table, whose first line names the keys of its columns.
namespace coltre {

/// How the characters of a table are written. All that is read before the first character beyond ASCII fits
/// both.
enum class CsvEncoding { ascii_so_far, utf8, windows_1252 };

/// What the first character beyond ASCII tells; CsvEncoding::ascii_so_far if there is none.
CsvEncoding encoding_of(std::string_view bytes);

/// The same of the whole stream, which is at its old place afterwards; of one that cannot go back, such as a
/// pipe, CsvEncoding::ascii_so_far.
CsvEncoding encoding_ahead(std::istream& in);

/// A column of a table.
struct CsvColumn {
    std::string name;
    std::optional<Key> key;  ///< nothing for "calcolo" and "id"
};

/// The columns that a header names, or what is wrong with it.
struct CsvHeader {
    std::vector<CsvColumn> columns;
    Failure error;
};

/// Reads the header. Names may differ in letter case; each stands once, "calcolo" among them.
/// @param table  that has read its first record; null if it has none
CsvHeader read_csv_header(const CsvReader* table);

/// A line of a table, read.
struct CsvRequest {
    Request request;
    Failure error;  ///< what is wrong with the line
};

/// Reads the request of the record that the table stands at: an empty cell is an absent key, and where ";"
/// separates the cells a comma in a number is its decimal point.
/// @param encoding  of the records so far; becomes that of this one
CsvRequest read_csv_request(const CsvReader& table, const std::vector<CsvColumn>& columns,
                            CsvEncoding& encoding);

}  // namespace coltre
