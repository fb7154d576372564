#include "cli/site_memory.h"

#include <system_error>

#include "platform/files.h"
#include "site/altitude_replacement.h"

namespace coltre::cli {

SiteMemory::WriteTime SiteMemory::write_time(std::string_view directory) {
    if (directory != m_directory || m_file.empty()) {
        m_directory = directory;
        m_file = find_path(altitude_file_name(directory));
        m_sites.clear();
    }
    std::error_code error;
    const auto written = std::filesystem::last_write_time(m_file, error);
    if (!error) return written;
    m_file.clear();  // looked for again the next time
    return std::nullopt;
}

std::optional<Site> SiteMemory::recall(std::string_view directory, std::string_view province,
                                       std::string_view municipality) {
    const WriteTime written = write_time(directory);
    if (written != m_written) m_sites.clear();
    m_written = written;
    const auto found = m_sites.find({std::string(province), std::string(municipality)});
    if (found == m_sites.end()) return std::nullopt;
    return found->second;
}

void SiteMemory::keep(std::string_view directory, std::string_view province, std::string_view municipality,
                      const Site& site) {
    // A file that was written or changed while it was read is not worth remembering.
    if (!m_written || write_time(directory) != m_written) return;
    constexpr std::size_t most_sites = 10000;  // more than there are municipalities; a few MB
    if (m_sites.size() >= most_sites) m_sites.clear();
    m_sites.insert_or_assign({std::string(province), std::string(municipality)}, site);
}

}  // namespace coltre::cli
