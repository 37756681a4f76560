#include "files/TransferPermission.h"

#include "CommandFixture.h"

#include <gmock/gmock.h>

namespace vantrel {
namespace {

using testing::ElementsAre;

/// What a copy says of the names that may not be transferred, and does with the others.
class TransferPermissionTest : public tests::CommandTest {};

TEST_F(TransferPermissionTest, RejectedFilesOnlyGiveOneMessageEachAndLeaveTheSessionAlone) {
    pc.write("A.TXT", "");
    pc.write("B.CND", "");
    robot();
    selectOnPC({"A.TXT", "B.CND"});
    EXPECT_TRUE(commands.sendCopy());
    EXPECT_THAT(boxes.texts(), ElementsAre("[A.TXT] refused", "[B.CND] refused"));
    for (const auto& box : boxes.shown)
        EXPECT_EQ(box.icon, BoxIcon::Exclamation);
    EXPECT_EQ(library.callCount(), 0);
    EXPECT_EQ(window.pc.focuses, 1);
}

TEST_F(TransferPermissionTest, ARejectedFileDoesNotStopTheOthers) {
    pcJob("A");
    pc.write("B.TXT", "");
    pcJob("C");
    robot();
    selectOnPC({"A.JBI", "B.TXT", "C.JBI"});
    EXPECT_TRUE(commands.sendCopy());
    EXPECT_THAT(boxes.texts(), ElementsAre("[B.TXT] refused"));
    EXPECT_THAT(robot().names(), ElementsAre("A.JBI", "C.JBI"));
}

TEST_F(TransferPermissionTest, TheProgressStepsAsideForEveryMessage) {
    pc.write("A.TXT", "");
    robot();
    selectOnPC({"A.TXT"});
    std::vector<bool> visible;
    commands.sendCopy();
    for (const auto& picture : progressView.pictures)
        visible.push_back(picture.visible);
    EXPECT_THAT(visible, ElementsAre(true, false, true, false));
}

TEST_F(TransferPermissionTest, ReceivingIsTestedByTheModelsUploadFlag) {
    robot().put("A.DAT", "x");
    showPanes();
    window.controllerFilter = 1;
    panes.fill(ActiveSide::Controller);
    window.controller.click({"A.DAT"});
    state.Controler = 1;
    EXPECT_TRUE(commands.receiveCopy());
    EXPECT_THAT(boxes.texts(), ElementsAre("[A.DAT] refused"));
    EXPECT_FALSE(pc.has("A.DAT"));
    state.Controler = cygna;
    EXPECT_TRUE(commands.receiveCopy());
    EXPECT_TRUE(pc.has("A.DAT"));
}

TEST_F(TransferPermissionTest, AFolderIsNamedAndPassedOver) {
    pc.makeFolder("OLD.JBI");
    pcJob("A");
    robot();
    selectOnPC({"OLD.JBI", "A.JBI"});
    EXPECT_TRUE(commands.sendCopy());
    EXPECT_THAT(boxes.texts(), ElementsAre("[OLD.JBI] is a folder"));
    EXPECT_THAT(robot().names(), ElementsAre("A.JBI"));
}

TEST_F(TransferPermissionTest, AControllersNameWithAPathInItIsRefusedByName) {
    robot().put("C:EVIL.JBI", "x");
    robotJob("GOOD");
    selectOnController({"C:EVIL.JBI", "GOOD.JBI"});
    EXPECT_TRUE(commands.receiveCopy());
    EXPECT_THAT(boxes.texts(), ElementsAre("[C:EVIL.JBI] unusable name"));
    EXPECT_TRUE(pc.has("GOOD.JBI"));
    EXPECT_FALSE(pc.has("C:EVIL.JBI"));
}

TEST_F(TransferPermissionTest, ANameThatTheControllerCannotHaveIsRefusedByName) {
    pc.write("한글.JBI", job("X"));
    pcJob("GOOD");
    robot();
    selectOnPC({"한글.JBI", "GOOD.JBI"});
    EXPECT_TRUE(commands.sendCopy());
    EXPECT_THAT(boxes.texts(), ElementsAre("[한글.JBI] not expressible"));
    EXPECT_THAT(robot().names(), ElementsAre("GOOD.JBI"));
}

TEST_F(TransferPermissionTest, TheChangedNameIsTheOneThatIsTested) {
    program.write("FileTable.tbl", "*.JBI,1,1,1,1,1,1,1,1,1\n");
    ASSERT_TRUE(table.load(program.path()));
    state.JBR = true;
    robotJob("A");
    selectOnController({"A.JBI"});
    EXPECT_TRUE(commands.receiveCopy());
    EXPECT_THAT(boxes.texts(), ElementsAre("[A.JBR] refused"));
    EXPECT_EQ(library.callCount(), 0);
}

} // namespace
} // namespace vantrel
