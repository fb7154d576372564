#pragma once

#include <string_view>
#include <unordered_map>
#include <vector>

namespace coltre {

/// A province of the built-in table: the first block of its name, without the lines that no reader gets past.
/// All texts point into built_in_altitude_file().
struct AltitudeBlock {
    std::string_view province;            ///< name in UTF-8
    std::string_view header;              ///< name as the file holds it
    std::vector<std::string_view> lines;  ///< as the file holds them, without line ends
    std::unordered_map<std::string_view, std::string_view> line_of;  ///< lines by municipality
};

/// The blocks of the built-in table in its order.
const std::vector<AltitudeBlock>& built_in_blocks();

/// The block of a province of the built-in table.
/// @param header  a field of an altitude file
/// @return null if it is no province
const AltitudeBlock* find_built_in_block(std::string_view header);

}  // namespace coltre
