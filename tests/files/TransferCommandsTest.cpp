#include "CommandFixture.h"

#include <gmock/gmock.h>

namespace vantrel {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class RefreshTest : public tests::CommandTest {};

TEST_F(RefreshTest, ShowsWhatIsNewOnThePCAndKeepsTheSelection) {
    pcJob("B");
    pcJob("C");
    robot();
    selectOnPC({"C.JBI"});
    pcJob("A");
    EXPECT_TRUE(commands.refresh(ActiveSide::PC));
    EXPECT_THAT(window.pc.names, ElementsAre("A.JBI", "B.JBI", "C.JBI"));
    EXPECT_THAT(window.pc.selectedNames(), ElementsAre("C.JBI"));
    EXPECT_EQ(window.pcStatus, "PC: 3 items");
    EXPECT_EQ(library.callCount(), 0);
}

TEST_F(RefreshTest, ShowsWhatIsNewOnTheControllerInALockedWindow) {
    robotJob("A");
    showPanes();
    robotJob("B");
    library.onCall = [this](const std::string&) { EXPECT_EQ(window.lockDepth, 1); };
    EXPECT_TRUE(commands.refresh(ActiveSide::Controller));
    EXPECT_THAT(window.controller.names, ElementsAre("A.JBI", "B.JBI"));
    EXPECT_EQ(window.controllerStatus, "Controller: 2 items");
}

TEST_F(RefreshTest, AFailedReadShowsItsMessageAndKeepsTheOldList) {
    robotJob("A");
    showPanes();
    library.disturb({"BscConnect", 1, false, false, 2000});
    EXPECT_FALSE(commands.refresh(ActiveSide::Controller));
    EXPECT_THAT(boxes.texts(), ElementsAre("not read\nCOM1\nBscConnect ( line broken (2000) )"));
    EXPECT_EQ(boxes.shown[0].icon, BoxIcon::Exclamation);
    EXPECT_THAT(window.controller.names, ElementsAre("A.JBI"));
}

TEST_F(RefreshTest, ACancelledReadIsToldAndKeepsTheOldList) {
    robotJob("A");
    showPanes();
    robotJob("B");
    library.onCall = [this](const std::string& function) {
        if (function == "BscFindNext")
            progress.pressCancel();
    };
    EXPECT_FALSE(commands.refresh(ActiveSide::Controller));
    EXPECT_THAT(boxes.texts(), ElementsAre("not read\nCOM1\n ( cancelled (3) )"));
    EXPECT_THAT(window.controller.names, ElementsAre("A.JBI"));
    EXPECT_EQ(library.callCount("BscFindFirst"), 1);
}

TEST_F(RefreshTest, AnUnsetAddressGivesOneMessage) {
    robotJob("A");
    showPanes();
    state.TransMode = TransferMode::HispeedLink;
    session.IPaddress = "0.0.0.0";
    EXPECT_FALSE(commands.refresh(ActiveSide::Controller));
    EXPECT_THAT(boxes.texts(), ElementsAre("address unset"));
}

TEST_F(RefreshTest, AListThatCannotBeFilledIsReportedAndIsEmpty) {
    pcJob("A");
    robotJob("B");
    showPanes();
    window.onFilterIndex = [this](ActiveSide side) { panes.listing(side).Count = 7; };
    EXPECT_FALSE(commands.refresh(ActiveSide::PC));
    EXPECT_FALSE(commands.refresh(ActiveSide::Controller));
    EXPECT_THAT(boxes.texts(), ElementsAre("File Dispaly Error!!", "File Dispaly Error!!"));
    EXPECT_THAT(window.pc.names, IsEmpty());
    EXPECT_THAT(window.controller.names, IsEmpty());
    EXPECT_EQ(window.lockDepth, 0);
}

TEST_F(RefreshTest, APCFolderThatIsGoneIsReportedAndTheOldListStays) {
    pc.write("SUB/A.JBI", "");
    ASSERT_TRUE(panes.scanPC(pc.path("SUB")));
    panes.fill(ActiveSide::PC);
    std::filesystem::remove_all(pc.path("SUB"));
    EXPECT_FALSE(commands.refresh(ActiveSide::PC));
    EXPECT_THAT(boxes.texts(), ElementsAre("File Get Error!!"));
    EXPECT_THAT(window.pc.names, ElementsAre("A.JBI"));
    EXPECT_EQ(state.PCPath, pc.path("SUB"));
}

} // namespace
} // namespace vantrel
