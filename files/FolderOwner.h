#pragma once

#include "base/PathRules.h"
#include "files/TransferServices.h"

#include <string>

namespace vantrel {

/// The robot that the PC folder is registered for, when that is another one than the robot in
/// force; else empty. A folder of several robots is nobody's, and neither is one of the robot in
/// force; over the serial line nobody knows which robot is at its end.
std::string otherOwnerOfPCFolder(const ApplicationState& state,
                                 const PathRules& rules = PathRules());

/// Before files go to the controller: whether they may. Asks where the PC folder is another
/// robot's.
bool mayLeaveFolder(const TransferServices& services);

} // namespace vantrel
