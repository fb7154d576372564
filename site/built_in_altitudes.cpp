#include "site/built_in_altitudes.h"

#include "platform/code_page.h"

namespace coltre {

const std::string& built_in_altitude_file() {
    static const std::string file = [] {
        const std::string lines = to_code_page(built_in_table());
        std::string bytes;
        bytes.reserve(lines.size() + lines.size() / 16);
        for (const char c : lines) {
            if (c == '\n') bytes += '\r';
            bytes += c;
        }
        return bytes;
    }();
    return file;
}

}  // namespace coltre
