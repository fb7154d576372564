#include "text/csv.h"

#include <gtest/gtest.h>

#include <sstream>

namespace coltre {
namespace {

/// The records: fields between "|", a fault as its number, the line.
std::string records(std::istream& in) {
    CsvReader reader(in);
    std::string text;
    while (reader.next()) {
        for (const std::string_view field : reader.fields())
            text += csv_value(field) + "|";
        if (reader.fault() != CsvFault::none) text += "!" + std::to_string(static_cast<int>(reader.fault()));
        text += " " + std::to_string(reader.line()) + "\n";
    }
    return text;
}

TEST(Csv, RecordsAsSpreadsheetsWriteThem) {
    const std::string long_line(CsvReader::longest + 1, 'a');
    const std::pair<std::string, std::string> cases[]{
        {"", ""},
        {"\xEF\xBB\xBF", ""},
        {"a;b,c\n1;2,5", "a|b,c| 1\n1|2,5| 2\n"},
        {"\xEF\xBB\xBF\"a,x\"\tb\r\n\t\r\n", "a,x|b| 1\n|| 2\n"},
        {"a,b\n\n\"x\"\"y\nz\",\"\"\n1,2\n", "a|b| 1\n| 2\nx\"y\nz|| 3\n1|2| 5\n"},
        {"a;b\n5\" pipe;2\"\"\n", "a|b| 1\n5\" pipe|2\"\"| 2\n"},
        {"a;b\n1;\"x\n2;\"y\"\n3;4\n", "a|b| 1\n1|!2 2\n2|y| 3\n3|4| 4\n"},
        {"a;b\n\"1\n2\";\"x\n3;4\n", "a|b| 1\n!1 2\n2\"|!1 3\n3|4| 4\n"},
        {"a;b\n\"1\"2;3\n\"1\"\r2\n4;5", "a|b| 1\n!2 2\n!2 3\n4|5| 4\n"},
        {"a;b\n" + std::string(200, ';') + "\n1;2", "a|b| 1\n" + std::string(128, '|') + "!3 2\n1|2| 3\n"},
        {"a;b\n" + long_line + "\n\"" + long_line + "\n1;2", "a|b| 1\n!4 2\n!4 3\n1|2| 4\n"},
        {"a;b\n\"1\n" + long_line + "\n1;2", "a|b| 1\n!1 2\n!4 3\n1|2| 4\n"},
    };
    for (const auto& [text, expected] : cases) {
        std::istringstream in(text);
        EXPECT_TRUE(records(in) == expected) << text.substr(0, 50);
    }
}

}  // namespace
}  // namespace coltre
