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
#include "cli/completion.h"
#include "cli/help.h"
#include "cli/places_command.h"
#include "cli/worked_cases_command.h"
#include "platform/files.h"
#include "text/names.h"
#include "version/maker.h"
#include "version/version.h"

namespace coltre::cli {

namespace {

/// The streams of a run.
struct Streams {
    std::istream& in;
    std::ostream& out;
    std::ostream& err;
    bool err_is_terminal;
};

/// @param command  whose help tells more, with a blank behind it; empty for the help of all
int complain(std::ostream& err, std::string_view what, std::string_view command) {
    err << "coltre-calcolo: " << what << "\nPer l'aiuto: coltre-calcolo " << command << "--help\n";
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
    Request performed = request;
    if (!json) performed.set(keys::passaggi, "true");  // the table shows what the steps start from
    const Answer result = perform(performed, environment, memory);
    if (json) {
        streams.out << to_json(result) << '\n';
    } else {
        for (const std::string& entry : result.partly_understood)
            streams.err << "Attenzione: " << entry << '\n';
        for (const std::string& coefficient : result.unusual)
            streams.err << "Attenzione: " << coefficient << '\n';
        for (const Message& message : result.messages)
            print_message(streams.err, message);
        if (result.end != End::wrong_request) streams.out << to_table(result, request.flag(keys::passaggi));
        if (result.end == End::wrong_request)
            return complain(streams.err, *result.error, std::string(describe(*request.kind).name) + " ");
        if (result.end == End::failed) streams.err << "Errore: " << *result.error << '\n';
    }
    return check_output(streams.out, streams.err, exit_status(result.end));
}

int run_batch_command(const std::string& file, bool csv, const Environment& environment,
                      const Streams& streams) {
    const auto finish = [&](std::istream& in) {
        const BatchOutcome outcome =
            csv ? run_csv_batch(in, streams.out, environment) : run_batch(in, streams.out, environment);
        if (outcome.end == BatchEnd::wrong_header)
            return complain(streams.err, *outcome.header_error, "lotto ");
        if (outcome.end == BatchEnd::input_failed)
            streams.err << "coltre-calcolo: impossibile leggere le richieste\n";
        if (streams.err_is_terminal) streams.err << summary(outcome) << '\n';
        return check_output(streams.out, streams.err, outcome.end == BatchEnd::all_well ? all_well : failed);
    };
    if (file == "-") return finish(streams.in);

    const std::filesystem::path path = to_path(file);
    std::ifstream in(path, std::ios::binary);
    std::error_code error;
    if (!in || std::filesystem::is_directory(path, error)) {
        streams.err << "coltre-calcolo: impossibile leggere il file " << in_quotes(file) << '\n';
        return bad_usage;
    }
    return finish(in);
}

/// What the arguments ask for: the actions of the subcommands put themselves here.
struct Choice {
    Request request;
    bool json = false;
    bool csv = false;
    std::string batch_file = "-";
    std::string altitude_directory;
    PlacesQuery places;
    std::string cases_file;
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
                choice.usage_error = "l'opzione --" + std::string(key.name) + " è ripetuta";
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
    command.add_flag("--" + std::string(json_option.name), choice.json);
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
    const std::size_t start = std::min(text.find("--"), text.size());
    const std::string option = text.substr(start, text.find_first_of(": ", start) - start);
    if (dynamic_cast<const CLI::ArgumentMismatch*>(&error) != nullptr) return "manca il valore di " + option;
    if (dynamic_cast<const CLI::ConversionError*>(&error) != nullptr)
        return option + " non accetta un valore";
    return "argomenti errati";
}

/// The innermost command that was named.
const CLI::App& named_command(const CLI::App& app) {
    const CLI::App* command = &app;
    while (!command->get_subcommands().empty())
        command = command->get_subcommands().front();
    return *command;
}

/// The names that lead to a command, each with a blank behind it.
std::string command_path(const CLI::App& command) {
    if (command.get_parent() == nullptr) return {};
    return command_path(*command.get_parent()) + command.get_name() + " ";
}

/// Says that the command does not take an argument, and which one may be meant.
std::string unknown_argument(const CLI::App& command, const std::string& argument) {
    const std::string name = argument.substr(0, argument.find('='));
    const bool is_option = name.starts_with("--");
    if (is_option && kind_of(command.get_name()) && find_key(name.substr(2)))
        return in_quotes(name) + " non è del calcolo " + in_quotes(command.get_name());
    const auto nearest = nearest_names(name, is_option ? option_names(command) : command_names(command), 1);
    return "argomento sconosciuto: " + in_quotes(argument) +
           (nearest.empty() ? "" : "; forse " + nearest.front());
}

}  // namespace

int run(std::span<const std::string> arguments, const Environment& environment, std::istream& in,
        std::ostream& out, std::ostream& err, bool err_is_terminal) {
    const Streams streams{in, out, err, err_is_terminal};
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
    batch.add_flag("--" + std::string(csv_option.name), choice.csv);
    batch.callback([&] {
        choice.action = [&] {
            return run_batch_command(choice.batch_file, choice.csv, environment, streams);
        };
    });

    CLI::App& places = add_subcommand(app, "comuni", choice, places_help);
    places.add_option("testo", choice.places.text);
    places.add_option("--provincia", choice.places.province);
    places.add_flag("--json", choice.places.json);
    places.callback([&] {
        choice.action = [&] {
            return check_output(out, err, places_command(choice.places, environment.own_directory, out, err));
        };
    });

    CLI::App& cases = add_subcommand(app, "prova", choice, worked_cases_help);
    cases.add_option("file", choice.cases_file);
    cases.callback([&] {
        choice.action = [&] {
            return check_output(out, err, worked_cases_command(choice.cases_file, out, err));
        };
    });

    CLI::App& altitudes = add_subcommand(app, "altitudini", choice, altitudes_help);
    altitudes.require_subcommand(0, 1);
    choice.altitude_directory = environment.own_directory;
    const auto add_altitude_command = [&](std::string_view name, auto command) {
        CLI::App& action = add_subcommand(altitudes, name, choice, altitudes_help);
        action.add_option("dir", choice.altitude_directory);
        action.callback([&choice, &streams, command] {
            if (choice.altitude_directory.empty()) choice.usage_error = "manca il nome della cartella";
            choice.action = [&choice, &streams, command] {
                return check_output(streams.out, streams.err,
                                    command(choice.altitude_directory, streams.out, streams.err));
            };
        });
    };
    add_altitude_command("scrivi", write_command);
    add_altitude_command("verifica", check_command);
    add_altitude_command("ripara", repair_command);

    // For the shell alone, so that no help names it.
    if (!arguments.empty() && arguments.front() == "completa") {
        for (const std::string& word : completions(app, arguments.subspan(1), environment.own_directory))
            out << word << '\n';
        return check_output(out, err, all_well);
    }

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
        return complain(err, parse_error_text(error), command_path(named_command(app)));
    }
    const CLI::App& command = named_command(app);
    const std::string path = command_path(command);
    std::vector<std::string> extras = app.remaining(true);
    std::erase(extras, "--");  // the end of the options, which the library leaves behind
    if (!extras.empty()) return complain(err, unknown_argument(command, extras.front()), path);
    if (!choice.usage_error.empty()) return complain(err, choice.usage_error, path);
    if (!choice.action) {
        return complain(
            err,
            altitudes.parsed() ? "manca il comando: scrivi, verifica o ripara" : "manca il nome del calcolo",
            path);
    }
    return choice.action();
}

}  // namespace coltre::cli
