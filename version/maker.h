#pragma once

#include <array>
#include <string>
#include <string_view>

// Read by release.cmake as well, line by line, for what stands in the packages and in the programs'
// properties.
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

/// The terms on which the program itself is given. Whoever distributes the program names theirs here.
inline constexpr std::string_view program_terms =
    "Le condizioni d'uso di Coltre le stabilisce il produttore, che non ne ha ancora indicate.";

/// Where the terms of all that the program contains are told.
inline constexpr std::string_view notice_text = "Componenti e loro licenze: file NOTICE, accanto al manuale.";

/// The maker's lines as the text of a message.
inline std::string maker_text() {
    std::string text;
    for (const std::string_view line : maker_lines)
        text.append(text.empty() ? "" : "\r").append(line);
    return text;
}

}  // namespace coltre
