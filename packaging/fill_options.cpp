#include <cctype>
#include <functional>
#include <iostream>
#include <map>
#include <string>
#include <string_view>

#include "cli/help.h"
#include "platform/environment.h"

// Puts the options of the command, with the texts of its help, into a document: fill_options < SOURCE >
// DOCUMENT A comment of the document that is one of the marks below, alone on its line, becomes the table of
// its name.

namespace {

using namespace coltre;

/// In the notation of manual pages.
std::string page_text(std::string_view text) {
    std::string escaped;
    for (const char c : text) {
        if (c == '-') escaped += '\\';
        escaped += c;
    }
    return escaped;
}

std::string sentence(std::string_view text) {
    std::string sentence(text);
    sentence[0] = static_cast<char>(std::toupper(static_cast<unsigned char>(sentence[0])));
    return page_text(sentence) + ".\n";
}

std::string page_option(const Key& key) {
    const std::string name = page_text(key.name);
    std::string text = key.type == KeyType::flag
                           ? ".TP\n.B \\-\\-" + name + "\n"
                           : ".TP\n.BI \\-\\-" + name + " \" " + std::string(key.placeholder) + "\"\n";
    text += sentence(key.meaning);
    if (!key.otherwise.empty()) text += "Se manca: " + page_text(key.otherwise) + ".\n";
    return text;
}

std::string page_calculations() {
    std::string text;
    for (const Description& calculation : calculations()) {
        text += ".TP\n.B " + page_text(calculation.name) + "\n" + sentence(calculation.meaning) + ".RS\n";
        for (const Entry& entry : calculation.entries)
            text += page_option(key_of(entry));
        text += ".RE\n";
    }
    return text;
}

std::string page_common_options() {
    std::string text;
    for (const Key& key : common_keys())
        text += page_option(key);
    return text + page_option(cli::json_option);
}

/// In the notation of the manual.
std::string manual_option(const Key& key) {
    const std::string value = key.type == KeyType::flag ? "" : " " + std::string(key.placeholder);
    return "`--" + std::string(key.name) + value + "`";
}

std::string manual_calculations() {
    std::string text = "| Calcolo | Che cosa calcola | Opzioni necessarie |\n|---|---|---|\n";
    for (const Description& calculation : calculations()) {
        text += "| `" + std::string(calculation.name) + "` | " + std::string(calculation.meaning) + " |";
        for (const Entry& entry : calculation.entries)
            text += (text.back() == '|' ? " " : "; ") + manual_option(key_of(entry)) + " " +
                    std::string(entry.meaning);
        text += " |\n";
    }
    return text;
}

std::string manual_common_options() {
    std::string text = "| Opzione | Significato | Se manca |\n|---|---|---|\n";
    const auto append = [&](const Key& key) {
        text += "| " + manual_option(key) + " | " + std::string(key.meaning) + " | " +
                std::string(key.otherwise) + " |\n";
    };
    for (const Key& key : common_keys())
        append(key);
    append(cli::json_option);
    return text;
}

const std::map<std::string_view, std::function<std::string()>> tables{
    {R"(.\" calcoli)", page_calculations},
    {R"(.\" opzioni comuni)", page_common_options},
    {"<!-- calcoli -->", manual_calculations},
    {"<!-- opzioni comuni -->", manual_common_options}};

}  // namespace

int main() {
    const PlainStreams plain_streams;
    for (std::string line; std::getline(std::cin, line);) {
        const auto table = tables.find(line);
        std::cout << (table == tables.end() ? line + '\n' : table->second());
    }
    std::cout.flush();
    return std::cin.eof() && std::cout ? 0 : 1;
}
