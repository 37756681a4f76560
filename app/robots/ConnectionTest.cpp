#include "app/robots/ConnectionTest.h"

#include "app/robots/RobotCheck.h"
#include "app/robots/RobotListDraft.h"
#include "app/settings/SerialDraft.h"
#include "base/ApplicationState.h"
#include "files/CommandScopes.h"
#include "files/TransferReports.h"
#include "lang/MessageNumbers.h"
#include "lang/MessageTable.h"
#include "link/LinkTest.h"
#include "link/ShownText.h"
#include "link/Snappy.h"

#include <algorithm>
#include <string_view>
#include <utility>

namespace vantrel {
namespace {

constexpr std::array<std::int32_t, ConnectionTest::stepCount> captions{
    message::testLibrary, message::testPlace, message::testLink, message::testAnswer,
    message::testEnd};

constexpr std::string_view unset = "0.0.0.0";

ConnectionTest::Step stepOf(LinkTestStep::Kind kind) {
    switch (kind) {
    case LinkTestStep::Kind::Answer:
        return ConnectionTest::Answer;
    case LinkTestStep::Kind::Close:
        return ConnectionTest::End;
    case LinkTestStep::Kind::Open:
        break;
    }
    return ConnectionTest::Link;
}

} // namespace

TestedController controllerInForce(const ApplicationState& state) {
    return {state.TransMode, state, state.CurrentRobot};
}

TestedController controllerOf(const RobotEntry& entry, const SerialLine& line, TransferMode mode) {
    RobotRecord robot = entry.robot;
    // A part that is missing would become a zero, and another address be tried than is shown.
    if (entry.isEdited() && isAddress(robot))
        tidyAddress(robot);
    return {mode, line, std::move(robot)};
}

ConnectionTest::ConnectionTest(Services services, TestedController tested)
    : with_(std::move(services)), tested_(std::move(tested)) {}

void ConnectionTest::run(const std::function<void()>& changed) {
    if (with_.state.Busy)
        return;
    changed_ = changed;
    states_.fill(State::Open);
    {
        const WindowLock lock(with_.window);
        runSteps();
    }
    for (State& state : states_)
        if (state == State::Open || state == State::UnderWay)
            state = State::NotTried;
    changed_();
}

void ConnectionTest::runSteps() {
    begin(Library);
    if (!end(Library, with_.libraryProblem()))
        return;
    begin(Place);
    if (!end(Place, placeFault()))
        return;
    begin(Link);
    with_.session.testLink({tested_.mode, tested_.line, tested_.robot.IPaddr},
                           [this](const LinkTestStep& step) { linkStepEnded(step); });
}

void ConnectionTest::begin(std::size_t step) {
    states_.at(step) = State::UnderWay;
    changed_();
}

bool ConnectionTest::end(std::size_t step, std::string fault) {
    states_.at(step) = fault.empty() ? State::Done : State::Failed;
    std::ranges::replace(fault, '\n', ' '); // a library's problem has lines
    faults_.at(step) = std::move(fault);
    return faults_.at(step).empty();
}

std::string ConnectionTest::placeFault() const {
    const auto text = [this](std::int32_t number) { return with_.messages.getMessage(number); };
    if (tested_.mode == TransferMode::Bsc)
        return tested_.line.Port < SerialDraft::lowestPort ? text(message::testPortRefused) : "";
    if (hasEmptyAddress(tested_.robot) || tested_.robot.IPaddr == unset)
        return text(message::addressUnset);
    return isAddress(tested_.robot) ? "" : text(message::testAddressRefused);
}

void ConnectionTest::linkStepEnded(const LinkTestStep& step) {
    const auto& fault = step.fault;
    if (fault)
        linkFault_ = fault->code;
    end(stepOf(step.kind),
        fault ? functionAndReason(fault->function, fault->code, fault->text) : std::string());
    const bool hasLink = step.kind != LinkTestStep::Kind::Open || !fault;
    if (hasLink && step.kind != LinkTestStep::Kind::Close)
        begin(stepOf(step.kind) + 1);
}

std::string ConnectionTest::heading() const {
    if (tested_.mode == TransferMode::Bsc)
        return serialLabel(tested_.line).text();
    return shownText(tested_.robot.Name) + " (" + shownText(tested_.robot.IPaddr) + ")";
}

std::string ConnectionTest::caption(std::size_t step) const {
    return with_.messages.getMessage(captions.at(step));
}

std::string ConnectionTest::outcome(std::size_t step) const {
    switch (states_.at(step)) {
    case State::Open:
        break;
    case State::UnderWay:
        return "...";
    case State::Done:
        return with_.messages.getMessage(message::ok);
    case State::Failed:
        return with_.messages.getMessage(message::resultFailed) + ": " + faults_.at(step);
    case State::NotTried:
        return with_.messages.getMessage(message::resultNotTried);
    }
    return {};
}

std::string ConnectionTest::text() const {
    std::string text = heading() + "\n";
    for (std::size_t step = 0; step < stepCount; ++step)
        text += caption(step) + "\t" + outcome(step) + "\n";
    return text;
}

} // namespace vantrel
