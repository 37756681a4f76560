#include "console/RobotProcesses.h"

#include "app/start/Engine.h"
#include "console/ConsoleMessages.h"
#include "lang/SystemReasons.h"
#include "link/MachineUse.h"
#include "link/ShownText.h"

#include <algorithm>
#include <iterator>
#include <utility>
#include <vector>

namespace vantrel {
namespace {

constexpr std::size_t longestLine = 64U << 20U; // bytes

/// The command's own arguments, with the one robot among them: before any name.
std::vector<std::string> argumentsFor(const Desk& desk, const Target& target) {
    std::vector<std::string> arguments = desk.request.arguments;
    arguments.insert(arguments.begin() + 1, "--relay=" + relayName(desk.targets, target));
    return arguments;
}

} // namespace

RobotProcesses::RobotProcesses(Desk& desk, std::function<void(const Target&)> work)
    : desk_(desk), work_(std::move(work)) {
    for (const Target& target : desk_.targets.targets)
        open_.push_back(&target);
}

void RobotProcesses::run() {
    while (!open_.empty() || !running_.empty()) {
        if (desk_.world.isInterrupted())
            callOff();
        startMore();
        listen();
        endLate();
    }
}

/// Those that run finish their files; of the others it is said that they were not tried.
void RobotProcesses::callOff() {
    if (std::exchange(isCalledOff_, true))
        return;
    for (Running& running : running_)
        running.child.interrupt();
    for (const Target* target : std::exchange(open_, {}))
        work_(*target);
}

void RobotProcesses::startMore() {
    const auto most = static_cast<std::size_t>(desk_.request.parallel.value_or(1));
    std::vector<const Target*> before;
    for (const Running& running : running_)
        before.push_back(running.target);
    for (auto next = open_.begin(); next != open_.end() && running_.size() < most;) {
        const Target& target = **next;
        const bool waits = std::ranges::any_of(
            before, [&](const Target* other) { return wouldMeet(*other, target); });
        before.push_back(&target);
        next = waits ? std::next(next) : open_.erase(next);
        if (!waits)
            start(target);
    }
}

/// Two robots of one address are one machine, and what two send into one folder may have one name.
/// Such robots keep their order.
bool RobotProcesses::wouldMeet(const Target& one, const Target& other) const {
    return MachineUse::isSameAddress(one.robot.IPaddr, other.robot.IPaddr) ||
           (desk_.request.receives() && one.folder == other.folder);
}

void RobotProcesses::start(const Target& target) {
    auto child = ChildProcess::start({.program = desk_.world.program,
                                      .arguments = argumentsFor(desk_, target),
                                      .folder = desk_.world.workingFolder});
    if (!child)
        return reportFailure(target, reasonInLanguage(desk_.engine.messages, child.reason()));
    const auto time = desk_.request.timeout
                          ? Clock::now() + std::chrono::seconds(*desk_.request.timeout)
                          : Clock::time_point::max();
    running_.push_back({.target = &target, .child = std::move(*child), .deadline = time});
}

void RobotProcesses::listen() {
    constexpr std::chrono::milliseconds step{50}; // until the clock and the keyboard are looked at
    std::vector<ChildProcess*> children;
    for (Running& running : running_)
        children.push_back(&running.child);
    if (!children.empty())
        ChildProcess::wait(children, step);
    for (auto running = running_.begin(); running != running_.end();) {
        take(*running, running->child.read());
        if (running->child.isAtEnd()) {
            conclude(*running);
            running = running_.erase(running);
        } else {
            ++running;
        }
    }
}

/// No more than one line is kept.
void RobotProcesses::take(Running& running, std::string_view text) {
    for (auto end = text.find('\n'); end != text.npos; end = text.find('\n')) {
        running.rest += text.substr(0, end);
        takeLine(running, std::exchange(running.rest, {}));
        text.remove_prefix(end + 1);
    }
    running.rest += text;
    if (running.rest.size() > longestLine)
        running.child.kill();
}

void RobotProcesses::takeLine(Running& running, std::string_view line) {
    if (line.empty())
        return;
    const auto relayed = readRelayLine(line);
    if (!relayed)
        return desk_.report.note(line); // the library's own, perhaps
    switch (relayed->kind) {
    case Relayed::Kind::Output:
        return desk_.world.output(relayed->text);
    case Relayed::Kind::Message:
        return desk_.world.messages(relayed->text);
    case Relayed::Kind::Item:
        ++running.items;
        return desk_.tally.add(relayed->end, relayed->code);
    case Relayed::Kind::End:
        return end(running, relayed->code);
    }
}

/// One that could not even begin has counted nothing.
void RobotProcesses::end(Running& running, int code) {
    running.hasEnded = true;
    if (code != exit_code::allDone && running.items == 0)
        desk_.tally.add(ItemEnd::Failed, exit_code::nothingDone);
}

void RobotProcesses::endLate() {
    for (Running& running : running_)
        if (!running.isLate && Clock::now() >= running.deadline) {
            running.isLate = true;
            running.child.kill();
        }
}

void RobotProcesses::conclude(Running& running) {
    static_cast<void>(running.child.exitCode());
    if (running.hasEnded)
        return;
    const MessageTable& messages = desk_.engine.messages;
    reportFailure(*running.target, running.isLate ? messages.getMessageWithInsertion(
                                                        message::consoleTookTooLong,
                                                        std::to_string(*desk_.request.timeout))
                                                  : messages.getMessage(message::consoleStopped));
}

void RobotProcesses::reportFailure(const Target& target, const std::string& reason) {
    desk_.tally.add(isCalledOff_ ? ItemEnd::NotTried : ItemEnd::Failed, exit_code::nothingDone);
    const std::string name = desk_.targets.mode == TransferMode::Bsc && target.robot.Name.empty()
                                 ? "COM" + std::to_string(desk_.targets.port)
                                 : target.robot.Name;
    desk_.report.message(bracketed(name) + reason);
    desk_.report.object("robot-failed", {{"robot", name}, {"reason", reason}});
}

} // namespace vantrel
