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

/// The robot keeps both under one name, and a data file goes over another unasked.
TEST_F(PosixNamesTest, OfDataFilesThatDifferInLetterCaseOnlyAMoveSendsTheFirst) {
    pc.write("V.DAT", "1");
    pc.write("v.DAT", "2");
    pc.write("W.DAT", "3");
    robot();
    selectOnPC({"V.DAT", "v.DAT", "W.DAT"});
    library.onCall = [this](const std::string& function) {
        if (function != "BscFindFirst" || !robot().has("v.DAT"))
            return;
        robot().put("V.DAT", robot().bytes("v.DAT"));
        robot().erase("v.DAT");
    };
    EXPECT_TRUE(commands.sendMove());
    EXPECT_EQ(library.callCount("BscDownLoad"), 2);
    EXPECT_THAT(boxes.texts(), ElementsAre(testing::EndsWith(".DAT] is ambiguous")));
    EXPECT_THAT(robot().names(), ElementsAre("V.DAT", "W.DAT"));
    EXPECT_EQ(window.pc.names.size(), 1u);
    EXPECT_EQ(pc.has("V.DAT"), robot().bytes("V.DAT") == "2");
    EXPECT_EQ(pc.has("v.DAT"), robot().bytes("V.DAT") == "1");
}

} // namespace
} // namespace vantrel
