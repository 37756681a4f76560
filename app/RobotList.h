#pragma once

#include "base/RobotRecord.h"

#include <cstddef>
#include <vector>

namespace vantrel {

/// How many robots stand before the sentinel; all of them when there is none.
std::size_t robotCount(const std::vector<RobotRecord>& robots);

/// The list that holds the sentinel only.
std::vector<RobotRecord> emptyRobotList();

} // namespace vantrel
