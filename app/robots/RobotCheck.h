#pragma once

#include "base/RobotRecord.h"

#include <array>
#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace vantrel {

class MessageTable;
struct RobotEntry;

/// The four parts of a robot's address, in their order.
inline constexpr std::array addressParts{&RobotRecord::IP1, &RobotRecord::IP2, &RobotRecord::IP3,
                                         &RobotRecord::IP4};

/// What an address box makes of the text that was typed into it.
struct TypedPart {
    std::string text;     ///< what stays in the box
    bool movesOn = false; ///< a point ended it: the next part is meant

    bool operator==(const TypedPart&) const = default;
};

/// A text that is no number is cleared, a point at its end is removed. Whether the number is one of
/// an address is not asked here.
TypedPart typedAddressPart(std::string_view text);

bool hasEmptyAddress(const RobotRecord& robot);
/// The parts joined with points; none at all when all four are empty.
std::string joinedAddress(const RobotRecord& robot);

/// Whether all four parts are numbers of an address.
bool isAddress(const RobotRecord& robot);

/// "0" to "255" in decimal digits; zeros before the number do not count.
bool isAddressPart(std::string_view text);
/// An address as it is kept: without leading zeros, an empty one as 0.0.0.0.
void tidyAddress(RobotRecord& robot);

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
