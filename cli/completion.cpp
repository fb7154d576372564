#include "cli/completion.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <optional>

#include "platform/files.h"
#include "report/unit_systems.h"
#include "requests/request.h"
#include "site/altitude_file.h"
#include "site/built_in_altitudes.h"
#include "site/municipalities.h"
#include "site/regions.h"
#include "text/names.h"

namespace coltre::cli {

namespace {

/// The words without what the shell takes away or adds: "--ce=1" comes as three of them.
std::vector<std::string> plain_words(std::span<const std::string> words) {
    std::vector<std::string> plain;
    for (std::string word : words) {
        std::erase_if(word, [](char c) { return c == '"' || c == '\\'; });
        if (word != "=") plain.push_back(std::move(word));
    }
    if (words.empty() || words.back() == "=") plain.emplace_back();
    return plain;
}

std::vector<std::string> municipalities_of(std::string_view province, std::string_view directory) {
    const auto found = std::ranges::find(provinces(), fold_name(province), fold_name);
    if (found == provinces().end()) return {};
    auto names = municipalities_in(read_content(altitude_file_name(directory)).bytes, *found);
    if (!names) names = municipalities_in(built_in_altitude_file(), *found);
    return names.value_or(std::vector<std::string>());
}

/// The values that an option takes, if they are few; nothing if this is no option with a value.
std::optional<std::vector<std::string>> values_of(std::string_view option, std::span<const std::string> words,
                                                  std::string_view own_directory) {
    if (!option.starts_with("--")) return std::nullopt;
    const std::optional<Key> key = find_key(option.substr(2));
    if (!key || key->type == KeyType::flag) return std::nullopt;
    std::vector<std::string> values;
    if (key->name == keys::provincia.name) values.assign(provinces().begin(), provinces().end());
    if (key->name == keys::comune.name) {
        const auto province = std::ranges::find(words, "--" + std::string(keys::provincia.name));
        if (words.end() - province > 1) values = municipalities_of(*(province + 1), own_directory);
    }
    if (key->name == keys::zona.name) values = {"0", "1", "2", "3"};
    if (key->name == keys::unita.name) values.assign(unit_items.begin(), unit_items.end());
    if (key->name == keys::impaginazione.name) values = {"completa", "sintetica", "passaggi"};
    return values;
}

}  // namespace

std::vector<std::string> command_names(const CLI::App& command) {
    std::vector<std::string> names;
    for (const CLI::App* const sub : command.get_subcommands(nullptr))
        names.push_back(sub->get_name());
    return names;
}

std::vector<std::string> option_names(const CLI::App& command) {
    std::vector<std::string> names;
    for (const CLI::Option* const option : command.get_options())
        for (const std::string& name : option->get_lnames())
            names.push_back("--" + name);
    return names;
}

std::vector<std::string> completions(const CLI::App& app, std::span<const std::string> words,
                                     std::string_view own_directory) {
    const std::vector<std::string> plain = plain_words(words);
    const std::span<const std::string> before = std::span(plain).first(plain.size() - 1);
    const CLI::App* command = &app;
    for (const std::string& word : before)
        for (const CLI::App* const sub : command->get_subcommands(nullptr))
            if (sub->get_name() == word) command = sub;

    std::vector<std::string> proposed;
    if (auto values = values_of(before.empty() ? "" : before.back(), before, own_directory)) {
        proposed = *std::move(values);
    } else {
        if (!plain.back().starts_with('-')) proposed = command_names(*command);
        // Behind other commands a word without a dash is a file, which the shell knows.
        if (plain.back().starts_with('-') || kind_of(command->get_name())) proposed = option_names(*command);
        std::erase_if(proposed, [&](const std::string& name) {
            return std::ranges::find(before, name) != before.end();
        });
    }
    const std::string typed = fold_name(plain.back());
    std::erase_if(proposed, [&](const std::string& name) { return !fold_name(name).starts_with(typed); });
    return proposed;
}

}  // namespace coltre::cli
