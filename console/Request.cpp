#include "console/Request.h"

#include "app/robots/RobotCheck.h"
#include "base/PathRules.h"
#include "base/Text.h"
#include "console/OperationCall.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include <CLI/CLI.hpp>

namespace vantrel {
namespace {

using Task = Request::Task;

constexpr const char* programPurpose =
    "Moves files between this PC and robot controllers, as Vantrel does in its window.";
constexpr const char* exitCodes =
    "Exit codes: 0 all done, 1 nothing done, 2 wrong usage, 3 partly done, 10 no usable library,\n"
    "11 in use by another program, 12 no connection, 70 an error nobody foresaw, 130 interrupted.\n"
    "Take any other one for a failure.\n"
    "vantrelctl COMMAND --help lists what a command takes.";

/// What a command takes beside the machine.
enum Feature : unsigned {
    usesFolder = 1,
    mayGoOn = 2, ///< after a failure
    mayRehearse = 4,
    mayReplace = 8,
    takesOneFile = 16, ///< the name is that of one file
    hasDirection = 32, ///< both ways lie open, and one has to be named
    takesCall = 64,    ///< the names are those of an operation and its arguments
    usesHistory = 128,
    makesReport = 256,
    usesNoMachine = 512,
    takesVersion = 1024,
    namesAreOptional = 2048
};

/// One command of the table.
struct Command {
    Task task;
    const char* word;
    const char* purpose;
    const char* names = nullptr; ///< what its names are; null when it takes none
    unsigned features = 0;
    Task sending = task;         ///< the task with --send, where there is a direction
    const char* group = nullptr; ///< the word before it, where there is one
};

constexpr const char* controllerFiles = "Files on the controller; * and ? stand for any characters";
constexpr const char* variableList = "The variable list, a file of the PC folder";

constexpr Command commands[] = {
    {Task::Robots, "robots", "Lists the registered robots"},
    {Task::List, "list", "Lists the files of a controller"},
    {Task::Get, "get", "Copies files from a controller to the PC", controllerFiles,
     usesFolder | mayGoOn | mayRehearse | mayReplace},
    {Task::Put, "put", "Copies files from the PC to a controller",
     "Files of the PC folder; * and ? stand for any characters",
     usesFolder | mayGoOn | mayRehearse | mayReplace},
    {Task::Delete, "delete", "Deletes files on a controller, unasked", controllerFiles,
     mayGoOn | mayRehearse},
    {Task::GetVariables, "get-vars", "Puts a controller's values into a variable list",
     variableList, usesFolder | mayRehearse | mayReplace | takesOneFile},
    {Task::PutVariables, "put-vars", "Sets a controller's variables by a variable list",
     variableList, usesFolder | mayGoOn | mayRehearse | takesOneFile},
    {Task::GetJobs, "jobs-run", "Copies the files that a job list names",
     "The job list, a file of the PC folder",
     usesFolder | mayGoOn | mayRehearse | mayReplace | takesOneFile | hasDirection, Task::PutJobs},
    {Task::GetVariables, "vars-run", "The same as get-vars or put-vars", variableList,
     usesFolder | mayGoOn | mayRehearse | mayReplace | takesOneFile | hasDirection,
     Task::PutVariables},
    {Task::Call, "call", "Calls an operation of the session by its name",
     "The operation; a wrong one gets a list of all",
     usesFolder | mayRehearse | mayReplace | takesCall},
    {Task::Doctor, "doctor", "Says what works, what does not and what to do"},
    {Task::Backup, "backup", "Puts the state of robots into the history", nullptr,
     usesHistory | makesReport},
    {Task::HistoryLog, "log", "Lists what was recorded, the latest first",
     "A robot's file that it is to be about",
     usesHistory | usesNoMachine | takesOneFile | namesAreOptional, Task::HistoryLog, "history"},
    {Task::HistoryRestore, "restore", "Puts files into the PC folder as they were",
     "Files of the robot; * and ? stand for any characters",
     usesFolder | usesHistory | mayReplace | mayRehearse | takesVersion, Task::HistoryRestore,
     "history"},
};

std::string notAddress(std::string& text) {
    const auto parts = split(text, '.');
    const bool isAddress = parts.size() == 4 && std::ranges::all_of(parts, isAddressPart);
    return isAddress ? std::string() : "not an address of four numbers: " + onOneLine(text);
}

/// A name of one file, or a pattern for such names.
std::string notPlain(std::string& name) {
    std::string plain = name;
    std::ranges::replace(plain, '*', 'x');
    std::ranges::replace(plain, '?', 'x');
    return PathRules::isPlainName(plain) ? std::string()
                                         : "not the plain name of a file: " + onOneLine(name);
}

std::string notOneFile(std::string& name) {
    return PathRules::isPlainName(name) ? std::string()
                                        : "not the plain name of a file: " + onOneLine(name);
}

template <typename Value>
struct Word {
    const char* word;
    Value value;
};

constexpr Word<TransferMode> modes[] = {{"bsc", TransferMode::Bsc},
                                        {"hispeed", TransferMode::HispeedLink}};
constexpr Word<OverwritePolicy> policies[] = {{"never", OverwritePolicy::Never},
                                              {"always", OverwritePolicy::Always},
                                              {"ask", OverwritePolicy::Ask}};

/// An option whose value is one of these words.
template <typename Value, std::size_t count, typename Chosen>
void addChoice(CLI::App& into, const char* name, const Word<Value> (&words)[count], Chosen& chosen,
               const char* purpose) {
    std::vector<std::string> known;
    std::string shown;
    for (const auto& [word, value] : words) {
        known.emplace_back(word);
        shown += (shown.empty() ? "" : "|") + known.back();
    }
    const auto choose = [&words, &chosen](const std::string& typed) {
        for (const auto& [word, value] : words)
            if (typed == word)
                chosen = value;
    };
    into.add_option_function<std::string>(name, choose, purpose)
        ->check(CLI::IsMember(known))
        ->option_text(shown);
}

void addMachine(CLI::App& into, Request& request) {
    into.add_option("--robot", request.robots, "A registered robot; may be given several times")
        ->allow_extra_args(false)
        ->option_text("NAME");
    into.add_flag("--all-robots", request.allRobots, "Every registered robot, one after another")
        ->excludes("--robot");
    addChoice(into, "--mode", modes, request.mode,
              "The way to the controller, in place of the settings'");
    into.add_option("--port", request.port, "The serial port, 1 for COM1; means --mode bsc")
        ->check(CLI::Range(1, 256))
        ->option_text("NUMBER");
    into.add_option("--address", request.address, "The robot's address; means --mode hispeed")
        ->check(CLI::Validator(notAddress, "", ""))
        ->option_text("A.B.C.D")
        ->excludes("--port")
        ->excludes("--all-robots");
}

void addManners(CLI::App& into, unsigned features, Request& request) {
    if (features & usesFolder)
        into.add_option("--folder", request.folder, "The folder on the PC, in place of the robot's")
            ->option_text("PATH");
    if (features & mayGoOn)
        into.add_flag("--keep-going", request.keepGoing, "Go on with the next one after a failure");
    if (features & mayRehearse)
        into.add_flag("--dry-run", request.dryRun, "Only say what would be done");
    if (features & mayReplace)
        addChoice(into, "--overwrite", policies, request.overwrite,
                  "Whether to replace what is there; ask works on a terminal only. "
                  "Without it: never");
}

void addNames(CLI::App& into, const Command& command, Request& request) {
    if (command.features & takesCall) {
        into.add_option("OPERATION", request.names, command.names)
            ->required()
            ->option_text("[ARGUMENT...]");
        return;
    }
    const bool isOne = command.features & takesOneFile;
    CLI::Option& names = *into.add_option(isOne ? "FILE" : "NAME", request.names, command.names);
    names.required(!(command.features & namesAreOptional))
        ->check(CLI::Validator(isOne ? notOneFile : notPlain, "", ""));
    if (isOne)
        names.expected(1)->option_text(" ");
    else
        names.option_text("...");
}

void addDirection(CLI::App& into) {
    CLI::App& direction = *into.add_option_group("Direction", "One of these is needed");
    direction.add_flag("--send")->description("From the PC to the controller");
    direction.add_flag("--receive")->description("From the controller to the PC");
    direction.require_option(1);
}

void addProcesses(CLI::App& into, Request& request) {
    constexpr int mostAtOnce = 64;
    constexpr int aDay = 86400; // seconds
    into.add_option("--parallel", request.parallel,
                    "Work with so many robots at a time, each in a process of its own")
        ->check(CLI::Range(1, mostAtOnce))
        ->option_text("NUMBER");
    into.add_option("--timeout", request.timeout,
                    "End the work with a robot that takes longer than so many seconds")
        ->check(CLI::Range(1, aDay))
        ->option_text("SECONDS");
    into.add_option("--relay", request.relay)->group(""); // for this program's own use
}

void addHistory(CLI::App& into, unsigned features, Request& request) {
    into.add_option("--history", request.history, "The history's folder, in place of the settings'")
        ->option_text("PATH");
    if (features & makesReport)
        into.add_option("--report", request.report, "Write all that is said into a file as well")
            ->option_text("FILE");
    if (features & takesVersion)
        into.add_option(
                "--version", request.version,
                "The version, as the log has it or its first digits. Without it: the latest")
            ->option_text("VERSION");
    if (!(features & usesNoMachine))
        return;
    into.add_option("--robot", request.robots, "What is listed is to be about this robot")
        ->expected(1)
        ->option_text("NAME");
    into.add_option("--most", request.most, "No more entries than these")
        ->check(CLI::PositiveNumber)
        ->option_text("NUMBER");
}

/// The command's place: under its group's word, which is made with the first of them.
CLI::App& placeOf(CLI::App& app, const Command& command) {
    if (!command.group)
        return app;
    for (CLI::App* const known : app.get_subcommands({}))
        if (known->get_name() == command.group)
            return *known;
    CLI::App& group = *app.add_subcommand(command.group, "Looks into the history");
    group.require_subcommand(1);
    return group;
}

void addCommand(CLI::App& app, const Command& command, Request& request) {
    CLI::App& into = *placeOf(app, command).add_subcommand(command.word, command.purpose);
    into.allow_windows_style_options(false);
    into.add_flag("--json", request.json, "One JSON object a line, for programs to read");
    into.add_option("--lang", request.language, "The language of the texts, by its file's name")
        ->option_text("NAME");
    if (!(command.features & usesNoMachine)) {
        addMachine(into, request);
        addProcesses(into, request);
    }
    if (command.features & usesHistory)
        addHistory(into, command.features, request);
    addManners(into, command.features, request);
    if (command.task == Task::Robots)
        into.add_flag("--check", request.check, "Connect to each of them");
    if (command.names)
        addNames(into, command, request);
    if (command.features & hasDirection)
        addDirection(into);
    into.callback([&into, &request, &command] {
        const bool isSent = (command.features & hasDirection) && into.count("--send") > 0;
        request.task = isSent ? command.sending : command.task;
        request.command = (command.group ? std::string(command.group) + " " : "") + command.word;
    });
}

/// A way to a controller that is not the one that was asked for would lead to another machine.
const char* contradiction(const Request& request) {
    if (request.port && request.mode == TransferMode::HispeedLink)
        return "--port does not go with --mode hispeed";
    if (request.address && request.mode == TransferMode::Bsc)
        return "--address does not go with --mode bsc";
    if (request.address && request.robots.size() > 1)
        return "--address goes with one robot only";
    const bool isSerial = request.port || request.mode == TransferMode::Bsc;
    if (isSerial && (request.robots.size() > 1 || request.allRobots))
        return "a serial port has one robot at its end";
    if (request.usesProcesses() && request.overwrite == OverwritePolicy::Ask)
        return "--overwrite ask does not go with --parallel and --timeout: nobody could answer";
    if (request.task == Task::HistoryLog && !request.names.empty() && request.robots.empty())
        return "a file goes with --robot: other robots may have one of its name";
    if (request.task == Task::PutVariables && request.overwrite != OverwritePolicy::Never)
        return "--overwrite does not go with variables that are sent: each has a value to replace";
    if (request.task == Task::GetVariables && request.keepGoing)
        return "--keep-going does not go with variables that are received: they come all or not "
               "at all";
    return nullptr;
}

} // namespace

ParsedArguments parseArguments(const std::vector<std::string>& arguments) {
    CLI::App app(programPurpose, "vantrelctl");
    app.allow_windows_style_options(false);
    app.require_subcommand(1);
    app.footer(exitCodes);
    Request request;
    for (const Command& command : commands)
        addCommand(app, command, request);
    ParsedArguments parsed;
    parsed.json = std::ranges::find(arguments, "--json") != arguments.end();
    try {
        app.parse(std::vector<std::string>(arguments.rbegin(), arguments.rend()));
    } catch (const CLI::CallForHelp&) {
        const auto chosen = app.get_subcommands();
        parsed.text = chosen.empty() ? app.help() : chosen.front()->help("vantrelctl");
        parsed.isHelp = true;
        return parsed;
    } catch (const CLI::ParseError& error) {
        parsed.text = error.what();
        return parsed;
    }
    if (const char* const text = contradiction(request))
        parsed.text = text;
    else if (request.task == Task::Call)
        parsed.text = callRefusal(request.names, request.overwrite);
    request.arguments = arguments;
    if (parsed.text.empty())
        parsed.request = std::move(request);
    return parsed;
}

} // namespace vantrel
