#include "cli/command.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <functional>
#include <ranges>
#include <vector>

#include "cli/altitude_commands.h"
#include "cli/answers.h"
#include "cli/batch.h"
#include "cli/help.h"
#include "platform/files.h"
#include "version/maker.h"
#include "version/version.h"

namespace coltre::cli {

namespace {

/// The streams of a run.
struct Streams {
    std::istream& in;
    std::ostream& out;
    std::ostream& err;
};

int complain(std::ostream& err, std::string_view what) {
    err << "coltre-calcolo: " << what << "\nPer l'aiuto: coltre-calcolo --help\n";
    return bad_usage;
}

int check_output(std::ostream& out, std::ostream& err, int status) {
    out.flush();
    if (out) return status;
    err << "coltre-calcolo: impossibile scrivere i risultati\n";
    return failed;
}

/// A message box as lines of text.
void print_message(std::ostream& err, const Message& message) {
    std::string text = message.title + ": " + message.text + '\n';
    std::ranges::replace(text, '\r', '\n');
    err << text;  // at once: another program may write to the same place
}

int exit_status(End end) {
    if (end == End::well) return all_well;
    return end == End::wrong_request ? bad_usage : failed;
}

int run_calculation(const Request& request, bool json, const Environment& environment,
                    const Streams& streams) {
    SiteMemory memory;
    const Answer result = perform(request, environment, memory);
    if (json) {
        streams.out << to_json(result) << '\n';
    } else {
        for (const std::string& entry : result.partly_understood)
            streams.err << "Attenzione: " << entry << '\n';
        for (const Message& message : result.messages)
            print_message(streams.err, message);
        if (result.end != End::wrong_request) streams.out << to_table(result);
        if (result.end == End::wrong_request) return complain(streams.err, result.error);
        if (result.end == End::failed) streams.err << "Errore: " << result.error << '\n';
    }
    return check_output(streams.out, streams.err, exit_status(result.end));
}

int run_batch_command(const std::string& file, const Environment& environment, const Streams& streams) {
    const auto finish = [&](std::istream& in) {
        const BatchEnd end = run_batch(in, streams.out, environment);
        if (end == BatchEnd::input_failed)
            streams.err << "coltre-calcolo: impossibile leggere le richieste\n";
        return check_output(streams.out, streams.err, end == BatchEnd::all_well ? all_well : failed);
    };
    if (file == "-") return finish(streams.in);

    const std::filesystem::path path = to_path(file);
    std::ifstream in(path, std::ios::binary);
    std::error_code error;
    if (!in || std::filesystem::is_directory(path, error)) {
        return complain(streams.err, "impossibile leggere il file " + in_quotes(file));
    }
    return finish(in);
}

/// What the arguments ask for: the actions of the subcommands put themselves here.
struct Choice {
    Request request;
    bool json = false;
    std::string batch_file = "-";
    std::string altitude_directory;
    std::function<std::string()> help = general_help;
    std::string usage_error;
    std::function<int()> action;
};

/// Every option takes the one text behind it, whatever that looks like, and is given once.
void add_options(CLI::App& command, const Description& calculation, Choice& choice) {
    const auto add = [&](const Key& key) {
        if (key.type == KeyType::flag) {
            command.add_flag_callback("--" + std::string(key.name),
                                      [&choice, key] { choice.request.set(key, "true"); });
            return;
        }
        const auto take = [&choice, key](const std::vector<std::string>& values) {
            if (values.size() > 1)
                choice.usage_error = "l'opzione --" + std::string(key.name) + " è data più volte";
            choice.request.set(key, values.front());
        };
        command.add_option_function<std::vector<std::string>>("--" + std::string(key.name), take)
            ->expected(1)
            ->allow_extra_args(false)
            ->take_all();
    };
    for (const Entry& entry : calculation.entries)
        add(key_of(entry));
    std::ranges::for_each(common_keys(), add);
    command.add_flag("--json", choice.json);
}

CLI::App& add_subcommand(CLI::App& parent, std::string_view name, Choice& choice,
                         std::function<std::string()> help) {
    CLI::App& command = *parent.add_subcommand(std::string(name));
    command.set_help_flag("-h,--help");
    command.allow_extras();
    command.preparse_callback([&choice, help = std::move(help)](std::size_t) { choice.help = help; });
    return command;
}

/// The arguments with each "--option=value" as two, so that an empty value is one.
std::vector<std::string> split_assignments(std::span<const std::string> arguments) {
    std::vector<std::string> single;
    for (const std::string& argument : arguments) {
        const std::size_t equals = argument.find('=');
        const bool assigns = argument.starts_with("--") && equals != std::string::npos &&
                             find_key(std::string_view(argument).substr(2, equals - 2));
        single.push_back(assigns ? argument.substr(0, equals) : argument);
        if (assigns) single.push_back(argument.substr(equals + 1));
    }
    return single;
}

/// An Italian sentence for arguments that cannot be taken apart.
std::string parse_error_text(const CLI::ParseError& error) {
    const std::string text = error.what();
    const std::string option = text.substr(0, text.find(':'));
    if (dynamic_cast<const CLI::ArgumentMismatch*>(&error) != nullptr) return "manca il valore di " + option;
    if (dynamic_cast<const CLI::ConversionError*>(&error) != nullptr) return "--json non prende un valore";
    return "argomenti errati";
}

}  // namespace

int run(std::span<const std::string> arguments, const Environment& environment, std::istream& in,
        std::ostream& out, std::ostream& err) {
    const Streams streams{in, out, err};
    Choice choice;
    CLI::App app;
    app.set_help_flag("-h,--help");
    app.set_version_flag(
        "--version", "coltre-calcolo " + std::string(version_and_build()) + "\n" + std::string(notice_text));
    app.allow_extras();
    app.allow_windows_style_options(false);  // a path may begin with "/"; the subcommands take this over
    app.require_subcommand(0, 1);

    for (const Description& calculation : calculations()) {
        CLI::App& command = add_subcommand(app, calculation.name, choice,
                                           [&calculation] { return calculation_help(calculation); });
        add_options(command, calculation, choice);
        command.callback([&choice, &environment, &streams, &calculation] {
            choice.request.kind = calculation.kind;
            choice.action = [&] {
                return run_calculation(choice.request, choice.json, environment, streams);
            };
        });
    }

    CLI::App& batch = add_subcommand(app, "lotto", choice, batch_help);
    batch.add_option("file", choice.batch_file);
    batch.callback(
        [&] { choice.action = [&] { return run_batch_command(choice.batch_file, environment, streams); }; });

    CLI::App& altitudes = add_subcommand(app, "altitudini", choice, altitudes_help);
    altitudes.require_subcommand(0, 1);
    choice.altitude_directory = environment.own_directory;
    const auto add_altitude_command = [&](std::string_view name, auto command) {
        CLI::App& action = add_subcommand(altitudes, name, choice, altitudes_help);
        action.add_option("dir", choice.altitude_directory);
        action.callback([&choice, &streams, command] {
            if (choice.altitude_directory.empty()) choice.usage_error = "la cartella è vuota";
            choice.action = [&choice, &streams, command] {
                return check_output(streams.out, streams.err,
                                    command(choice.altitude_directory, streams.out, streams.err));
            };
        });
    };
    add_altitude_command("scrivi", write_command);
    add_altitude_command("verifica", check_command);
    add_altitude_command("ripara", repair_command);

    try {
        // The library takes its arguments from the end of the list.
        const std::vector<std::string> single = split_assignments(arguments);
        app.parse(std::vector<std::string>(single.rbegin(), single.rend()));
    } catch (const CLI::CallForHelp&) {
        out << choice.help();
        return check_output(out, err, all_well);
    } catch (const CLI::CallForVersion& version) {
        out << version.what() << '\n';
        return check_output(out, err, all_well);
    } catch (const CLI::ParseError& error) {
        return complain(err, parse_error_text(error));
    }
    if (const auto extras = app.remaining(true); !extras.empty()) {
        return complain(err, "argomento sconosciuto: " + in_quotes(extras.front()));
    }
    if (!choice.usage_error.empty()) return complain(err, choice.usage_error);
    if (!choice.action) {
        return complain(
            err, altitudes.parsed() ? "manca il comando: scrivi, verifica o ripara" : "manca il calcolo");
    }
    return choice.action();
}

}  // namespace coltre::cli
