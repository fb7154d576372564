#include <gmock/gmock.h>
#include <sys/stat.h>

#include <array>
#include <deque>

#include "site/altitude_check.h"
#include "site/built_in_altitudes.h"
#include "tests/faults/real_faults.h"

namespace coltre {
namespace {

namespace fs = std::filesystem;
using testing::AnyOf;
using testing::Contains;
using testing::ElementsAre;
using testing::EndsWith;
using testing::Pair;
using testing::StartsWith;
using Arguments = std::vector<std::string>;

/// Makes something at the place of a file.
using Make = std::function<void(const fs::path& file)>;
const Make directory = [](const fs::path& file) { fs::create_directory(file); };
const Make pipe_of_nobody = [](const fs::path& file) { ::mkfifo(file.c_str(), 0600); };
const Make full_device = make_full_device;
const Make link_to_itself = [](const fs::path& file) { fs::create_symlink(file.filename(), file); };
const Make dangling_link = [](const fs::path& file) { fs::create_symlink("nowhere", file); };
const Make text_file = [](const fs::path& file) { std::ofstream(file) << "text"; };
const Make nothing = [](const fs::path&) {};

/// A directory on a disk of its own where that is possible, and commands whose last argument it is.
class CommandFaults : public testing::Test, public TemporaryDirectory {
  protected:
    [[nodiscard]] Arguments altitudes(const char* action) const { return {"altitudini", action, path()}; }
    [[nodiscard]] Arguments site() const {
        return {"una-falda", "--provincia", "Torino",       "--comune", "Torino",
                "--alfa",    "15",          "--altitudini", path()};
    }
    [[nodiscard]] Arguments report(const char* calculation = "una-falda",
                                   const char* entry = "--alfa") const {
        return {calculation, "--zona", "0", "--altitudine", "9", entry, "15", "--relazione", path()};
    }
    static Command::End run(const Arguments& arguments, const Conditions& conditions = {}) {
        return Command(arguments, conditions).wait();
    }
    /// The command fails and says just this.
    static void expect_reported(const Arguments& arguments, const std::string& report,
                                const Conditions& conditions = {}) {
        const Command::End end = run(arguments, conditions);
        EXPECT_EQ(end.status, 1) << arguments.front();
        EXPECT_EQ(end.err, report);
    }
    [[nodiscard]] std::string no_report(const fs::path& place, const std::string& name,
                                        const std::string& reason) const {
        return "Coltre: Impossibile scrivere il file " + suite_notation(place / name) + ": " + reason + ".\n";
    }
    [[nodiscard]] std::string table() const { return path() / "altitudini.txt"; }
    [[nodiscard]] std::map<std::string, std::string> left() const { return content_of(path()); }
    void start_again() const {
        for (const auto& entry : fs::directory_iterator(path()))
            fs::remove_all(entry.path());
    }

