#include "FuzzInput.h"
#include "app/robots/RobotFile.h"
#include "app/robots/RobotPaths.h"
#include "support/FakeMessageBoxes.h"

using namespace vantrel;

namespace {

std::vector<RobotRecord> robotsIn(std::string_view text) {
    tests::FakeMessageBoxes boxes;
    TextLines lines(text);
    RobotFileReader reader(lines, boxes, "/opt/vantrel");
    auto robots = reader.readList();
    fuzz::require(robots.back().Name == endOfRobots, "the list ends with its sentinel");
    fuzz::require(!reader.endedEarly(), "no content ends the reading");
    return robots;
}

std::string written(const std::vector<RobotRecord>& robots) {
    return registryText("", robots, RobotPaths("/opt/vantrel"));
}

} // namespace

VANTREL_FUZZ_TARGET(input) {
    const auto robots = robotsIn(input.file());
    const auto again = robotsIn(written(robots));
    fuzz::require(again.size() == robots.size(), "no robot is lost or added by writing");
    fuzz::require(robotsIn(written(again)) == again, "a written list is read back unchanged");
}
