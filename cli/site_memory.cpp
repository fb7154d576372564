#include "cli/site_memory.h"

#include "site/altitude_file.h"

namespace coltre::cli {

std::optional<FileState> SiteMemory::state(std::string_view directory) {
    if (directory != m_directory || m_file.empty()) {
        m_directory = directory;
        m_file = find_path(altitude_file_name(directory));
        m_sites.clear();
    }
    const auto now = file_state(m_file);
    if (!now) m_file.clear();  // looked for again the next time
    return now;
}

std::optional<Site> SiteMemory::recall(std::string_view directory, std::string_view province,
                                       std::string_view municipality) {
    const auto now = state(directory);
    if (now != m_state) m_sites.clear();
    m_state = now;
    const auto found = m_sites.find({std::string(province), std::string(municipality)});
    if (found == m_sites.end()) return std::nullopt;
    return found->second;
}

void SiteMemory::keep(std::string_view directory, std::string_view province, std::string_view municipality,
                      const Site& site) {
    // A file that was written or changed while it was read is not worth remembering.
    if (!m_state || state(directory) != m_state) return;
    // More sites than there are municipalities, and longer names than theirs: a few MB at most.
    constexpr std::size_t most_sites = 10000;
    constexpr std::size_t longest_name = 64;
    if (province.size() > longest_name || municipality.size() > longest_name) return;
    if (m_sites.size() >= most_sites) m_sites.clear();
    m_sites.insert_or_assign({std::string(province), std::string(municipality)}, site);
}

}  // namespace coltre::cli
