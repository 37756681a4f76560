#include "files/FolderOwner.h"

#include "base/ApplicationState.h"
#include "base/TextCase.h"
#include "files/ControllerPlace.h"
#include "files/RobotMark.h"
#include "lang/MessageNumbers.h"
#include "lang/MessageTable.h"
#include "link/OperatorTalk.h"
#include "link/ShownText.h"

#include <algorithm>

namespace vantrel {
namespace {

/// The same for all ways to write one folder.
std::string comparedFolder(const std::string& folder, const PathRules& rules) {
    std::string compared = rules.withoutTrailingSeparator(folder);
    if (rules.style() == PathStyle::Posix)
        return compared;
    std::ranges::replace(compared, '/', '\\');
    return lowerCase(compared);
}

} // namespace

std::string otherOwnerOfPCFolder(const ApplicationState& state, const PathRules& rules) {
    if (state.TransMode == TransferMode::Bsc)
        return {};
    const std::string shown = comparedFolder(state.PCPath, rules);
    std::string owners;
    for (std::size_t index = 0; index < state.RobotList.size(); ++index) {
        const RobotRecord& robot = state.RobotList[index];
        if (robot.Name == endOfRobots)
            break;
        if (comparedFolder(robot.Path, rules) != shown)
            continue;
        if (index == static_cast<std::size_t>(state.CurrentRobotIndex))
            return {};
        owners += (owners.empty() ? "" : ", ") + robot.Name;
    }
    return owners;
}

namespace {

std::string markText(const TransferServices& services) {
    const PlaceMark mark = markInForce(services.messages, services.state);
    return mark.text.empty() ? std::string() : " \u2013 " + mark.text;
}

} // namespace

bool mayLeaveFolder(const TransferServices& services) {
    const std::string owner = otherOwnerOfPCFolder(services.state);
    if (owner.empty())
        return true;
    return services.talk.askYesNo(
        services.messages.getMessageWithInsertion(message::askOtherOwner, shownText(owner),
                                                  controllerName(services.state)) +
            "\n" + towardController(services.state) + markText(services),
        BoxIcon::Exclamation);
}

} // namespace vantrel
