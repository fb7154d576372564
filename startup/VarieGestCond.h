#pragma once

#include <optional>
#include <string>
#include <string_view>

// The command line, and the caption that tells the user which job the program works on.
//
// A command line is a list of entries "key=value" separated by "|"; keys are compared in lower case. The
// suite's launcher writes "|diroot=", the suite's root directory and a closing "|"; blanks inside the value
// belong to it.
namespace coltre {

/// Looks a key up in a list of entries. Lenient about the bars around the list: a single entry needs none.
/// @param list              the entries; blanks around it do not count
/// @param key               with or without the bar before it and the separator behind it
/// @param separator         what stands between key and value, "=" on the command line
/// @param extra_separators  characters that separate entries as "|" does
/// @return nothing when the key is absent; otherwise the value as written, blanks included. It is empty for
///         an empty value, and for the last of several entries when no separator closes it: deliberate.
std::optional<std::string> find_entry(std::string_view list, std::string_view key, std::string_view separator,
                                      std::string_view extra_separators);

/// The suite's root directory as the launcher passes it. Stricter than find_entry(), which is deliberate: the
/// entry needs the bar before it and the bar that closes it.
/// @return in lower case and without blanks around it; empty when there is none
std::string parse_suite_root(std::string_view command_line);

/// The caption of the main window: "Coltre - ARCOVIA 15", then `directory`, then `detail`. A backslash at the
/// end of the directory is left out.
/// @param directory  may be empty
/// @param detail     follows the directory after a backslash, or stands alone; may be empty
std::string set_caption(std::string_view directory, std::string_view detail);

}  // namespace coltre
