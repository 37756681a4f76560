#include "files/TransferReports.h"

#include "CommandFixture.h"
#include "platform/Files.h"

#include <gmock/gmock.h>

namespace vantrel {
namespace {

using testing::ElementsAre;
using testing::StartsWith;

/// What a copy says when it has not worked, and what it leaves.
class TransferReportsTest : public tests::CommandTest {};

TEST_F(TransferReportsTest, AFailureIsReportedWithFunctionCodeTextAndIndex) {
    for (const char* name : {"A", "B", "C"})
        pcJob(name);
    robot();
    selectOnPC({"A.JBI", "B.JBI", "C.JBI"});
    library.disturb({"BscDownLoad", 2, false, false, 2000});
    EXPECT_FALSE(commands.sendCopy());
    EXPECT_THAT(boxes.texts(),
                ElementsAre("Transfer failed: BscDownLoad ( line broken ) (1)\n[B.JBI]"));
    EXPECT_EQ(boxes.shown[0].icon, BoxIcon::Exclamation);
    EXPECT_THAT(robot().names(), ElementsAre("A.JBI")) << "a copy ends at its first failure";
    EXPECT_THAT(window.controller.names, ElementsAre("A.JBI"));
}

TEST_F(TransferReportsTest, ACodeWithoutATextIsReportedAsItsNumber) {
    pcJob("A");
    robot();
    selectOnPC({"A.JBI"});
    library.disturb({"BscDownLoad", 1, false, false, -7});
    EXPECT_FALSE(commands.sendCopy());
    EXPECT_THAT(boxes.texts(), ElementsAre("Transfer failed: BscDownLoad ( -7 ) (0)\n[A.JBI]"));
}

TEST_F(TransferReportsTest, AFailureOfOurOwnIsReportedThoughItHasNoFunction) {
    pcJob("A");
    robot();
    selectOnPC({"A.JBI"});
    ASSERT_TRUE(removeFile(pc.path("A.JBI")));
    EXPECT_FALSE(commands.sendCopy());
    EXPECT_THAT(boxes.texts(), ElementsAre("Transfer failed:  ( not readable ) (0)\n[A.JBI]"));
}

TEST_F(TransferReportsTest, ADirectoryThatCannotBeReadIsReportedAsNoSuchFile) {
    pcJob("A");
    robotJob("OLD");
    selectOnPC({"A.JBI"});
    library.disturb({"BscFindFirst", 1, false, false, 2000});
    EXPECT_FALSE(commands.sendCopy());
    EXPECT_THAT(boxes.texts(), ElementsAre("no such file"));
    EXPECT_THAT(window.controller.names, ElementsAre("OLD.JBI"));
}

TEST_F(TransferReportsTest, ALineThatStaysDownIsReportedForTheTransferAndForTheList) {
    pcJob("A");
    robotJob("OLD");
    selectOnPC({"A.JBI"});
    library.disturb({"BscConnect", 1, true, false, 2000});
    EXPECT_FALSE(commands.sendCopy());
    EXPECT_THAT(
        boxes.texts(),
        ElementsAre("Transfer failed: BscConnect ( line broken ) (0)\n[A.JBI]", "not read"));
    EXPECT_THAT(window.controller.names, ElementsAre("OLD.JBI")) << "the old list stays";
    EXPECT_EQ(window.controllerStatus, "Controller: 1 items");
}

TEST_F(TransferReportsTest, AFailedRereadAfterAGoodTransferIsReported) {
    pcJob("A");
    robot();
    selectOnPC({"A.JBI"});
    library.disturb({"BscFindFirst", 2, false, false, 2000});
    EXPECT_TRUE(commands.sendCopy());
    EXPECT_THAT(boxes.texts(), ElementsAre("not read"));
    EXPECT_TRUE(robot().has("A.JBI"));
}

TEST_F(TransferReportsTest, AnUnsetAddressGivesTheSessionsOwnMessageAndNoOther) {
    pcJob("A");
    robotJob("OLD");
    selectOnPC({"A.JBI"});
    state.TransMode = TransferMode::HispeedLink;
    session.IPaddress = "0.0.0.0";
    EXPECT_FALSE(commands.sendCopy());
    EXPECT_THAT(boxes.texts(), ElementsAre("address unset"));
    window.controller.click({"OLD.JBI"});
    EXPECT_FALSE(commands.receiveCopy());
    EXPECT_THAT(boxes.texts(), ElementsAre("address unset", "address unset"));
}

TEST_F(TransferReportsTest, AnUnsetAddressBringsUpNoStaleFailure) {
    pcJob("A");
    robot();
    selectOnPC({"A.JBI"});
    library.disturb({"BscDownLoad", 1, false, false, 2000});
    EXPECT_FALSE(commands.sendCopy());
    boxes.shown.clear();
    state.TransMode = TransferMode::HispeedLink;
    session.IPaddress = "0.0.0.0";
    window.pc.click({"A.JBI"});
    EXPECT_FALSE(commands.sendCopy());
    EXPECT_THAT(boxes.texts(), ElementsAre("address unset"));
}

TEST_F(TransferReportsTest, AJobThatIsGoneFromTheControllerIsAFailureOfItsUpload) {
    robotJob("A");
    robotJob("B");
    selectOnController({"A.JBI", "B.JBI"});
    robot().erase("B.JBI");
    EXPECT_FALSE(commands.receiveCopy());
    EXPECT_THAT(boxes.texts(),
                ElementsAre("Transfer failed: BscUpLoad ( not on the controller ) (1)\n[B.JBI]"));
    EXPECT_TRUE(pc.has("A.JBI"));
    EXPECT_THAT(window.pc.names, ElementsAre("A.JBI"));
}

TEST_F(TransferReportsTest, AFailedReceiveLeavesTheOldPCFileAsItWas) {
    pcJob("A", "old");
    robotJob("A", "new");
    selectOnController({"A.JBI"});
    question.answers = {Answer::Yes};
    library.disturb({"BscUpLoad", 1, false, false, 2000});
    EXPECT_FALSE(commands.receiveCopy());
    EXPECT_EQ(pc.read("A.JBI"), job("A", "old"));
    EXPECT_THAT(window.pc.names, ElementsAre("A.JBI")) << "nothing is left beside it";
}

TEST_F(TransferReportsTest, APCFolderThatIsGoneIsReportedAtTheEnd) {
    pc.write("SUB/X.TXT", "");
    robotJob("A");
    selectOnController({"A.JBI"});
    ASSERT_TRUE(panes.scanPC(pc.path("SUB")));
    panes.fill(ActiveSide::PC);
    ASSERT_TRUE(removeFile(pc.path("SUB/X.TXT")));
    std::filesystem::remove(pc.path("SUB"));
    EXPECT_FALSE(commands.receiveCopy());
    ASSERT_EQ(boxes.shown.size(), 2u);
    EXPECT_THAT(boxes.shown[0].text, StartsWith("Transfer failed: "));
    EXPECT_EQ(boxes.shown[1].text, "File Get Error!!");
}

} // namespace
} // namespace vantrel
