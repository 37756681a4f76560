#pragma once

#include "base/RobotRecord.h"

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace vantrel {

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

/// "0" to "255" in decimal digits; zeros before the number do not count.
bool isAddressPart(std::string_view text);
/// An address as it is kept: without leading zeros, an empty one as 0.0.0.0.
void tidyAddress(RobotRecord& robot);

} // namespace vantrel
