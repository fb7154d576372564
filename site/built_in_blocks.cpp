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

const std::vector<AltitudeBlock>& built_in_blocks() {
    static const std::vector<AltitudeBlock> all = [] {
        std::vector<AltitudeBlock> blocks;
        for (const std::string_view province : provinces()) {
            const auto reader = find_field(built_in_altitude_file(), to_code_page(province));
            if (reader) blocks.push_back(read_block(province, *reader));
        }
        std::ranges::sort(blocks, {}, [](const AltitudeBlock& block) { return block.header.data(); });
        return blocks;
    }();
    return all;
}

const AltitudeBlock* find_built_in_block(std::string_view header) {
    static const auto by_header = [] {
        std::unordered_map<std::string_view, const AltitudeBlock*> blocks;
        for (const AltitudeBlock& block : built_in_blocks())
            blocks.emplace(block.header, &block);
        return blocks;
    }();
    const auto found = by_header.find(header);
    return found == by_header.end() ? nullptr : found->second;
}

}  // namespace coltre
