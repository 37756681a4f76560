#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>

namespace vantrel {

class MessageTable;
struct RobotEntry;

/// What is wrong with a robot, and where the operator mends it.
struct RobotFault {
    enum class Kind { NoName, NameTaken, NameRefused, AddressRefused, FolderRefused };

    Kind kind = Kind::NoName;
    std::size_t robot = 0;       ///< its place in the list
    std::size_t addressPart = 0; ///< 0 to 3, of a refused address

    bool operator==(const RobotFault&) const = default;
};

/// The first robot of the working list that must not be stored. Only robots that were added or
/// edited are judged, so that an old odd registry never stands in the way of another change; of
/// their folders only those that were chosen, since a program's own folder is nothing that the
/// operator could mend here.
std::optional<RobotFault> findRobotFault(std::span<const RobotEntry> robots);

/// The message for it: the robot's name and what is wrong.
std::string faultText(const RobotFault& fault, std::span<const RobotEntry> robots,
                      const MessageTable& messages);

} // namespace vantrel
