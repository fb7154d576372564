#include "site/built_in_blocks.h"

#include <algorithm>
#include <optional>

#include "platform/code_page.h"
#include "site/altitude_fields.h"
#include "site/built_in_altitudes.h"
#include "site/regions.h"

namespace coltre {

namespace {

AltitudeBlock read_block(std::string_view province, FieldReader reader) {
    AltitudeBlock block;
    block.province = province;
    block.header = reader.field();
    while (reader.next() && !reader.field().empty()) {
        const std::optional<std::string_view> municipality = municipality_of(reader.field());
        if (!municipality) continue;
        block.lines.push_back(reader.field());
        block.line_of.try_emplace(*municipality, reader.field());
    }
    return block;
}

}  // namespace

const BuiltInBlocks& BuiltInBlocks::instance() {
    static const BuiltInBlocks blocks;
    return blocks;
}

BuiltInBlocks::BuiltInBlocks() : m_bytes(built_in_altitude_file()) {
    for (const Region& region : regions()) {
        for (const std::string_view province : region.provinces) {
            const std::optional<FieldReader> reader = find_field(m_bytes, to_code_page(province));
            if (reader) m_blocks.push_back(read_block(province, *reader));
        }
    }
    std::ranges::sort(m_blocks, {}, [](const AltitudeBlock& block) { return block.header.data(); });
    for (const AltitudeBlock& block : m_blocks)
        m_by_header.emplace(block.header, &block);
}

const AltitudeBlock* BuiltInBlocks::find(std::string_view header) const {
    const auto found = m_by_header.find(header);
    return found == m_by_header.end() ? nullptr : found->second;
}

}  // namespace coltre
