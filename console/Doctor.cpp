#include "console/Doctor.h"

#include "app/robots/ConnectionTest.h"
#include "app/robots/RobotFile.h"
#include "app/start/Engine.h"
#include "base/PathRules.h"
#include "console/ConsoleMessages.h"
#include "lang/SystemReasons.h"
#include "link/SessionErrorRecord.h"
#include "platform/Environment.h"
#include "platform/Files.h"
#include "platform/TextEncoding.h"

#include <algorithm>
#include <array>

namespace vantrel {
namespace {

/// Of the connection test, with the exit code that says best that it failed.
struct Step {
    std::size_t place;
    const char* key;
    int cause;
};

constexpr std::array<Step, ConnectionTest::stepCount> steps{{
    {ConnectionTest::Library, "library", exit_code::noLibrary},
    {ConnectionTest::Place, "place", exit_code::noConnection},
    {ConnectionTest::Link, "link", exit_code::noConnection},
    {ConnectionTest::Answer, "answer", exit_code::nothingDone},
    {ConnectionTest::End, "close", exit_code::nothingDone},
}};

/// `fault` is the code of the link, where it is that which has failed.
int causeOf(const Step& step, std::int16_t fault) {
    if (fault == session_code::machineInUse)
        return exit_code::inUse;
    return fault == session_code::machineNotHeld ? exit_code::nothingDone : step.cause;
}

} // namespace

void Doctor::lookAtProgram() {
    const Engine& engine = desk_.engine;
    report({.key = "folder",
            .label = message::consoleFolder,
            .subject = engine.programFolder,
            .works = isFolder(engine.programFolder)});
    const bool hasSettings = anythingExists(found_.settingsPath);
    report({.key = "settings",
            .label = message::consoleSettings,
            .subject = found_.settingsPath,
            .detail = hasSettings ? std::string() : text(message::consoleNoSettings)});
    report({.key = "language",
            .label = message::consoleLanguage,
            .subject = found_.language,
            .works = !found_.language.empty(),
            .advice = message::consoleAdviseFiles});
    const std::size_t robots = robotCount(engine.state.RobotList);
    report({.key = "registry",
            .label = message::consoleRegistry,
            .subject = engine.registry.path(),
            .works = robots > 0,
            .detail = std::to_string(robots),
            .advice = message::consoleAdviseRobots});
    report({.key = "table",
            .label = message::consoleTable,
            .subject = PathRules().join(engine.programFolder, "FileTable.tbl"),
            .works = found_.tableIsWhole,
            .advice = message::consoleAdviseFiles});
    lookAtLibrary();
}

/// An operation begins and ends with these two, and between them nothing is reached.
void Doctor::lookAtLibrary() {
    const std::string& folder = desk_.engine.programFolder;
    Check check{.key = "library",
                .label = message::consoleLibrary,
                .subject = PathRules().join(folder, libraryFileName()),
                .advice = message::consoleAdviseLibrary};
    if (!desk_.world.library) {
        ZurolinkBinding library(folder, [&](const LibraryProblem& problem) {
            check.works = false;
            check.detail = reasonInLanguage(desk_.engine.messages, problem.reason);
            for (const std::string& name : problem.missing)
                check.detail += (check.detail.empty() ? "" : ", ") + name;
        });
        constexpr auto type = static_cast<std::int16_t>(TransferMode::Bsc);
        const std::int16_t handle =
            library.BscOpen(toCodePage(folder).value_or(std::string()).c_str(), type);
        if (handle > 0)
            library.BscClose(handle);
        if (library.simulation())
            check.detail = text(message::simulationNotice);
    }
    report(check, exit_code::noLibrary);
}

/// The window's own connection test, a line for each step as it ends.
void Doctor::lookAtRobot(const Target& target) {
    MachineDesk machine(desk_, target);
    Check check{.key = "robot", .label = message::labelRobot, .subject = machine.name()};
    check.advice = message::consoleAdviseConnection;
    if (desk_.world.isInterrupted()) {
        check.works = false;
        return report(check);
    }
    Engine& engine = desk_.engine;
    ConnectionTest test({.state = engine.state,
                         .messages = engine.messages,
                         .session = engine.session,
                         .window = machine.services.window,
                         .libraryProblem = [&engine] { return engine.libraryProblem(); }},
                        controllerInForce(engine.state));
    std::size_t told = 0;
    test.run([&] {
        for (; told < steps.size() && test.hasEnded(told); ++told)
            reportStep(machine.name(), test, told);
    });
    const auto failed =
        std::ranges::find_if(steps, [&](const Step& step) { return !test.isDone(step.place); });
    check.works = failed == steps.end();
    if (check.works)
        desk_.tally.add(ItemEnd::Done);
    else
        check.detail = test.caption(failed->place) + ": " + test.outcome(failed->place);
    report(check, check.works ? exit_code::allDone : causeOf(*failed, test.linkFault()));
}

void Doctor::reportStep(const std::string& robot, const ConnectionTest& test, std::size_t step) {
    desk_.report.line({robot, test.caption(step), test.outcome(step)}, "step",
                      {{"robot", robot},
                       {"step", steps.at(step).key},
                       {"works", test.isDone(step)},
                       {"detail", test.outcome(step)}});
}

/// Something is done when a robot is reached: what works besides is of no use without one.
void Doctor::report(const Check& check, int cause) {
    if (!check.works)
        desk_.tally.add(ItemEnd::Failed, cause);
    const std::string advice = check.works ? std::string() : text(check.advice);
    const std::string label = text(check.label);
    std::vector<std::string> cells{
        label.empty() ? check.key : label, check.subject,
        text(check.works ? message::consoleWorks : message::consoleWorksNot)};
    for (const std::string& further : {check.detail, advice})
        if (!further.empty())
            cells.push_back(further);
    desk_.report.line(cells, "check",
                      {{"check", check.key},
                       {"subject", check.subject},
                       {"works", check.works},
                       {"detail", check.detail},
                       {"advice", advice}});
}

std::string Doctor::text(std::int32_t number) const {
    return number == 0 ? std::string() : desk_.engine.messages.getMessage(number);
}

} // namespace vantrel
