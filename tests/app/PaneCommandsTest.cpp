#include "MainCommandsFixture.h"

#include <gmock/gmock.h>

namespace vantrel::tests {
namespace {

using testing::ElementsAre;

class PaneCommandsTest : public MainCommandsTest {};

TEST_F(PaneCommandsTest, AnotherColumnKeepsTheDirectionAndTheSameOneTurnsIt) {
    state.PCListing.SortDir = 1;
    showPanes();
    main.clickColumn(2);
    EXPECT_EQ(state.PCListing.SortType, 2);
    EXPECT_EQ(state.PCListing.SortDir, 1);
    main.clickColumn(2);
    EXPECT_EQ(state.PCListing.SortDir, 0);
    main.clickColumn(2);
    EXPECT_EQ(state.PCListing.SortDir, 1);
    main.clickColumn(0);
    EXPECT_EQ(state.PCListing.SortType, 0);
    EXPECT_EQ(state.PCListing.SortDir, 1);
}

TEST_F(PaneCommandsTest, ADirectionThatIsNoneOfTheTwoCountsAsDescendingWhenTurned) {
    state.PCListing.SortDir = 5;
    main.clickColumn(0);
    EXPECT_EQ(state.PCListing.SortDir, 0);
}

TEST_F(PaneCommandsTest, OtherColumnsAreIgnored) {
    state.PCListing.SortType = 1;
    for (const int column : {-1, 3, 70'000}) {
        main.clickColumn(column);
        EXPECT_EQ(state.PCListing.SortType, 1) << column;
        EXPECT_EQ(state.PCListing.SortDir, 0) << column;
    }
}

TEST_F(PaneCommandsTest, AHeaderSortsThePCPaneWhateverPaneIsActive) {
    pcJob("A");
    pcJob("B");
    showPanes();
    main.activate(ActiveSide::Controller);
    window.pc.click({"A.JBI"});
    main.clickColumn(0);
    EXPECT_THAT(window.pc.names, ElementsAre("B.JBI", "A.JBI"));
    EXPECT_THAT(panes.selectedNames(ActiveSide::PC), ElementsAre("A.JBI"));
    EXPECT_EQ(state.CtrlListing.SortDir, 0);
    EXPECT_EQ(state.Active, ActiveSide::Controller);
}

TEST_F(PaneCommandsTest, AHeaderMovesTheCheckMarkOfTheSortMenu) {
    showPanes();
    main.clickColumn(1);
    EXPECT_TRUE(shown("mnuSort(1)").checked);
    EXPECT_FALSE(shown("mnuSort(0)").checked);
}

TEST_F(PaneCommandsTest, TheSortMenuKeepsTheDirection) {
    state.PCListing.SortDir = 1;
    main.mnuSort(0);
    main.mnuSort(0);
    EXPECT_EQ(state.PCListing.SortDir, 1);
}

TEST_F(PaneCommandsTest, APressOnUpIsAPressInThePCPane) {
    showPanes();
    main.activate(ActiveSide::Controller);
    const int focuses = window.pc.focuses;
    run("tlbPC UpFolder");
    EXPECT_EQ(state.Active, ActiveSide::PC);
    EXPECT_EQ(window.pc.focuses, focuses + 1);
}

TEST_F(PaneCommandsTest, ADropOfThePCSelectionSendsIt) {
    pcJob("NEW");
    showPanes();
    main.activate(ActiveSide::Controller);
    window.pc.click({"NEW.JBI"});
    main.drop(ActiveSide::PC);
    EXPECT_EQ(state.Active, ActiveSide::PC);
    EXPECT_EQ(robot().bytes("NEW.JBI"), job("NEW"));
    EXPECT_TRUE(pc.has("NEW.JBI"));
}

TEST_F(PaneCommandsTest, ADropOfTheControllersSelectionFetchesIt) {
    robotJob("OLD");
    showPanes();
    window.controller.click({"OLD.JBI"});
    main.drop(ActiveSide::Controller);
    EXPECT_EQ(state.Active, ActiveSide::Controller);
    EXPECT_EQ(pc.read("OLD.JBI"), job("OLD"));
    EXPECT_TRUE(robot().has("OLD.JBI"));
}

TEST_F(PaneCommandsTest, ADropWithNothingToCopyIsNone) {
    pc.makeFolder("FOLDER");
    pc.write("NOTES.TXT", "x");
    showPanes();
    for (const auto& selection : std::vector<std::vector<std::string>>{
             {}, {"FOLDER"}, {"NOTES.TXT"}, {"FOLDER", "NOTES.TXT"}}) {
        window.pc.click(selection);
        EXPECT_FALSE(main.canDrop(ActiveSide::PC));
        main.drop(ActiveSide::PC);
    }
    window.controller.click({});
    EXPECT_FALSE(main.canDrop(ActiveSide::Controller));
    EXPECT_TRUE(library.calls().empty());
    EXPECT_TRUE(boxes.texts().empty());
}

TEST_F(PaneCommandsTest, ADropOfAMixtureSendsWhatCanBeSentAndNamesTheRest) {
    pc.makeFolder("FOLDER");
    pcJob("NEW");
    showPanes();
    window.pc.click({"FOLDER", "NEW.JBI"});
    window.pc.focused = window.pc.selected.front();
    ASSERT_TRUE(main.canDrop(ActiveSide::PC));
    main.drop(ActiveSide::PC);
    EXPECT_TRUE(robot().has("NEW.JBI"));
    EXPECT_THAT(boxes.texts(), ElementsAre("[FOLDER] is a folder"));
}

TEST_F(PaneCommandsTest, CopyAndMoveFollowTheSelectionNotAFocusBesideIt) {
    pc.makeFolder("FOLDER");
    pcJob("NEW");
    showPanes();
    constexpr std::size_t folderRow = 0, jobRow = 1;
    const auto offered = [&](const char* name, std::size_t focused) {
        window.pc.click({name});
        window.pc.focused = focused;
        main.updateStates();
        const auto& copy = shown("mnuFile(0)");
        EXPECT_EQ(copy, shown("tlbMain FileMove"));
        return copy.enabled;
    };
    EXPECT_TRUE(offered("NEW.JBI", folderRow));
    EXPECT_FALSE(offered("FOLDER", jobRow));
    EXPECT_FALSE(offered("nothing", jobRow));
    EXPECT_TRUE(offered("NEW.JBI", jobRow));
}

TEST_F(PaneCommandsTest, WorkingInAPaneGivesItTheKeyboardThoughItIsTheActiveOne) {
    main.workIn(ActiveSide::PC);
    EXPECT_EQ(window.pc.focuses, 1);
    main.workIn(ActiveSide::Controller);
    EXPECT_EQ(state.Active, ActiveSide::Controller);
    EXPECT_EQ(window.controller.focuses, 1);
    state.Busy = true;
    main.workIn(ActiveSide::PC);
    EXPECT_EQ(state.Active, ActiveSide::Controller);
    state.Busy = false;
    state.ViewerShown = true;
    state.Active = ActiveSide::PC;
    main.workIn(ActiveSide::Controller);
    EXPECT_EQ(window.controller.focuses, 1) << "the viewer covers it";
}

} // namespace
} // namespace vantrel::tests
