#pragma once

#include "console/Desk.h"

namespace vantrel {

/// `robots`: the registered robots.
void listRobots(Desk& desk);
/// `robots --check`: whether this one can be reached.
void checkRobot(Desk& desk, const Target& target);

/// `list`: the files that this controller shows.
void listFiles(Desk& desk, const Target& target);

} // namespace vantrel
