#include "CommandFixture.h"

#include <gmock/gmock.h>

namespace vantrel {
namespace {

using testing::ElementsAre;

class PosixNamesTest : public tests::CommandTest {};

TEST_F(PosixNamesTest, ANameWithADriveInItIsRefusedByName) {
    pc.write("A:B.JBI", job("Y"));
    pcJob("GOOD");
    robot();
    selectOnPC({"A:B.JBI", "GOOD.JBI"});
    EXPECT_TRUE(commands.sendCopy());
    EXPECT_THAT(boxes.texts(), ElementsAre("Transfer failed: [A:B.JBI] ( unusable name )"));
    EXPECT_THAT(robot().names(), ElementsAre("GOOD.JBI"));
}

} // namespace
} // namespace vantrel
