#include "requests/site_memory.h"

#include <filesystem>
#include <system_error>
#include <utility>

#include "platform/files.h"
#include "site/altitude_file.h"
#include "site/built_in_altitudes.h"

namespace coltre {

const AltitudeTable& SiteMemory::table(std::string_view directory) {
    if (const auto known = m_tables.find(directory); known != m_tables.end()) return known->second;
    // A directory may be spelled in several ways.
    std::error_code error;
    const std::string place = path_text(std::filesystem::weakly_canonical(find_path(directory), error));
    auto table = m_tables.find(place);
    if (table == m_tables.end()) table = m_tables.emplace(place, read_table(directory)).first;
    return m_tables.emplace(directory, table->second).first->second;
}

AltitudeTable SiteMemory::read_table(std::string_view directory) {
    const std::string name = altitude_file_name(directory);
    FileContent file = read_content_at_rest(name);
    AltitudeTable table;
    if (file.end == ReadEnd::missing) {
        table.failure = create_altitude_file(directory, built_in_altitude_file());
        table.missing = table.failure.has_value();
        if (!table.failure) file = read_content(name);  // another program may have put its own there
    }
    if (file.end == ReadEnd::disturbed) table.failure = file.reason;
    if (file.end == ReadEnd::read) table.bytes = *m_files.insert(std::move(file.bytes)).first;
    return table;
}

const Site* SiteMemory::recall(std::string_view directory, std::string_view province,
                               std::string_view municipality) {
    const auto found = m_sites.find(key(directory, province, municipality));
    return found == m_sites.end() ? nullptr : &found->second;
}

void SiteMemory::keep(std::string_view directory, std::string_view province, std::string_view municipality,
                      const Site& site) {
    // More sites than there are municipalities, and longer names than theirs: a few MB at most.
    constexpr std::size_t most_sites = 10000;
    constexpr std::size_t longest_key = 300;
    const std::string_view names = key(directory, province, municipality);
    if (names.size() > longest_key) return;
    if (m_sites.size() >= most_sites) m_sites.clear();
    m_sites.insert_or_assign(std::string(names), site);
}

std::string_view SiteMemory::key(std::string_view directory, std::string_view province,
                                 std::string_view municipality) {
    // Neither a directory nor a name of the table holds a character of code 0.
    m_key.assign(directory).push_back('\0');
    m_key.append(province).push_back('\0');
    return m_key.append(municipality);
}

}  // namespace coltre
