#include "app/RobotList.h"

#include <algorithm>

namespace vantrel {

std::size_t robotCount(const std::vector<RobotRecord>& robots) {
    const auto end = std::ranges::find(robots, endOfRobots, &RobotRecord::Name);
    return static_cast<std::size_t>(end - robots.begin());
}

std::vector<RobotRecord> emptyRobotList() {
    std::vector<RobotRecord> robots(1);
    robots.front().Name = endOfRobots;
    return robots;
}

} // namespace vantrel