    SmallDisk disk{path()};
    const std::string own_table = "Torino\r\nTorino " + std::string(300'000, ' ') + "240\r\n\r\n";
    const std::string own = summary(own_table), built_in = summary(built_in_altitude_file());
    const std::string built_in_answers =
        "Coltre: La provincia Torino non si legge dal file altitudini.txt:\n"
        "vale la tabella del programma. Il file resta com'è.\n";
    const std::string no_site = "Coltre: Errore di scrittura del file altitudini.txt .\n";
};

TEST_F(CommandFaults, ObstacleIsToldWithTheFileAndStaysAsItIs) {
    const Make missing_place = [](const fs::path& file) { fs::remove(file.parent_path()); };
    const auto place_is = [&](const Make& make) {
        return [=](const fs::path& file) { missing_place(file), make(file.parent_path()); };
    };
    const std::string no_file = "con questo nome esiste già una cartella o altro che non è un file",
                      denied = "permesso negato", bad_link = "il collegamento simbolico è interrotto",
                      no_place = "la cartella non esiste", unreadable = "il file non si può leggere";
    struct Obstacle {
        std::string reason;
        Make make;
        std::string repair_reason;  ///< where it is another one
        bool is_missing = false;    ///< there is no altitudini.txt, so that the command wants to write one
        mode_t file_mode = 0644, place_mode = 0755;
        rlim_t largest_file = RLIM_INFINITY;
    };
    for (const Obstacle& it :
         {Obstacle{no_file, directory, unreadable},
          {no_file, pipe_of_nobody, unreadable},
          {no_file, full_device, unreadable},
          {bad_link, link_to_itself, unreadable},
          {bad_link, dangling_link, "", true},
          {bad_link, place_is(link_to_itself), unreadable},
          {no_place, missing_place, "", true},
          {no_place, place_is(text_file), "", true},
          {denied, text_file, "", false, 0444},
          {denied, text_file, unreadable, false, 0000},
          {denied, text_file, "", false, 0644, 0555},
          {denied, text_file, unreadable, false, 0644, 0600},
          {"il file supera la dimensione massima consentita", text_file, "", false, 0644, 0755, 100}}) {
        const fs::path place = path() / "sub";
        /// Runs the command where the obstacle is, and finds everything left as it was.
        const auto met = [&](const char* name, Arguments command) {
            start_again();
            fs::create_directory(place);
            const fs::path file = place / name;
            it.make(file);
            const auto before = left();
            const bool has_modes = it.file_mode != 0644 || it.place_mode != 0755;
            if (has_modes) ::chmod(file.c_str(), it.file_mode), ::chmod(place.c_str(), it.place_mode);
            command.back() = place;
            Command::End end = run(command, {.permissions_bind = true, .largest_file = it.largest_file});
            if (has_modes) ::chmod(place.c_str(), 0755), ::chmod(file.c_str(), 0644);
            EXPECT_EQ(left(), before);
            return end;
        };
        const auto refused = [&](const char* name, const Arguments& command, const std::string& report) {
            SCOPED_TRACE(report);
            const Command::End end = met(name, command);
            EXPECT_EQ(end.status, 1);
            EXPECT_EQ(end.err, report);
        };
        const std::string name = "altitudini.txt", file = " il file " + (place / name).string() + ": ";
        const std::string& repair_reason = it.repair_reason.empty() ? it.reason : it.repair_reason;
        refused("altitudini.txt", altitudes("scrivi"), "Impossibile scrivere" + file + it.reason + ".\n");
        refused("altitudini.txt", altitudes("ripara"), "Impossibile riparare" + file + repair_reason + ".\n");
        if (it.is_missing) {
            refused("altitudini.txt", site(), no_site);
        } else {
            const Command::End end = met("altitudini.txt", site());
            EXPECT_EQ(end.status, 0);
            EXPECT_EQ(end.err, built_in_answers);
        }
        if (it.repair_reason == unreadable)
            refused("altitudini.txt", altitudes("verifica"),
                    "Impossibile leggere" + file + "il file manca o non si può leggere.\n");
        refused("coltre.txt", report(), no_report(place, "coltre.txt", it.reason));
        refused("coltrecasipart.txt", report("parete", "--h"),
                no_report(place, "coltrecasipart.txt", it.reason));
    }
    Arguments far = report();
    far.back() = "/" + std::string(5000, 'x');
    expect_reported(far, no_report(far.back(), "coltre.txt", "il nome è troppo lungo"));
}

TEST_F(CommandFaults, FullDiskIsToldAndCostsNothing) {
    if (!disk.mounted()) GTEST_SKIP() << "this machine mounts no disk for tests";
    const std::string full = "il disco è pieno", refused = "Impossibile scrivere il file " + table() + ": ";
    disk.leave(0);
    put("coltre.txt", "");
    expect_reported(site(), no_site);
    expect_reported(report(), no_report(path(), "coltre.txt", full));
    expect_reported(report("parete", "--h"), no_report(path(), "coltrecasipart.txt", full));
    EXPECT_THAT(files(), ElementsAre("coltre.txt", "filler"));

    disk.leave(900'000);
    put("altitudini.txt", own_table);
    put("altitudini.bak", "first");
    for (const unsigned free : {0U, 150'000U}) {
        disk.leave(free);
        expect_reported(altitudes("scrivi"), refused + full + ".\n");
        EXPECT_EQ(left()["altitudini.txt"], own);
        EXPECT_EQ(left()["altitudini.bak"], "first");
        EXPECT_THAT(files(), Not(Contains(EndsWith(".tmp"))));
    }
    disk.leave(400'000);
    EXPECT_EQ(run(altitudes("scrivi")).status, 0);
    EXPECT_EQ(left()["altitudini.bak"], own);
    disk.make_read_only();
    const std::string read_only = "la cartella è in sola lettura";
    expect_reported(altitudes("ripara"),
                    "Impossibile riparare il file " + table() + ": " + read_only + ".\n");
    expect_reported(report(), no_report(path(), "coltre.txt", read_only));
}

TEST_F(CommandFaults, RequestsAndResultsThatGoNowhereAreToldWithAFailure) {
    put("requests", R"({"calcolo":"una-falda","zona":"0","altitudine":"9","alfa":"15"})");
    put("results", "");
    const std::string requests = path() / "requests", results = path() / "results";
    const char* const in = requests.c_str();
    for (const Arguments& arguments : {Arguments{"--help"}, {"--version"}, {"lotto"}})
        for (const Conditions& conditions : {Conditions{.output = "/dev/full", .input = in},
                                             {.output = "", .input = in},
                                             {.largest_file = 10, .output = results.c_str(), .input = in}})
            expect_reported(arguments, "coltre-calcolo: impossibile scrivere i risultati\n", conditions);
    expect_reported(altitudes("scrivi"), "coltre-calcolo: impossibile scrivere i risultati\n",
                    {.output = "/dev/full"});
    EXPECT_EQ(left()["altitudini.txt"], built_in);
    for (const char* input : {"", "/tmp"})
        expect_reported({"lotto"}, "coltre-calcolo: impossibile leggere le richieste\n", {.input = input});
    ::chmod(requests.c_str(), 0200);
    for (const std::string& file : {path().string(), requests, requests + "/x"}) {
        const Command::End end = run({"lotto", file}, {.permissions_bind = true});
        EXPECT_EQ(end.status, 2);
        EXPECT_THAT(end.err, StartsWith("coltre-calcolo: impossibile leggere il file «" + file + "»\n"));
    }
}

TEST_F(CommandFaults, TableThatCannotBeReadIsSetAsideByTheCommandForThatAlone) {
    for (const bool too_large : {false, true}) {
        start_again();
        put("altitudini.txt", own_table);
        if (too_large) fs::resize_file(table(), std::uintmax_t{100} << 30U);
        if (!too_large) ::chmod(table().c_str(), 0200);
        EXPECT_EQ(run(site(), {.permissions_bind = true}).err, built_in_answers);
        EXPECT_THAT(files(), ElementsAre("altitudini.txt"));
        EXPECT_EQ(run(altitudes("scrivi"), {.permissions_bind = true}).out,
                  "Scritto il file " + table() + "; il precedente è conservato come altitudini.bak.\n");
        fs::resize_file(path() / "altitudini.bak", own_table.size());
        ::chmod((path() / "altitudini.bak").c_str(), 0600);
        EXPECT_EQ(left()["altitudini.txt"], built_in);
        EXPECT_EQ(left()["altitudini.bak"], own);
    }
}

TEST_F(CommandFaults, WhateverStandsInThePlaceOfTheBackupIsKept) {
    const Make link_to_the_table = [](const fs::path& file) { fs::create_symlink("altitudini.txt", file); };
    for (const Make& make : {directory, pipe_of_nobody, link_to_itself, link_to_the_table, text_file}) {
        start_again();
        const fs::path backup = path() / "altitudini.bak";
        make(backup);
        const std::string before = left()["altitudini.bak"];
        if (fs::is_regular_file(fs::symlink_status(backup))) fs::permissions(backup, fs::perms{0444});
        put("altitudini.txt", own_table);
        EXPECT_EQ(run(altitudes("scrivi"), {.permissions_bind = true}).status, 0);
        EXPECT_THAT(left(), ElementsAre(Pair("altitudini.bak", own), Pair("altitudini.bak1", before),
                                        Pair("altitudini.txt", built_in)));
    }
}

/// Lets the traced program come to that many calls of the system, or returns from them.
/// @return how many it came to: fewer if it ended before; -1 if it cannot be watched
int stop_after(int calls, const Command& command) {
    int status = 0;
    ::waitpid(command.process(), &status, 0);
    if (!WIFSTOPPED(status)) return -1;
    for (int made = 0; made < calls; ++made) {
        ::ptrace(PTRACE_SYSCALL, command.process(), 0, 0);
        ::waitpid(command.process(), &status, 0);
        if (!WIFSTOPPED(status)) return made;
    }
    return calls;
}

TEST_F(CommandFaults, KilledOrOvertakenAtWhateverMomentItLosesNothing) {
    const auto put_files = [this] {
        start_again();
        put("altitudini.txt", own_table);
        put("altitudini.bak", "first");
    };
    put_files();
    const int all_calls = stop_after(1'000'000, Command(altitudes("scrivi"), {.traced = true}));
    if (all_calls < 0) GTEST_SKIP() << "this machine lets no test watch a program";
    for (const bool killed : {true, false}) {
        int old_tables = 0, new_tables = 0;
        int calls = all_calls - 1;
        // From its last call back to where it has changed nothing yet.
        for (bool changed = true; changed; calls -= rounds_for_one) {
            put_files();
            const auto before = left();
            Command first(altitudes("scrivi"), {.traced = true});
            if (stop_after(calls, first) != calls) continue;  // not every start takes as many calls
            const auto stopped = left();
            changed = stopped != before;
            SCOPED_TRACE(testing::PrintToString(stopped));
            EXPECT_THAT(stopped.at("altitudini.txt"), AnyOf(own, built_in));
            ++(stopped.at("altitudini.txt") == own ? old_tables : new_tables);

            if (killed) ::kill(first.process(), SIGKILL);
            Command second(altitudes("scrivi"));
            if (!killed) {
                second.ends_within(20);  // ms; it may have to wait for the first
                ::ptrace(PTRACE_DETACH, first.process(), 0, 0);
                EXPECT_EQ(first.wait().status, 0);
            }
            EXPECT_EQ(second.wait().err, "");
            EXPECT_EQ(left()["altitudini.txt"], built_in);
            for (const std::string& kept : {own, std::string("first")})
                EXPECT_THAT(left(), Contains(Pair(StartsWith("altitudini.bak"), kept)));
        }
        EXPECT_TRUE(old_tables > 5 && new_tables > 1) << "not where it writes";
    }
}

/// The temporary files of a directory.
std::vector<fs::path> temporary_files(const fs::path& place) {
    std::vector<fs::path> found;
    for (const auto& entry : fs::directory_iterator(place))
        if (entry.path().extension() == ".tmp") found.push_back(entry.path());
    return found;
}

TEST_F(CommandFaults, TemporaryFileIsClosedToOthersAndGoesWhenTheProgramIsInterrupted) {
    const fs::path victim = path() / "victim";
    const int all_calls = stop_after(1'000'000, Command(report(), {.traced = true}));
    if (all_calls < 0) GTEST_SKIP() << "this machine lets no test watch a program";
    std::map<int, int> interrupted;
    int hits = 0;
    // Where the temporary file is there, one call after the other: each way at two of them.
    for (int calls = all_calls - 1; calls > all_calls / 2 && hits<8; calls -= hits> 0 ? 1 : rounds_for_one) {
        start_again();
        put("coltre.txt", "old");
        put("victim", "of another user");
        fs::permissions(path() / "coltre.txt", fs::perms{0600});
        fs::permissions(victim, fs::perms{0640});
        Command command(report(), {.traced = true});
        if (stop_after(calls, command) != calls) continue;
        const auto temporary = temporary_files(path());
        if (temporary.empty()) continue;
        EXPECT_EQ(fs::status(temporary[0]).permissions() & fs::perms{0077}, fs::perms::none);
        const int way = hits++ % 4;
        if (way == 3) {  // somebody exchanges it for a link
            fs::rename(temporary[0], path() / "stolen");
            fs::create_symlink(victim, temporary[0]);
        } else {
            ::kill(command.process(), std::array{SIGINT, SIGTERM, SIGHUP}[static_cast<std::size_t>(way)]);
        }
        ::ptrace(PTRACE_DETACH, command.process(), 0, 0);
        const int status = command.wait().status;
        ++interrupted[way];
        if (way < 3) {
            EXPECT_EQ(status, -1) << "it goes on";
            EXPECT_THAT(temporary_files(path()), ElementsAre()) << calls;
        }
        EXPECT_EQ(fs::status(victim).permissions(), fs::perms{0640});
        EXPECT_EQ(content("victim"), "of another user");
    }
    EXPECT_THAT(interrupted, testing::SizeIs(4)) << "not where it writes";
}

TEST_F(CommandFaults, LeftoversOfKilledProgramsGoAfterADay) {
    for (const char* number : {"1", "2", "3", "5"})
        put("coltre.txt." + std::string(number) + ".tmp", "left");
    for (const char* old : {"coltre.txt.1.tmp", "coltre.txt.3.tmp"})
        fs::last_write_time(path() / old, fs::file_time_type::clock::now() - std::chrono::hours(25));
    EXPECT_EQ(run(report()).status, 0);
    EXPECT_THAT(files(), ElementsAre("coltre.txt", "coltre.txt.2.tmp", "coltre.txt.5.tmp"));
}

TEST_F(CommandFaults, ProgramsAtOnceSpoilNothing) {
    Arguments site_and_report = site();
    site_and_report.insert(site_and_report.end(), {"--relazione", path()});
    EXPECT_EQ(run(site_and_report).status, 0);
    const std::string whole_report = left()["coltre.txt"];
    for (int round = 0; round < 15; round += rounds_for_one) {
        start_again();
        put("altitudini.txt", "own");
        put("altitudini.bak", "first");
        std::deque<Command> commands;
        for (const Arguments& arguments :
             {altitudes("scrivi"), altitudes("ripara"), site_and_report, site_and_report})
            commands.emplace_back(arguments);
        for (Command& command : commands) {
            const Command::End end = command.wait();
            EXPECT_EQ(end.status, 0) << end.err;
        }
        EXPECT_THAT(left()["altitudini.txt"],
                    AnyOf(built_in, summary(inspect_altitudes(built_in_altitude_file()).repaired),
                          summary(inspect_altitudes("own").repaired)));
        for (const char* kept : {"own", "first"})
            EXPECT_THAT(left(), Contains(Pair(StartsWith("altitudini.bak"), kept)));
        EXPECT_EQ(left()["coltre.txt"], whole_report);
        EXPECT_THAT(files(), Not(Contains(EndsWith(".tmp"))));
    }
}

}  // namespace
}  // namespace coltre
