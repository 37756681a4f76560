#include "console/Targets.h"

#include "app/commands/ModeCommands.h"
#include "app/robots/RobotCheck.h"
#include "app/robots/RobotFile.h"
#include "base/PathRules.h"
#include "base/TextCase.h"
#include "console/ConsoleMessages.h"
#include "lang/MessageTable.h"
#include "link/ShownText.h"

#include <optional>
#include <utility>

namespace vantrel {
namespace {

using Task = Request::Task;

class Choice {
  public:
    Choice(const Request& request, const ApplicationState& state, std::string workingFolder,
           const MessageTable& messages)
        : request_(request), state_(state), workingFolder_(std::move(workingFolder)),
          messages_(messages) {}

    Result<Targets> choose() {
        chosen_.mode = mode();
        chosen_.port = request_.port.value_or(state_.Port);
        if (chosen_.mode == TransferMode::HispeedLink && !hispeedAvailable(state_))
            return refused(message::consoleNoHispeed);
        if (chosen_.mode == TransferMode::Bsc)
            return onSerialLine();
        if (request_.allRobots || meansAll())
            return allRobots();
        return request_.robots.empty() ? inForce() : named();
    }

  private:
    /// A port is one of the serial line, an address one of the high-speed link.
    TransferMode mode() const {
        if (request_.mode)
            return *request_.mode;
        if (request_.port)
            return TransferMode::Bsc;
        return request_.address ? TransferMode::HispeedLink : state_.TransMode;
    }

    bool meansAll() const {
        return request_.robots.empty() && !request_.address &&
               (request_.task == Task::Robots || request_.task == Task::Doctor);
    }

    /// Nobody knows which robot is at its end, unless whoever names one says that it is there.
    Result<Targets> onSerialLine() {
        const bool isMeant = request_.port || request_.mode;
        if (request_.robots.size() > 1 || request_.allRobots ||
            (!request_.robots.empty() && !isMeant))
            return refused(message::consoleSerialNamesNobody);
        if (!request_.robots.empty())
            return named();
        add({.robot = state_.CurrentRobot, .index = state_.CurrentRobotIndex, .folder = {}},
            state_.PCPath);
        return std::move(chosen_);
    }

    Result<Targets> allRobots() {
        for (std::size_t index = 0; index < robotCount(state_.RobotList); ++index)
            add(registered(index), state_.RobotList[index].Path);
        return std::move(chosen_);
    }

    Result<Targets> named() {
        for (const std::string& name : request_.robots) {
            const auto index = placeOf(name);
            if (!index)
                return Failure{index.reason()};
            Target target = registered(*index);
            if (request_.address)
                target.robot.IPaddr = *request_.address;
            add(std::move(target), state_.RobotList[*index].Path);
        }
        return std::move(chosen_);
    }

    Result<Targets> inForce() {
        if (request_.address)
            return atAddress();
        add({.robot = state_.CurrentRobot, .index = state_.CurrentRobotIndex, .folder = {}},
            state_.CurrentRobot.Path);
        return std::move(chosen_);
    }

    /// An address that one robot has means that robot; any other machine has no name and no folder.
    Result<Targets> atAddress() {
        Target target;
        std::string folder = state_.PCPath;
        std::size_t owners = 0;
        for (std::size_t index = 0; index < robotCount(state_.RobotList); ++index)
            if (state_.RobotList[index].IPaddr == *request_.address && ++owners == 1) {
                target = registered(index);
                folder = target.robot.Path;
            }
        if (owners != 1) {
            target = Target();
            target.robot.Name = *request_.address;
            folder = state_.PCPath;
        }
        target.robot.IPaddr = *request_.address;
        add(std::move(target), folder);
        return std::move(chosen_);
    }

    /// The robot of just this name, else the only one whose name differs in letter case alone.
    Result<std::size_t> placeOf(const std::string& name) const {
        std::vector<std::size_t> same, similar;
        const std::string upper = upperCase(name);
        for (std::size_t index = 0; index < robotCount(state_.RobotList); ++index) {
            const std::string& other = state_.RobotList[index].Name;
            if (other == name)
                same.push_back(index);
            else if (upperCase(other) == upper)
                similar.push_back(index);
        }
        const auto& found = same.empty() ? similar : same;
        if (found.size() == 1)
            return found.front();
        const auto number =
            found.empty() ? message::consoleRobotUnknown : message::consoleRobotShared;
        return Failure{bracketed(name) + messages_.getMessage(number)};
    }

    Target registered(std::size_t index) const {
        return {.robot = state_.RobotList[index],
                .index = static_cast<std::int16_t>(index),
                .folder = {}};
    }

    void add(Target target, const std::string& usualFolder) {
        target.folder = request_.folder
                            ? PathRules().withoutTrailingSeparator(absolute(*request_.folder))
                            : usualFolder;
        chosen_.targets.push_back(std::move(target));
    }

    std::string absolute(const std::string& folder) const {
        const PathRules rules;
        return rules.isAbsolute(folder) ? folder : rules.join(workingFolder_, folder);
    }

    Failure refused(std::int32_t number) const { return {messages_.getMessage(number)}; }

    const Request& request_;
    const ApplicationState& state_;
    std::string workingFolder_;
    const MessageTable& messages_;
    Targets chosen_;
};

} // namespace

Result<Targets> chooseTargets(const Request& request, const ApplicationState& state,
                              const std::string& workingFolder, const MessageTable& messages) {
    return Choice(request, state, workingFolder, messages).choose();
}

std::string relayName(const Targets& targets, const Target& target) {
    const std::string way = targets.mode == TransferMode::Bsc ? "COM" + std::to_string(targets.port)
                                                              : target.robot.IPaddr;
    return std::to_string(target.index) + "|" + way + "|" + target.robot.Name + "|" + target.folder;
}

void putInForce(const Targets& targets, const Target& target, ApplicationState& state) {
    state.TransMode = targets.mode;
    state.Port = targets.port;
    state.CurrentRobot = target.robot;
    state.CurrentRobotIndex = target.index;
    state.PCPath = target.folder;
}

} // namespace vantrel
