#pragma once

#include "console/Desk.h"

namespace vantrel {

/// `robots`: the registered robots, and with `--check` whether each can be reached.
void listRobots(Desk& desk);

/// `list`: the files that each controller of the request shows.
void listFiles(Desk& desk);

} // namespace vantrel
