#pragma once

#include "base/PathRules.h"
#include "files/TransferServices.h"

#include <string>

namespace vantrel {

/// The robots that the PC folder is registered for, when the robot in force is none of them; else
/// empty. Over the serial line nobody knows which robot is at its end.
std::string otherOwnerOfPCFolder(const ApplicationState& state,
                                 const PathRules& rules = PathRules());

/// Before files go to the controller: whether they may. Asks where the PC folder is another
/// robot's.
bool mayLeaveFolder(const TransferServices& services);

} // namespace vantrel
