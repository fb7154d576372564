#include "cli/site_memory.h"

#include <system_error>

#include "platform/files.h"
#include "site/altitude_replacement.h"

namespace coltre::cli {

namespace {

std::optional<FileState> altitude_file_state(std::string_view directory) {
    const std::filesystem::path file = find_path(altitude_file_name(directory));
    std::error_code time_error;
    std::error_code size_error;
    const FileState state{std::filesystem::last_write_time(file, time_error),
                          std::filesystem::file_size(file, size_error)};
    if (time_error || size_error) return std::nullopt;
    return state;
}

}  // namespace

std::optional<Site> SiteMemory::recall(std::string_view directory, std::string_view province,
                                       std::string_view municipality) {
    m_state = altitude_file_state(directory);
    const auto found = m_sites.find(Names{directory, province, municipality});
    if (found == m_sites.end() || !m_state || found->second.state != *m_state) return std::nullopt;
    return found->second.site;
}

void SiteMemory::keep(std::string_view directory, std::string_view province, std::string_view municipality,
                      const Site& site) {
    // A file that was written or changed while it was read is not worth remembering.
    if (!m_state || altitude_file_state(directory) != m_state) return;
    constexpr std::size_t most_sites = 10000;  // more than there are municipalities; a few MB
    if (m_sites.size() >= most_sites) m_sites.clear();
    m_sites.insert_or_assign(Names{directory, province, municipality}, Kept{*m_state, site});
}

}  // namespace coltre::cli
