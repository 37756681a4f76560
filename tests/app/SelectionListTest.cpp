#include "app/lists/SelectionList.h"

#include "MainCommandsFixture.h"
#include "platform/TextEncoding.h"
#include "support/NamedRow.h"

#include <gmock/gmock.h>

namespace vantrel::tests {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

/// The selection of a pane that becomes a job list file.
class SelectionListTest : public MainCommandsTest {
  protected:
    SelectionListTest() {
        for (const char* name : {"A", "B", "C"})
            pcJob(name);
        pc.write("D.DAT", "data");
        pc.makeFolder("SUB.JBI");
        robotJob("X");
        robotJob("Y");
    }

    void TearDown() override { expectLeftInOrder(); }

    void saveAs(const std::string& path) {
        windows.newLists.push_back(path);
        run("mnuTools(3)");
    }
    /// Which jobs the commands on lists read in a list file of the PC folder.
    std::vector<std::string> readBack(const std::string& file) {
        session.path = pc.path();
        EXPECT_TRUE(session.SetJobListFile(file, true));
        std::vector<std::string> jobs;
        jobs.reserve(std::size_t(session.JobListCount()));
        for (int index = 0; index < session.JobListCount(); ++index)
            jobs.push_back(session.JobList(index));
        return jobs;
    }
    bool isOffered() {
        main.updateStates();
        return shown("mnuTools(3)").enabled;
    }
};

TEST_F(SelectionListTest, NamesTheJobsInTheOrderOfTheList) {
    selectOnPC({"A.JBI", "C.JBI"});
    saveAs(pc.path("weld.lst"));
    EXPECT_EQ(pc.read("weld.lst"), "A.JBI\r\nC.JBI\r\n");
    EXPECT_THAT(readBack("weld.lst"), ElementsAre("A.JBI", "C.JBI"));
    EXPECT_THAT(boxes.texts(), IsEmpty());
}

TEST_F(SelectionListTest, TheControllersJobsAreListedToo) {
    selectOnController({"X.JBI", "Y.JBI"});
    window.pc.click({"D.DAT"});
    state.Active = ActiveSide::Controller;
    saveAs(pc.path("robot.lst"));
    EXPECT_THAT(readBack("robot.lst"), ElementsAre("X.JBI", "Y.JBI"));
    EXPECT_EQ(window.controller.focuses, 1) << "the list that the operator works in";
}

TEST_F(SelectionListTest, BeginsInThePCFolderWithANameOfTheFirstJob) {
    selectOnPC({"B.JBI", "C.JBI"});
    run("mnuTools(3)");
    EXPECT_THAT(windows.opened, ElementsAre("new list B.lst"));
    EXPECT_EQ(windows.folder, pc.path());
    EXPECT_FALSE(pc.has("B.lst"));
}

TEST_F(SelectionListTest, ANameWithoutAnEndingGetsTheOneOfLists) {
    selectOnPC({"A.JBI"});
    saveAs(pc.path("weld"));
    saveAs(pc.path("weld.txt"));
    EXPECT_THAT(readBack("weld.lst"), ElementsAre("A.JBI"));
    EXPECT_THAT(readBack("weld.txt"), ElementsAre("A.JBI"));
    EXPECT_FALSE(pc.has("weld"));
}

TEST_F(SelectionListTest, WhatIsNoJobIsNamedAndLeftOut) {
    selectOnPC({"A.JBI", "D.DAT", "SUB.JBI"});
    saveAs(pc.path("weld.lst"));
    EXPECT_THAT(readBack("weld.lst"), ElementsAre("A.JBI"));
    ASSERT_EQ(boxes.shown.size(), 1U);
    EXPECT_THAT(boxes.texts()[0], StartsWith("left out:"));
    EXPECT_THAT(boxes.texts()[0], HasSubstr("[D.DAT]"));
    EXPECT_THAT(boxes.texts()[0], HasSubstr("[SUB.JBI]"));
    EXPECT_THAT(boxes.texts()[0], testing::Not(HasSubstr("A.JBI")));
}

TEST_F(SelectionListTest, AnExistingFileIsReplacedOnlyAfterYes) {
    pc.write("old.lst", "OLD.JBI\r\n");
    selectOnPC({"A.JBI"});
    saveAs(pc.path("old.lst"));
    EXPECT_EQ(pc.read("old.lst"), "OLD.JBI\r\n");
    EXPECT_THAT(windows.opened, ElementsAre("new list A.lst", "new list old.lst"))
        << "another name can be chosen";
    EXPECT_THAT(boxes.texts(),
                ElementsAre("[" + pc.path("old.lst") + "] already exists. Overwrite it?"));
    boxes.answers = {true};
    saveAs(pc.path("old"));
    EXPECT_EQ(pc.read("old.lst"), "A.JBI\r\n") << "asked for under its whole name";
    EXPECT_EQ(boxes.shown.size(), 2U);
}

TEST_F(SelectionListTest, AFailedWriteIsToldWithFileAndReason) {
    selectOnPC({"A.JBI"});
    saveAs(pc.path("no folder") + pc.path("x").substr(pc.path().size(), 1) + "weld.lst");
    ASSERT_EQ(boxes.shown.size(), 1U);
    EXPECT_THAT(boxes.texts()[0], StartsWith("list not written: ["));
    EXPECT_THAT(boxes.texts()[0], HasSubstr("weld.lst] "));
    EXPECT_FALSE(boxes.texts()[0].ends_with("] ")) << boxes.texts()[0];
    EXPECT_EQ(state.JobListFile, ApplicationState().JobListFile);
}

TEST_F(SelectionListTest, ANameThatNoListCommandReadsIsRefused) {
    selectOnPC({"A.JBI"});
    saveAs(pc.path("weld.lst "));
    ASSERT_EQ(boxes.shown.size(), 1U);
    EXPECT_THAT(boxes.texts()[0], HasSubstr("unusable name"));
    EXPECT_THAT(windows.opened, ElementsAre("new list A.lst", "new list weld.lst "));
}

TEST_F(SelectionListTest, AListInThePCFolderIsShownThereAndOfferedNext) {
    selectOnPC({"A.JBI", "C.JBI"});
    saveAs(pc.path("weld.lst"));
    EXPECT_THAT(window.pc.names, testing::Contains("weld.lst"));
    EXPECT_THAT(window.pc.selectedNames(), ElementsAre("A.JBI", "C.JBI"));
    EXPECT_EQ(state.JobListFile, "weld.lst");
    EXPECT_EQ(window.pc.focuses, 1);
}

TEST_F(SelectionListTest, AListElsewhereLeavesThePaneAndTheNextNameAlone) {
    const TemporaryFolder other;
    state.JobListFile = "last.lst";
    selectOnPC({"A.JBI"});
    const int shows = window.pc.shows;
    saveAs(other.path("weld.lst"));
    EXPECT_EQ(other.read("weld.lst"), "A.JBI\r\n");
    EXPECT_EQ(window.pc.shows, shows);
    EXPECT_EQ(state.JobListFile, "last.lst");
}

TEST_F(SelectionListTest, JapaneseNamesAreReadBackAsTheyAre) {
    for (const char* name : {"溶接", "ﾃｽﾄ", "表"})
        robotJob(name);
    selectOnController({"溶接.JBI", "ﾃｽﾄ.JBI", "表.JBI"});
    state.Active = ActiveSide::Controller;
    saveAs(pc.path("weld.lst"));
    EXPECT_THAT(readBack("weld.lst"),
                testing::UnorderedElementsAre("溶接.JBI", "ﾃｽﾄ.JBI", "表.JBI"));
    EXPECT_EQ(decodeText(pc.read("weld.lst")).encoding, TextEncoding::CodePage);
}

struct NameRow : NamedRow {
    const char* job;
};

class UnlistableName : public SelectionListTest, public testing::WithParamInterface<NameRow> {};

TEST_P(UnlistableName, IsToldAndNothingIsWritten) {
    robot().put(GetParam().job, job("NAME"));
    showPanes();
    window.controller.click(window.controller.names);
    ASSERT_EQ(window.controller.selected.size(), 3U);
    state.Active = ActiveSide::Controller;
    saveAs(pc.path("weld.lst"));
    EXPECT_FALSE(pc.has("weld.lst"));
    EXPECT_THAT(windows.opened, IsEmpty());
    ASSERT_EQ(boxes.shown.size(), 1U);
    EXPECT_THAT(boxes.texts()[0], StartsWith("not listable:\n["));
    EXPECT_THAT(boxes.texts()[0], testing::Not(HasSubstr("X.JBI")));
}

// As the controller's directory is read: bytes that are no text of the code page are shown so.
INSTANTIATE_TEST_SUITE_P(, UnlistableName,
                         testing::Values(NameRow{{"OutsideTheCodePage"}, "BAD\xEF\xBF\xBD.JBI"},
                                         NameRow{{"WithALineEnd"}, "TWO\nLINES.JBI"},
                                         NameRow{{"OfAnotherFolder"}, "../UP.JBI"}),
                         rowName);

// A line of a list is read without its outer blanks.
TEST_F(SelectionListTest, ANameWithALeadingBlankIsToldAndNothingIsWritten) {
    pcJob(" BLANK");
    selectOnPC({" BLANK.JBI", "A.JBI"});
    saveAs(pc.path("weld.lst"));
    EXPECT_FALSE(pc.has("weld.lst"));
    EXPECT_THAT(boxes.texts(), ElementsAre("not listable:\n[ BLANK.JBI]"));
}

TEST_F(SelectionListTest, IsOfferedOnlyForAJobInTheActivePane) {
    showPanes();
    window.pc.click({"D.DAT", "SUB.JBI"});
    window.controller.click({"X.JBI"});
    EXPECT_FALSE(isOffered());
    window.pc.click({"A.JBI", "D.DAT"});
    window.pc.focused = window.pc.selected.back();
    EXPECT_TRUE(isOffered()) << "the row with the focus is not the only one";
    window.pc.click({});
    EXPECT_FALSE(isOffered());
    state.Active = ActiveSide::Controller;
    EXPECT_TRUE(isOffered());
}

/// Its jobs would be passed over by every transfer of the folder.
TEST_F(SelectionListTest, TheListOfThePCsOwnJobsIsNotWritten) {
    selectOnPC({"A.JBI"});
    saveAs(pc.path("localjob"));
    EXPECT_FALSE(pc.has("localjob.lst"));
    EXPECT_EQ(boxes.texts().size(), 1U);
    EXPECT_EQ(state.JobListFile, "");
}

} // namespace
} // namespace vantrel::tests
