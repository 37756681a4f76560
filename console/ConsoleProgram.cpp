#include "console/ConsoleProgram.h"

#include "app/commands/ModeCommands.h"
#include "app/robots/Machine.h"
#include "app/robots/RobotRegistry.h"
#include "app/start/DeliveredFiles.h"
#include "base/PathRules.h"
#include "console/ConsoleMessages.h"
#include "console/FileCommands.h"
#include "console/HistoryCommands.h"
#include "console/ListCommands.h"
#include "console/OperationCall.h"
#include "console/Relay.h"
#include "console/RobotCommands.h"
#include "console/RobotProcesses.h"
#include "lang/SystemReasons.h"
#include "platform/Files.h"

#include <exception>
#include <utility>

namespace vantrel {
namespace {

using Task = Request::Task;

/// Nobody chooses from a list here.
class NoRobotBox final : public RobotBox {
  public:
    void clear() override {}
    void add(const std::string&) override {}
    void select(int) override {}
};

AnswerPolicy policyFor(const Request& request, const ConsoleWorld& world) {
    AnswerPolicy policy = answerPolicy(request);
    policy.readLine = world.readLine;
    return policy;
}

int usageError(const ParsedArguments& parsed, Report& report) {
    report.message(parsed.text);
    report.object("end",
                  {{"command", std::string()}, {"exit", std::int64_t{exit_code::wrongUsage}}});
    return exit_code::wrongUsage;
}

/// Whoever reads the objects gets a last one here too. What was done until then has its lines.
int unexpectedEnd(const Request& request, const std::exception& error, Report& report) {
    report.message(std::string("vantrelctl: ") + error.what());
    report.object("end",
                  {{"command", request.command}, {"exit", std::int64_t{exit_code::unexpected}}});
    return exit_code::unexpected;
}

} // namespace

ConsoleProgram::ConsoleProgram(const Request& request, const ConsoleWorld& world, Report& report)
    : request_(request), world_(world), report_(report), talk_(report, policyFor(request, world)),
      engine_({.state = state_,
               .messages = messages_,
               .boxes = talk_,
               .questions = talk_,
               .executable = world.executable,
               .beforeLibraryCall = [] {},
               .dummyWindow = world.window,
               .library = world.library,
               .program = "vantrelctl",
               .command = request.command,
               .holdsMachines = true}),
      progress_(world, engine_.progress), desk_{request, world, report, tally_, engine_} {
    if (world_.relay)
        tally_.onAdded = [this](ItemEnd end, int cause) {
            world_.relay(relayLine({.kind = Relayed::Kind::Item, .end = end, .code = cause}));
        };
}

int ConsoleProgram::run() {
    int code = start();
    if (code == exit_code::allDone) {
        perform();
        code = concluded();
    }
    engine_.session.Quit();
    tellEnd(code);
    return code;
}

int ConsoleProgram::start() {
    placeFiles();
    found_.tableIsWhole = engine_.table.load(engine_.programFolder);
    found_.settingsPath = engine_.settings.path();
    if (const int refused = readLanguage(); refused != 0)
        return refused;
    if (const Outcome entered = changeCurrentFolder(engine_.programFolder); !entered) {
        report_.message(engine_.programFolder + ": " +
                        reasonInLanguage(messages_, entered.reason()));
        return exit_code::nothingDone;
    }
    readSettings();
    if (request_.overwrite == OverwritePolicy::Ask && !world_.readLine) {
        report_.message(messages_.getMessage(message::consoleNoTerminal));
        return exit_code::wrongUsage;
    }
    if (request_.isAboutHistoryAlone())
        return exit_code::allDone;
    auto targets = chooseTargets(request_, state_, world_.workingFolder, messages_);
    if (!targets) {
        report_.message(targets.reason());
        return exit_code::wrongUsage;
    }
    desk_.targets = std::move(*targets);
    desk_.targets.areSeveral = desk_.targets.targets.size() > 1;
    return keepOwnRobot();
}

/// Between the look of the process that has started this one and its own, somebody may have changed
/// the robots.
int ConsoleProgram::keepOwnRobot() {
    if (request_.relay.empty())
        return exit_code::allDone;
    std::erase_if(desk_.targets.targets, [this](const Target& target) {
        return relayName(desk_.targets, target) != request_.relay;
    });
    if (desk_.targets.targets.size() == 1)
        return exit_code::allDone;
    report_.message(messages_.getMessage(message::consoleRobotsChanged));
    return exit_code::nothingDone;
}

/// A fresh installation has its texts there only. A rehearsal touches nothing.
void ConsoleProgram::placeFiles() {
    if (request_.dryRun || !request_.relay.empty())
        return;
    for (const UndeliveredFile& file : DeliveredFiles(engine_.programFolder).takePlaces())
        report_.message(file.path + ": " + file.reason);
}

/// The one that was asked for, else the settings', else the locale's. Whether the window program
/// asks for one at its start is of no matter here.
int ConsoleProgram::readLanguage() {
    const bool hasDefault = engine_.language.loadDefaultLanguage();
    if (!request_.language) {
        (void)engine_.language.loadLanguagePreference(found_.settingsPath);
        if (!state_.LanguageName.empty())
            (void)engine_.languages.readInto(state_.LanguageName, messages_);
    } else if (!engine_.languages.readInto(*request_.language, messages_)) {
        report_.message(messages_.getMessageWithInsertion(message::languageFileMissing,
                                                          *request_.language + ".lng"));
        return exit_code::wrongUsage;
    } else {
        state_.LanguageName = *request_.language;
    }
    found_.language = hasDefault || request_.language ? state_.LanguageName : std::string();
    const bool goesOn = !found_.language.empty() || request_.task == Task::Doctor;
    return goesOn ? exit_code::allDone : exit_code::nothingDone;
}

void ConsoleProgram::readSettings() {
    NoRobotBox box;
    engine_.settings.read(state_);
    makeFolderAbsolute(state_, engine_.programFolder);
    engine_.registry.look(box);
    passSessionParameters(state_, engine_.session);
    normaliseMode(state_);
}

void ConsoleProgram::perform() {
    if (request_.task == Task::Robots && !request_.check)
        return listRobots(desk_);
    if (request_.task == Task::HistoryLog)
        return listHistory(desk_);
    if (request_.task == Task::Doctor && request_.relay.empty())
        Doctor(desk_, found_).lookAtProgram();
    if (request_.usesProcesses() && request_.relay.empty())
        return RobotProcesses(desk_, [this](const Target& target) { performOn(target); }).run();
    for (const Target& target : desk_.targets.targets)
        performOn(target);
}

void ConsoleProgram::performOn(const Target& target) {
    switch (request_.task) {
    case Task::Robots:
        return checkRobot(desk_, target);
    case Task::List:
        return listFiles(desk_, target);
    case Task::Get:
    case Task::Put:
    case Task::Delete:
        return FileCommands(desk_, target).run();
    case Task::GetVariables:
    case Task::PutVariables:
    case Task::GetJobs:
    case Task::PutJobs:
        return ListCommands(desk_, target).run();
    case Task::Call:
        return OperationCall(desk_, target).run();
    case Task::Doctor:
        return Doctor(desk_, found_).lookAtRobot(target);
    case Task::Backup:
        return backUp(desk_, target);
    case Task::HistoryRestore:
        return restoreFiles(desk_, target);
    case Task::HistoryLog:
        break;
    }
}

int ConsoleProgram::concluded() {
    if (world_.isInterrupted())
        tally_.interrupt();
    return tally_.exitCode();
}

void ConsoleProgram::tellEnd(int code) {
    if (world_.relay)
        return world_.relay(relayLine({.kind = Relayed::Kind::End, .code = code}));
    if (request_.task == Task::Backup)
        report_.message(messages_.getMessageWithInsertion(
            message::backupSummary, std::to_string(tally_.count(ItemEnd::Done)),
            std::to_string(tally_.count(ItemEnd::Failed) + tally_.count(ItemEnd::NotTried))));
    const auto number = [this](ItemEnd end) {
        return static_cast<std::int64_t>(tally_.count(end));
    };
    report_.object("end", {{"command", request_.command},
                           {"exit", std::int64_t{code}},
                           {"done", number(ItemEnd::Done)},
                           {"skipped", number(ItemEnd::Skipped)},
                           {"failed", number(ItemEnd::Failed)},
                           {"not_tried", number(ItemEnd::NotTried)}});
}

namespace {

int runParsed(const ParsedArguments& parsed, const ConsoleWorld& world) {
    Report report(world.output, world.messages, parsed.json);
    if (parsed.isHelp) {
        report.text(parsed.text);
        return exit_code::allDone;
    }
    if (!parsed.request)
        return usageError(parsed, report);
    try {
        return ConsoleProgram(*parsed.request, world, report).run();
    } catch (const std::exception& error) {
        if (world.relay) // whoever has started this process finds no end and says so
            throw;
        return unexpectedEnd(*parsed.request, error, report);
    }
}

/// All that is said goes into a file too, when it is over.
int runWithReport(const ParsedArguments& parsed, const ConsoleWorld& world) {
    std::string said;
    ConsoleWorld copying = world;
    const auto copied = [&said](const TextSink& sink) {
        return [&said, &sink](std::string_view text) {
            said += text;
            sink(text);
        };
    };
    copying.output = copied(world.output);
    if (!parsed.json) // what is said twice there is read once
        copying.messages = copied(world.messages);
    const int code = runParsed(parsed, copying);
    const PathRules rules;
    const std::string& given = *parsed.request->report;
    const std::string path =
        rules.isAbsolute(given) ? given : rules.resolved(rules.join(world.workingFolder, given));
    const auto written = replaceFile(path, said);
    if (written)
        return code;
    Report(world.output, world.messages, parsed.json).message(path + ": " + written.reason());
    return code == exit_code::allDone ? exit_code::partlyDone : code;
}

} // namespace

int runConsole(const std::vector<std::string>& arguments, const ConsoleWorld& world) {
    const ParsedArguments parsed = parseArguments(arguments);
    if (parsed.request && !parsed.request->relay.empty() && !world.relay)
        return runConsole(arguments, relayingWorld(world));
    return parsed.request && parsed.request->report && !world.relay ? runWithReport(parsed, world)
                                                                    : runParsed(parsed, world);
}

} // namespace vantrel
