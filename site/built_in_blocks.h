#pragma once

#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace coltre {

/// A province of the built-in table: the first block of its name, without the lines that no reader gets past.
struct AltitudeBlock {
    std::string_view province;            ///< name in UTF-8
    std::string_view header;              ///< name as the file holds it
    std::vector<std::string_view> lines;  ///< as the file holds them, without line ends
    std::unordered_map<std::string_view, std::string_view> line_of;  ///< lines by municipality
};

/// The blocks of the built-in table in its order, found by the header.
class BuiltInBlocks {
  public:
    /// The one set there is, made at the first use.
    static const BuiltInBlocks& instance();

    BuiltInBlocks(const BuiltInBlocks&) = delete;
    BuiltInBlocks& operator=(const BuiltInBlocks&) = delete;

    [[nodiscard]] const std::vector<AltitudeBlock>& all() const { return m_blocks; }

    /// @param header  a field of an altitude file
    /// @return null if it is no province
    [[nodiscard]] const AltitudeBlock* find(std::string_view header) const;

  private:
    BuiltInBlocks();

    std::string m_bytes;  ///< all texts point in here
    std::vector<AltitudeBlock> m_blocks;
    std::unordered_map<std::string_view, const AltitudeBlock*> m_by_header;
};

}  // namespace coltre
