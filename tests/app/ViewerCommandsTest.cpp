#include "app/viewer/ViewerCommands.h"

#include "MainCommandsFixture.h"
#include "platform/Files.h"

#include <chrono>
#include <filesystem>

#include <gmock/gmock.h>
namespace vantrel::tests {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::StartsWith;

/// A PC folder with a job, a data file, a plain file and a folder, all with their rows shown.
class ViewerCommandsTest : public MainCommandsTest {
  protected:
    ViewerCommandsTest() {
        pc.write("A.JBI", "/JOB\r\nNOP\n");
        pc.write("B.DAT", "1,2\r3");
        pc.write("C.TXT", "text");
        pc.makeFolder("JBI");
        showPanes();
        window.pc.click({"A.JBI"});
    }

    void press() { run("tlbMain FileDisp"); }

    static constexpr std::size_t rowOfFolder = 0, rowOfJob = 1, rowOfData = 2;
};

TEST_F(ViewerCommandsTest, ShowsTheSelectedJobFileWithoutItsHeader) {
    press();
    EXPECT_TRUE(viewer.isShown);
    EXPECT_EQ(viewer.name, "A.JBI");
    EXPECT_EQ(viewer.text, "NOP\r\n");
    EXPECT_TRUE(state.ViewerShown);
    EXPECT_TRUE(shown("tlbMain FileDisp").checked);
    EXPECT_TRUE(shown("mnuFile(6)").enabled);
    EXPECT_EQ(window.deepestBusy, 1);
    EXPECT_EQ(window.busyDepth, 0);
}

TEST_F(ViewerCommandsTest, ShowsHeaderLinesWhenTheSettingAsksForThem) {
    state.Headder = true;
    run("mnuFile(5)");
    EXPECT_EQ(viewer.text, "/JOB\r\nNOP\r\n");
}

TEST_F(ViewerCommandsTest, AFileOfHeaderLinesOnlyIsEmptyWithoutThem) {
    pc.write("A.JBI", "/JOB\r\n//NAME A\r\n");
    press();
    EXPECT_TRUE(viewer.isShown);
    EXPECT_EQ(viewer.text, "");
    press();
    state.Headder = true;
    press();
    EXPECT_EQ(viewer.text, "/JOB\r\n//NAME A\r\n");
}

TEST_F(ViewerCommandsTest, ASecondPressReturnsToTheControllerWithoutReading) {
    press();
    pc.write("A.JBI", "changed");
    window.pc.click({"B.DAT"});
    press();
    EXPECT_FALSE(viewer.isShown);
    EXPECT_EQ(viewer.shows, 1);
    EXPECT_FALSE(state.ViewerShown);
    EXPECT_FALSE(shown("tlbMain FileDisp").checked);
    EXPECT_FALSE(shown("mnuFile(6)").enabled);
    EXPECT_TRUE(shown("tlbCtrlButton CTRLButton").enabled);
}

TEST_F(ViewerCommandsTest, AnotherSettingOfTheHeaderReloadsNothing) {
    press();
    state.Headder = true;
    main.updateStates();
    EXPECT_EQ(viewer.shows, 1);
    EXPECT_EQ(viewer.text, "NOP\r\n");
}

TEST_F(ViewerCommandsTest, AFolderOrPlainFileOrNothingSelectedChangesNothing) {
    for (const auto& name : {"JBI", "C.TXT", "no such row"}) {
        window.pc.click({name});
        press();
        EXPECT_FALSE(viewer.isShown) << name;
        EXPECT_FALSE(state.ViewerShown) << name;
        EXPECT_FALSE(shown("tlbMain FileDisp").checked) << name;
    }
    EXPECT_EQ(viewer.shows, 0);
    EXPECT_THAT(boxes.texts(), IsEmpty());
}

TEST_F(ViewerCommandsTest, EveryJobKindIsShown) {
    window.pc.click({"B.DAT"});
    press();
    EXPECT_EQ(viewer.text, "1,2\r\n3\r\n");
}

TEST_F(ViewerCommandsTest, OfSeveralTheOneWithTheFocusIsShown) {
    window.pc.click({"A.JBI", "B.DAT"});
    window.pc.focused = rowOfData;
    press();
    EXPECT_EQ(viewer.name, "B.DAT");
}

TEST_F(ViewerCommandsTest, AFocusOutsideTheSelectionDoesNotCount) {
    window.pc.focused = rowOfData;
    press();
    EXPECT_EQ(viewer.name, "A.JBI");
}

TEST_F(ViewerCommandsTest, LooksAtThePCListWhicheverPaneIsActiveAndActivatesIt) {
    robotJob("Z");
    panes.readController();
    panes.fill(ActiveSide::Controller);
    window.controller.click({"Z.JBI"});
    main.activate(ActiveSide::Controller);
    run("mnuFile(5)");
    EXPECT_EQ(viewer.name, "A.JBI");
    EXPECT_EQ(state.Active, ActiveSide::PC);
    EXPECT_EQ(view.active, ActiveSide::PC);
}

TEST_F(ViewerCommandsTest, TheControllerPaneCannotBecomeActiveUnderTheViewer) {
    press();
    main.activate(ActiveSide::Controller);
    EXPECT_EQ(state.Active, ActiveSide::PC);
    press();
    main.activate(ActiveSide::Controller);
    EXPECT_EQ(state.Active, ActiveSide::Controller);
}

TEST_F(ViewerCommandsTest, AFileThatCannotBeOpenedIsToldAndThePaneStays) {
    std::filesystem::remove(pc.path("A.JBI"));
    press();
    ASSERT_EQ(boxes.shown.size(), 1u);
    EXPECT_THAT(boxes.shown[0].text, StartsWith("not displayed [A.JBI]\n"));
    EXPECT_GT(boxes.shown[0].text.size(), std::string("not displayed [A.JBI]\n").size());
    EXPECT_EQ(boxes.shown[0].icon, BoxIcon::Exclamation);
    EXPECT_FALSE(viewer.isShown);
    EXPECT_FALSE(state.ViewerShown);
    EXPECT_FALSE(shown("tlbMain FileDisp").checked);
    EXPECT_EQ(window.busyDepth, 0);
}

TEST_F(ViewerCommandsTest, ALongNameIsCutWhereItIsTold) {
    const std::string name = std::string(240, 'A') + ".JBI";
    pc.write(name, "NOP\r\n");
    showPanes();
    window.pc.click({name});
    std::filesystem::remove(pc.path(name));
    press();
    ASSERT_EQ(boxes.shown.size(), 1u);
    EXPECT_THAT(boxes.shown[0].text,
                StartsWith("not displayed [" + std::string(200, 'A') + "\u2026]"));
}

TEST_F(ViewerCommandsTest, APathIsJoinedWithOneSeparator) {
    state.PCPath = pc.path() + "/";
    press();
    EXPECT_EQ(viewer.text, "NOP\r\n");
}

TEST_F(ViewerCommandsTest, PrintingAsksFirstAndPrintsWhatIsDisplayed) {
    const std::string viewedFolder = state.PCPath;
    const std::string changed(fileDetails(pc.path("A.JBI")).changed.view());
    press();
    state.PCPath = pc.makeFolder("elsewhere");
    std::filesystem::last_write_time(
        pc.path("A.JBI"), std::filesystem::file_time_type::clock::now() - std::chrono::hours(100));
    pc.write("A.JBI", "changed");
    state.Headder = true;
    window.pc.click({"B.DAT"});
    boxes.answers = {true};
    run("tlbPC Print");
    ASSERT_EQ(boxes.shown.size(), 1u);
    EXPECT_EQ(boxes.shown[0], (FakeMessageBoxes::Box{FakeMessageBoxes::Kind::YesNo,
                                                     "print? [A.JBI]", BoxIcon::Question}));
    EXPECT_THAT(printer.printed, ElementsAre("A.JBI:NOP\r\n"));
    EXPECT_EQ(printer.files[0].folder, viewedFolder);
    EXPECT_EQ(printer.files[0].changed, changed) << "as it was read";
}

TEST_F(ViewerCommandsTest, ABoxThatIsClosedPrintsNothing) {
    press();
    run("mnuFile(6)");
    EXPECT_EQ(boxes.shown.size(), 1u);
    EXPECT_THAT(printer.printed, IsEmpty());
}

TEST_F(ViewerCommandsTest, WithoutADisplayedFileThereIsNothingToPrint) {
    boxes.answers = {true, true};
    run("mnuFile(6)");
    press();
    press();
    run("tlbPC Print");
    EXPECT_THAT(boxes.texts(), ElementsAre("nothing to print", "nothing to print"));
    EXPECT_THAT(printer.printed, IsEmpty());
}

TEST_F(ViewerCommandsTest, TheWindowIsLockedWhileThePrinterWorks) {
    press();
    boxes.answers = {true};
    int depth = 0;
    printer.whilePrinting = [&] { depth = window.lockDepth; };
    run("tlbPC Print");
    EXPECT_EQ(depth, 1);
    EXPECT_EQ(window.lockDepth, 0);
}

TEST_F(ViewerCommandsTest, AFailedPrintIsToldOnceTheWindowIsFree) {
    press();
    boxes.answers = {true};
    printer.answer = Failure{"no paper"};
    run("tlbPC Print");
    EXPECT_THAT(boxes.texts(), ElementsAre("print? [A.JBI]", "not printed [A.JBI]\nno paper"));
    EXPECT_TRUE(state.ViewerShown);
    expectLeftInOrder();
}

TEST_F(ViewerCommandsTest, LineNumbersAreShownWhileTheyAreWantedAndNeverPrinted) {
    main.updateStates();
    EXPECT_FALSE(shown("mnuLineNumbers").enabled);
    press();
    EXPECT_FALSE(shown("mnuLineNumbers").checked);
    run("mnuLineNumbers");
    EXPECT_EQ(viewer.text, "1  NOP\r\n");
    EXPECT_TRUE(shown("mnuLineNumbers").checked);
    boxes.answers = {true};
    run("mnuFile(6)");
    EXPECT_THAT(printer.printed, ElementsAre("A.JBI:NOP\r\n"));
    press();
    window.pc.click({"B.DAT"});
    press();
    EXPECT_EQ(viewer.text, "1  1,2\r\n2  3\r\n") << "for the next file too";
    run("mnuLineNumbers");
    EXPECT_EQ(viewer.text, "1,2\r\n3\r\n");
}

TEST_F(ViewerCommandsTest, AJobOfTheControllerIsShownWithoutAFileOnThePC) {
    robotJob("X");
    showPanes();
    window.controller.click({"X.JBI"});
    state.Active = ActiveSide::Controller;
    main.updateStates();
    EXPECT_TRUE(shown("mnuViewOnController").enabled);
    run("mnuViewOnController");
    EXPECT_TRUE(viewer.isShown);
    EXPECT_EQ(viewer.name, "X.JBI");
    EXPECT_EQ(state.Active, ActiveSide::PC) << "its pane is covered";
    EXPECT_FALSE(pc.has("X.JBI"));
    EXPECT_FALSE(shown("mnuViewOnController").enabled);
}

} // namespace
} // namespace vantrel::tests
