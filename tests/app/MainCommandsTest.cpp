#include "MainCommandsFixture.h"

#include <gmock/gmock.h>

namespace vantrel::tests {
namespace {

using testing::ElementsAre;

TEST_F(MainCommandsTest, CopyFollowsTheActivePane) {
    pcJob("NEW");
    robotJob("OLD");
    showPanes();
    window.pc.click({"NEW.JBI"});
    run("mnuFile(0)");
    EXPECT_EQ(robot().bytes("NEW.JBI"), job("NEW"));

    main.activate(ActiveSide::Controller);
    window.controller.click({"OLD.JBI"});
    run("mnuRightFile(0)");
    EXPECT_EQ(pc.read("OLD.JBI"), job("OLD"));
}

TEST_F(MainCommandsTest, APaneThatGetsTheFocusDuringAnOperationDoesNotBecomeTheActiveOne) {
    state.Busy = true;
    main.activate(ActiveSide::Controller);
    EXPECT_EQ(state.Active, ActiveSide::PC);
    state.Busy = false;
    main.activate(ActiveSide::Controller);
    EXPECT_EQ(state.Active, ActiveSide::Controller);
}

TEST_F(MainCommandsTest, ToolButtonsForwardByTheirKeys) {
    showPanes();
    run("tlbMain AllSelect");
    EXPECT_THAT(view.selectedAll, ElementsAre(ActiveSide::PC));
    run("tlbMain DispDetail");
    EXPECT_EQ(view.pcView, 3);
    run("tlbMain modeHiSpeed");
    EXPECT_EQ(state.TransMode, TransferMode::HispeedLink);
    run("tlbMain modeBsc");
    EXPECT_EQ(state.TransMode, TransferMode::Bsc);
}

TEST_F(MainCommandsTest, MoveFollowsTheActivePane) {
    pcJob("NEW");
    robotJob("OLD");
    showPanes();
    window.pc.click({"NEW.JBI"});
    run("tlbMain FileMove");
    EXPECT_EQ(robot().bytes("NEW.JBI"), job("NEW"));
    EXPECT_FALSE(pc.has("NEW.JBI"));

    main.activate(ActiveSide::Controller);
    window.controller.click({"OLD.JBI"});
    run("mnuFile(1)");
    EXPECT_EQ(pc.read("OLD.JBI"), job("OLD"));
    EXPECT_FALSE(robot().has("OLD.JBI"));
}

TEST_F(MainCommandsTest, DeleteFollowsTheActivePane) {
    pcJob("SAME");
    robotJob("SAME");
    showPanes();
    window.pc.click({"SAME.JBI"});
    window.controller.click({"SAME.JBI"});
    question.answers = {Answer::Yes, Answer::Yes};
    run("tlbMain FileDelete");
    EXPECT_FALSE(pc.has("SAME.JBI"));
    EXPECT_TRUE(robot().has("SAME.JBI"));

    main.activate(ActiveSide::Controller);
    window.controller.click({"SAME.JBI"});
    run("mnuRightFile(2)");
    EXPECT_FALSE(robot().has("SAME.JBI"));
}

TEST_F(MainCommandsTest, TheRefreshButtonReadsAgainUnderALockAndGivesTheFocusBack) {
    showPanes();
    pcJob("NEW");
    const int locks = window.locks;
    const int focuses = window.pc.focuses;
    run("tlbMain Refresh");
    EXPECT_THAT(window.pc.names, ElementsAre("NEW.JBI"));
    EXPECT_EQ(window.locks, locks + 1);
    EXPECT_EQ(window.pc.focuses, focuses + 1);
}

TEST_F(MainCommandsTest, ActivatingAPaneShowsIt) {
    main.activate(ActiveSide::Controller);
    EXPECT_EQ(view.active, ActiveSide::Controller);
    EXPECT_TRUE(shown("tlbCtrlButton CTRLButton").checked);
    main.activate(ActiveSide::PC);
    EXPECT_EQ(view.active, ActiveSide::PC);
}

TEST_F(MainCommandsTest, AnotherLanguageReachesTitleAndCounts) {
    pcJob("A");
    showPanes();
    messages.replace({text(0, "Titel"), text(14, "Rechner: "), text(15, "Steuerung: "),
                      text(16, " St."), text(191, "BSC")});
    const auto mode = state.TransMode;
    main.recaption();
    EXPECT_EQ(view.mode.caption, "Titel  -- BSC --");
    EXPECT_EQ(window.pcStatus, "Rechner: 1 St.");
    EXPECT_THAT(window.controllerStatus, testing::StartsWith("Steuerung: "));
    EXPECT_EQ(state.TransMode, mode);
}

TEST_F(MainCommandsTest, ViewBelongsToTheActivePane) {
    run("mnuDisp(3)");
    EXPECT_EQ(state.PCDispType, 3);
    EXPECT_EQ(view.controllerView, -1);
    main.activate(ActiveSide::Controller);
    run("mnuFileDisp(2)");
    EXPECT_EQ(state.CtrlDispType, 2);
    EXPECT_EQ(state.PCDispType, 3);
    EXPECT_TRUE(shown("mnuDisp(2)").checked);
    EXPECT_TRUE(shown("mnuFileDisp(2)").checked);
}

TEST_F(MainCommandsTest, SortOfOnePaneLeavesTheOther) {
    state.PCListing.SortType = 0;
    main.activate(ActiveSide::Controller);
    run("mnuSort(2)");
    EXPECT_EQ(state.CtrlListing.SortType, 2);
    EXPECT_EQ(state.PCListing.SortType, 0);
}

TEST_F(MainCommandsTest, SortKeepsTheSelectedNames) {
    pc.write("A.JBI", std::string(9, 'x'));
    pc.write("B.JBI", "x");
    showPanes();
    window.pc.click({"A.JBI"});
    run("mnuSort(1)");
    EXPECT_THAT(window.pc.names, ElementsAre("B.JBI", "A.JBI"));
    EXPECT_THAT(window.pc.selectedNames(), ElementsAre("A.JBI"));
}

TEST_F(MainCommandsTest, SwitchingTheModeEmptiesTheControllerPaneWithoutAConnection) {
    robotJob("OLD");
    showPanes();
    run("mnuModeHiSpeed");
    EXPECT_TRUE(window.controller.names.empty());
    EXPECT_EQ(window.controllerStatus, "Controller: 0 items");
    EXPECT_TRUE(library.calls().empty());
    EXPECT_TRUE(shown("mnuModeHiSpeed").checked);
    EXPECT_FALSE(shown("mnuModeBsc").checked);
}

TEST_F(MainCommandsTest, ChoosingTheModeThatIsOnKeepsTheList) {
    robotJob("OLD");
    showPanes();
    run("mnuModeBsc");
    EXPECT_THAT(window.controller.names, testing::Contains("OLD.JBI"));
}

TEST_F(MainCommandsTest, AModeThatWasSetByNameIsShownAndEmptiesTheList) {
    robotJob("OLD");
    main.mnuModeBsc();
    showPanes();
    session.SetTansMode(1);
    main.modeWasChanged();
    EXPECT_TRUE(view.mode.showsRobot);
    EXPECT_TRUE(window.controller.names.empty());
}

TEST_F(MainCommandsTest, AModelWithoutTheLinkLeavesTheMode) {
    state.Controler = 1;
    state.TransMode = TransferMode::HispeedLink;
    state.CtrlListing.append("OLD.JBI", 0, DateText());
    main.applyHispeedAvailability();
    EXPECT_EQ(state.CtrlListing.Count, 0);
    EXPECT_EQ(state.TransMode, TransferMode::Bsc);
    EXPECT_TRUE(view.mode.showsSerialLine);
    EXPECT_FALSE(shown("mnuModeHiSpeed").enabled);
    EXPECT_FALSE(shown("tlbMain modeHiSpeed").enabled);
}

TEST_F(MainCommandsTest, RefreshReadsTheControllerAndKeepsTheSelection) {
    robotJob("A");
    robotJob("B");
    showPanes();
    main.activate(ActiveSide::Controller);
    window.controller.click({"B.JBI"});
    robotJob("AA");
    run("mnuRefresh");
    EXPECT_THAT(window.controller.names, testing::IsSupersetOf({"A.JBI", "AA.JBI", "B.JBI"}));
    EXPECT_THAT(window.controller.selectedNames(), ElementsAre("B.JBI"));
    expectLeftInOrder();
}

TEST_F(MainCommandsTest, AFailedRefreshSaysSoAndKeepsTheOldList) {
    robotJob("A");
    showPanes();
    main.activate(ActiveSide::Controller);
    library.disturb({"BscConnect", 1, false, false, 2000});
    run("mnuRefresh");
    EXPECT_THAT(boxes.texts(), ElementsAre("not read\nCOM1\nBscConnect ( line broken (2000) )"));
    EXPECT_THAT(window.controller.names, testing::Contains("A.JBI"));
    EXPECT_EQ(state.CtrlListing.Names.front(), "A.JBI");
    expectLeftInOrder();
}

TEST_F(MainCommandsTest, AnUnsetAddressIsToldOnce) {
    state.TransMode = TransferMode::HispeedLink;
    session.IPaddress = "0.0.0.0";
    main.activate(ActiveSide::Controller);
    run("mnuRefresh");
    EXPECT_THAT(boxes.texts(), ElementsAre("address unset"));
    expectLeftInOrder();
}

TEST_F(MainCommandsTest, RefreshOfThePCShowsNewFilesAndKeepsTheSelection) {
    pcJob("A");
    pcJob("B");
    showPanes();
    window.pc.click({"B.JBI"});
    pcJob("AA");
    run("mnuRightRefresh");
    EXPECT_THAT(window.pc.names, ElementsAre("A.JBI", "AA.JBI", "B.JBI"));
    EXPECT_THAT(window.pc.selectedNames(), ElementsAre("B.JBI"));
    EXPECT_TRUE(library.calls().empty());
}

TEST_F(MainCommandsTest, AFolderThatIsGoneIsToldAndNothingChanges) {
    pcJob("A");
    showPanes();
    main.openPCFolder(pc.path("missing"), FolderTree());
    EXPECT_THAT(boxes.texts(), ElementsAre("File Get Error!!"));
    EXPECT_EQ(state.PCPath, pc.path());
    EXPECT_THAT(window.pc.names, ElementsAre("A.JBI"));
}

TEST_F(MainCommandsTest, UpOpensTheFolderAbove) {
    state.PCPath = pc.makeFolder("inner");
    run("tlbPC UpFolder");
    EXPECT_EQ(state.PCPath, pc.path());
    EXPECT_EQ(view.folder, pc.path());
    EXPECT_THAT(window.pc.names, ElementsAre("inner"));
}

TEST_F(MainCommandsTest, OpeningAFolderEntersIt) {
    pc.write("inner/A.JBI", job("A"));
    showPanes();
    main.openItem(ActiveSide::PC, 0);
    EXPECT_EQ(state.PCPath, pc.path("inner"));
    EXPECT_EQ(view.folder, pc.path("inner"));
    EXPECT_THAT(window.pc.names, ElementsAre("A.JBI"));
    EXPECT_EQ(window.pcStatus, "PC: 1 items");
}

TEST_F(MainCommandsTest, OpeningAJobKindFileStartsTheEditor) {
    pcJob("A");
    pc.write("B.TXT", "x");
    pc.write("CJBI.x", "x");
    pc.write("D.xJBI", "x");
    showPanes();
    for (std::size_t row = 0; row < 4; ++row)
        main.openItem(ActiveSide::PC, row);
    EXPECT_THAT(edited, ElementsAre(pc.path("A.JBI")));
}

TEST_F(MainCommandsTest, AnEditorThatDoesNotStartIsTold) {
    pcJob("A");
    showPanes();
    editorAnswer = Failure{"no editor"};
    main.openItem(ActiveSide::PC, 0);
    ASSERT_EQ(boxes.texts().size(), 1u);
    EXPECT_THAT(boxes.texts()[0], testing::HasSubstr("no editor"));
}

TEST_F(MainCommandsTest, TheControllerPaneOpensNothing) {
    robotJob("A");
    showPanes();
    main.openItem(ActiveSide::Controller, 0);
    main.openItem(ActiveSide::PC, 5);
    EXPECT_TRUE(edited.empty());
    EXPECT_EQ(state.PCPath, pc.path());
}

TEST_F(MainCommandsTest, UpStaysAtTheRoot) {
    state.PCPath = "/";
    run("tlbPC UpFolder");
    EXPECT_EQ(state.PCPath, "/");
    EXPECT_EQ(window.pc.shows, 0);
}

TEST_F(MainCommandsTest, KeysOfTheLists) {
    pcJob("A");
    state.PCPath = pc.makeFolder("inner");
    EXPECT_TRUE(runner.listKey(ActiveSide::PC, 'A', true));
    EXPECT_THAT(view.selectedAll, ElementsAre(ActiveSide::PC));
    EXPECT_FALSE(runner.listKey(ActiveSide::PC, 'A', false));
    constexpr int backspace = 8;
    EXPECT_FALSE(runner.listKey(ActiveSide::Controller, backspace, false));
    EXPECT_TRUE(runner.listKey(ActiveSide::PC, backspace, false));
    EXPECT_EQ(state.PCPath, pc.path());
}

TEST_F(MainCommandsTest, DeleteKeyDeletesOnlyWhereTheCommandIsOffered) {
    constexpr int deleteKey = 127;
    robotJob("OLD");
    showPanes();
    main.activate(ActiveSide::Controller);
    window.controller.click({"OLD.JBI"});
    window.controllerFilter = 1;
    EXPECT_FALSE(runner.listKey(ActiveSide::Controller, deleteKey, false));
    EXPECT_TRUE(robot().has("OLD.JBI"));
    window.controllerFilter = 0;
    question.answers = {Answer::Yes};
    EXPECT_TRUE(runner.listKey(ActiveSide::Controller, deleteKey, false));
    EXPECT_FALSE(robot().has("OLD.JBI"));
}

TEST_F(MainCommandsTest, AKeyWorksOnTheListItWasPressedIn) {
    constexpr int deleteKey = 127;
    pcJob("SAME");
    robotJob("SAME");
    showPanes();
    window.pc.click({"SAME.JBI"});
    window.controller.click({"SAME.JBI"});
    question.answers = {Answer::Yes};
    runner.listKey(ActiveSide::Controller, deleteKey, false);
    EXPECT_TRUE(pc.has("SAME.JBI"));
    EXPECT_FALSE(robot().has("SAME.JBI"));
}

TEST_F(MainCommandsTest, AnotherFilterRefillsItsPaneOnly) {
    pcJob("A");
    pc.write("B.DAT", "x");
    robotJob("OLD");
    showPanes();
    const int controllerShows = window.controller.shows;
    window.pcFilter = 0;
    main.chooseFilter(ActiveSide::PC);
    EXPECT_THAT(window.pc.names, ElementsAre("A.JBI"));
    EXPECT_EQ(window.pcStatus, "PC: 1 items");
    EXPECT_EQ(window.controller.shows, controllerShows);
}

TEST_F(MainCommandsTest, EndAsksTheWindowToClose) {
    run("mnuEnd");
    EXPECT_EQ(view.closes, 1);
}

TEST_F(MainCommandsTest, TheOtherEntriesOpenWhatTheyName) {
    for (const char* name :
         {"mnuOpt(0)", "mnuOpt(2)", "mnuOpt(3)", "mnuOpt(4)", "mnuOpt(5)", "mnuOpt(7)", "mnuVer"})
        run(name);
    EXPECT_THAT(windows.opened, ElementsAre("settings", "list 0", "list 1", "list 2", "list 3",
                                            "language", "version"));
    run("mnuHelp(0)");
    EXPECT_EQ(documents.size(), 1U);
}

} // namespace
} // namespace vantrel::tests
