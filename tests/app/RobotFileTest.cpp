#include "app/robots/RobotFile.h"

#include <gtest/gtest.h>

namespace vantrel {
namespace {

RobotRecord named(std::string_view name) {
    RobotRecord record;
    record.Name = name;
    return record;
}

TEST(RobotFileTest, CountsUpToTheSentinel) {
    EXPECT_EQ(robotCount({named("A"), named("B"), named("@END@"), named("C")}), 2U);
    EXPECT_EQ(robotCount(emptyRobotList()), 0U);
}

TEST(RobotFileTest, WithoutSentinelEveryRecordCounts) {
    EXPECT_EQ(robotCount({}), 0U);
    EXPECT_EQ(robotCount({named("A")}), 1U);
}

} // namespace
} // namespace vantrel
