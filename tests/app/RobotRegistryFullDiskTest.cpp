#include "RobotRegistryFixture.h"
#include "support/FileSizeLimit.h"

namespace vantrel {
namespace {

using tests::RobotRegistryTest;

TEST_F(RobotRegistryTest, AnUnreadFileStaysInItsPlaceWhenTheNewOneCannotBeWritten) {
    makeUnreadable();
    registry_.read(box_);
    state_.RobotList.insert(state_.RobotList.begin(), RobotRecord())->Name = "NEW";
    registry_.noteEdit();
    {
        const tests::FileSizeLimit full(0);
        EXPECT_FALSE(registry_.write());
    }
    EXPECT_TRUE(folder_.has("robot.ini/inner"));
    EXPECT_FALSE(folder_.has("robot.ini.bak"));
    EXPECT_TRUE(registry_.write()) << "it is tried again the same way";
    EXPECT_TRUE(folder_.has("robot.ini.bak/inner"));
    EXPECT_NE(file().find("Name=NEW\r\n"), std::string::npos);
}

} // namespace
} // namespace vantrel
