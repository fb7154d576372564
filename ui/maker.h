#pragma once

#include <array>
#include <string>
#include <string_view>

namespace coltre {

/// What the information box says of the maker, a line each: name, business in two lines, address, telephone
/// and fax, web site, e-mail. Whoever distributes the program puts their own here.
inline constexpr std::array<std::string_view, 7> maker_lines{
    "ARCOVIA",
    "Programmi di calcolo",
    "per l'ingegneria delle strutture",
    "Via Esempio 1 - 00000 Esempio (XX)",
    "Tel. 000 0000000 - Fax 000 0000001",
    "www.example.com",
    "info@example.com",
};

/// The same as the text of a message.
inline std::string maker_text() {
    std::string text;
    for (const std::string_view line : maker_lines)
        text.append(text.empty() ? "" : "\r").append(line);
    return text;
}

}  // namespace coltre
