#include "CommandFixture.h"
#include "link/FetchFiles.h"
#include "link/FetchMark.h"
#include "platform/HeldFile.h"

#include <gmock/gmock.h>

namespace vantrel {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using testing::UnorderedElementsAre;

class PanesTest : public tests::CommandFixture {
  protected:
    PanesTest() {
        panes.fillFilterChoices();
        window.pcFilter = allFiles;
    }
    void showPC() {
        ASSERT_TRUE(panes.scanPC(pc.path()));
        ASSERT_TRUE(panes.fill(ActiveSide::PC));
    }
    void showController() {
        ASSERT_TRUE(panes.readController());
        ASSERT_TRUE(panes.fill(ActiveSide::Controller));
    }
};

TEST_F(PanesTest, AScanListsFilesWithSizesAndFoldersWithoutOne) {
    pc.write("A.JBI", "12345");
    pc.write("EMPTY.DAT", "");
    pc.makeFolder("OLD");
    ASSERT_TRUE(panes.scanPC(pc.path()));
    const FolderListing& listing = panes.listing(ActiveSide::PC);
    EXPECT_EQ(listing.Count, 3);
    EXPECT_THAT(listing.Names, UnorderedElementsAre("A.JBI", "EMPTY.DAT", "OLD"));
    for (std::size_t entry = 0; entry < 3; ++entry) {
        const std::string& name = listing.Names[entry];
        EXPECT_EQ(listing.Sizes[entry], name == "OLD" ? -1 : name == "A.JBI" ? 5 : 0) << name;
        EXPECT_EQ(listing.Dates[entry].view().size(), DateText::length) << name;
    }
}

TEST_F(PanesTest, AScanMakesTheFolderThePCFolder) {
    pc.write("SUB/A.JBI", "");
    const std::string folder = pc.path("SUB");
    ASSERT_TRUE(panes.scanPC(folder));
    EXPECT_EQ(state.PCPath, folder);
    EXPECT_EQ(state.PCListing.Path, folder);
    EXPECT_TRUE(panes.scanPC(folder + "/")) << "with a separator at its end too";
}

TEST_F(PanesTest, ALookAtAFolderSettlesWhatAnInterruptedTransferLeft) {
    pc.write("A.JBI", "half");
    pc.write(FetchMark::fileNameFor("A.JBI"), FetchMark{.name = "A.JBI"}.format());
    showPC();
    EXPECT_THAT(state.PCListing.Names, ElementsAre("A.JBI.partial-1"));
    EXPECT_EQ(pc.read("A.JBI.partial-1"), "half");
    ASSERT_EQ(boxes.shown.size(), 1u);
    EXPECT_TRUE(boxes.shown[0].text.starts_with("[A.JBI]"));
    showPC();
    EXPECT_EQ(boxes.shown.size(), 1u);
}

TEST_F(PanesTest, TheMarkOfATransferIsShownByNoFilter) {
    const auto held = HeldFile::make(pc.path(FetchMark::fileNameFor("A.JBI")));
    ASSERT_TRUE(held) << held.reason();
    for (window.pcFilter = 0; window.pcFilter <= allFiles; ++window.pcFilter) {
        showPC();
        EXPECT_EQ(panes.rows(ActiveSide::PC).size(), 0u);
    }
}

TEST_F(PanesTest, TheSessionWorksInTheFolderThatIsShown) {
    const std::string folder = pc.makeFolder("SUB");
    ASSERT_TRUE(panes.scanPC(folder));
    EXPECT_EQ(session.path, folder);
    EXPECT_FALSE(panes.scanPC(pc.path("MISSING")));
    EXPECT_EQ(session.path, folder) << "as long as another cannot be shown";
}

TEST_F(PanesTest, AFolderThatCannotBeOpenedChangesNothing) {
    pc.write("A.JBI", "");
    showPC();
    for (const std::string& folder : {pc.path("MISSING"), pc.path("A.JBI"), std::string()}) {
        EXPECT_FALSE(panes.scanPC(folder)) << folder;
        EXPECT_EQ(state.PCPath, pc.path());
        EXPECT_EQ(state.PCListing.Path, pc.path());
        EXPECT_THAT(state.PCListing.Names, ElementsAre("A.JBI"));
        EXPECT_EQ(panes.rows(ActiveSide::PC).size(), 1u);
    }
    EXPECT_EQ(window.busyDepth, 0);
}

TEST_F(PanesTest, AScanOfThePCFolderItselfSeesWhatIsNew) {
    showPC();
    pc.write("NEW.JBI", "");
    EXPECT_TRUE(panes.scanPC(state.PCPath));
    EXPECT_THAT(state.PCListing.Names, ElementsAre("NEW.JBI"));
    EXPECT_EQ(state.PCPath, pc.path());
}

TEST_F(PanesTest, AScanKeepsThePanesSortState) {
    state.PCListing.SortType = 2;
    state.PCListing.SortDir = 1;
    ASSERT_TRUE(panes.scanPC(pc.path()));
    EXPECT_EQ(state.PCListing.SortType, 2);
    EXPECT_EQ(state.PCListing.SortDir, 1);
}

TEST_F(PanesTest, NoOldRowStandsForANewEntry) {
    pc.write("OLD.JBI", "");
    showPC();
    pc.write("SUB/NEW.JBI", "");
    ASSERT_TRUE(panes.scanPC(pc.path("SUB")));
    EXPECT_THAT(panes.selectedNames(ActiveSide::PC), IsEmpty());
    panes.fill(ActiveSide::PC);
    EXPECT_THAT(panes.selectedNames(ActiveSide::PC), ElementsAre("NEW.JBI"));
}

TEST_F(PanesTest, TheControllersJobsAreFollowedByTheTablesFixedNames) {
    robotJob("B");
    robotJob("A");
    ASSERT_TRUE(panes.readController());
    const FolderListing& listing = panes.listing(ActiveSide::Controller);
    EXPECT_THAT(listing.Names, ElementsAre("B.JBI", "A.JBI", "FIXED.DAT"));
    EXPECT_THAT(listing.Sizes, ElementsAre(0, 0, 0));
    EXPECT_EQ(listing.Count, 3);
    EXPECT_EQ(listing.Dates, std::vector<DateText>(3));
    EXPECT_EQ(listing.Path, "");
}

TEST_F(PanesTest, AFixedNameOfAnotherModelIsNotOffered) {
    state.Controler = 0;
    robot();
    ASSERT_TRUE(panes.readController());
    EXPECT_THAT(state.CtrlListing.Names, IsEmpty());
}

TEST_F(PanesTest, AFixedNameIsOfferedEvenWhenTheDirectoryHasIt) {
    robot().put("FIXED.DAT", "x");
    ASSERT_TRUE(panes.readController());
    EXPECT_THAT(state.CtrlListing.Names, ElementsAre("FIXED.DAT", "FIXED.DAT"));
}

TEST_F(PanesTest, AFailedReadKeepsTheOldListAndAddsNoFixedNames) {
    robotJob("A");
    robotJob("B");
    showController();
    library.disturb({"BscFindNext", 2});
    EXPECT_FALSE(panes.readController());
    EXPECT_THAT(state.CtrlListing.Names, ElementsAre("A.JBI", "B.JBI", "FIXED.DAT"));
    EXPECT_EQ(state.CtrlListing.Count, 3);
    EXPECT_EQ(panes.rows(ActiveSide::Controller).size(), 2u) << "under the filter *.JBI";
    EXPECT_EQ(window.busyDepth, 0);
}

TEST_F(PanesTest, AReadShowsTheProgramsTitle) {
    robot();
    session.MonitorTitle = "old";
    ASSERT_TRUE(panes.readController());
    EXPECT_EQ(session.MonitorTitle, "Vantrel");
}

TEST_F(PanesTest, ReadingAndFillingShowTheBusyPointer) {
    ASSERT_TRUE(panes.scanPC(pc.path()));
    EXPECT_EQ(window.deepestBusy, 1);
    window.deepestBusy = 0;
    robot();
    ASSERT_TRUE(panes.readController());
    EXPECT_EQ(window.deepestBusy, 1);
    window.deepestBusy = 0;
    panes.fill(ActiveSide::PC);
    EXPECT_EQ(window.deepestBusy, 1);
    EXPECT_EQ(window.busyDepth, 0);
}

TEST_F(PanesTest, UntilTheyAreFilledAgainThereAreNoRowsOfAListThatHasChanged) {
    for (const char* name : {"A", "B"})
        robotJob(name);
    showController();
    ASSERT_EQ(panes.rows(ActiveSide::Controller).size(), 2u);
    panes.dropFromController({"A.JBI"});
    EXPECT_EQ(panes.rows(ActiveSide::Controller).size(), 0u);
    panes.fill(ActiveSide::Controller);
    EXPECT_EQ(panes.rows(ActiveSide::Controller).size(), 1u);
}

TEST_F(PanesTest, AnEmptiedControllerShowsNothing) {
    robotJob("A");
    showController();
    panes.emptyController();
    EXPECT_EQ(state.CtrlListing.Count, 0);
    panes.fill(ActiveSide::Controller);
    EXPECT_THAT(window.controller.names, IsEmpty());
    EXPECT_EQ(window.controllerStatus, "Controller: 0 items");
}

TEST_F(PanesTest, AnEmptyPaneIsToldFromOneThatWasNotRead) {
    const auto why = [this] {
        panes.fill(ActiveSide::Controller);
        return panes.rows(ActiveSide::Controller).emptiness();
    };
    EXPECT_EQ(why(), EmptyPane::NotRead);
    robotJob("A");
    showController();
    EXPECT_EQ(why(), std::nullopt);
    panes.dropFromController(state.CtrlListing.Names);
    EXPECT_EQ(why(), EmptyPane::NoFiles);
    panes.emptyController();
    EXPECT_EQ(why(), EmptyPane::NotRead);
}

TEST_F(PanesTest, AFolderWithoutFilesWasRead) {
    EXPECT_EQ(panes.rows(ActiveSide::PC).emptiness(), EmptyPane::NotRead);
    showPC();
    EXPECT_EQ(panes.rows(ActiveSide::PC).emptiness(), EmptyPane::NoFiles);
    EXPECT_FALSE(panes.scanPC(pc.path("missing")));
    EXPECT_EQ(panes.rows(ActiveSide::PC).emptiness(), EmptyPane::NoFiles);
    pc.write("A.DAT", "");
    window.pcFilter = 0;
    showPC();
    EXPECT_EQ(panes.rows(ActiveSide::PC).emptiness(), EmptyPane::AllFiltered);
}

TEST_F(PanesTest, AFillSelectsTheFirstRowAndWritesTheNumberOfRowsShown) {
    pc.write("B.JBI", "");
    pc.write("A.JBI", "");
    pc.write("A.DAT", "");
    window.pcFilter = 0;
    showPC();
    EXPECT_THAT(window.pc.names, ElementsAre("A.JBI", "B.JBI"));
    EXPECT_THAT(panes.selectedNames(ActiveSide::PC), ElementsAre("A.JBI"));
    EXPECT_EQ(window.pcStatus, "PC: 2 items");
}

TEST_F(PanesTest, EachPaneIsFilteredByItsOwnBoxAndRow) {
    pc.write("A.JBR", "");
    pc.write("A.DAT", "");
    robotJob("A");
    robot().put("A.CND", "");
    window.pcFilter = 1;
    window.controllerFilter = 1;
    showPC();
    showController();
    EXPECT_THAT(window.pc.names, ElementsAre("A.JBR"));
    EXPECT_THAT(window.controller.names, ElementsAre("A.CND", "FIXED.DAT"));
    EXPECT_EQ(window.controllerStatus, "Controller: 2 items");
}

TEST_F(PanesTest, AFolderOfFoldersIsShownUnderEveryFilter) {
    pc.makeFolder("ONE");
    pc.makeFolder("TWO");
    ASSERT_TRUE(panes.scanPC(pc.path()));
    for (int filter = 0; filter <= allFiles + 1; ++filter) {
        window.pcFilter = filter;
        panes.fill(ActiveSide::PC);
        EXPECT_THAT(window.pc.names, ElementsAre("ONE", "TWO")) << filter;
    }
}

TEST_F(PanesTest, AFileWithoutAPointIsNotAmongAllFiles) {
    pc.write("README", "");
    pc.write("README.TXT", "");
    showPC();
    EXPECT_THAT(window.pc.names, ElementsAre("README.TXT"));
}

TEST_F(PanesTest, AFillOfABrokenListingIsRefusedAndShowsNothing) {
    pc.write("A.JBI", "");
    showPC();
    state.PCListing.Count = 5;
    EXPECT_FALSE(panes.fill(ActiveSide::PC));
    EXPECT_THAT(window.pc.names, IsEmpty());
    EXPECT_EQ(window.pcStatus, "PC: 0 items");
}

TEST_F(PanesTest, SortingByNameOrDateYieldsOnceBySizeNever) {
    ASSERT_TRUE(panes.scanPC(pc.path()));
    const auto yieldsBy = [this](std::int16_t column) {
        state.PCListing.SortType = column;
        const int before = window.yields;
        panes.sort(ActiveSide::PC);
        return window.yields - before;
    };
    EXPECT_EQ(yieldsBy(0), 1);
    EXPECT_EQ(yieldsBy(1), 0);
    EXPECT_EQ(yieldsBy(2), 1);
    EXPECT_EQ(yieldsBy(9), 1);
}

TEST_F(PanesTest, ASortReordersTheRowsThatAreShown) {
    pc.write("A.JBI", "1");
    pc.write("B.JBI", "22");
    showPC();
    state.PCListing.SortDir = 1;
    panes.sort(ActiveSide::PC);
    EXPECT_THAT(window.pc.names, ElementsAre("B.JBI", "A.JBI"));
}

TEST_F(PanesTest, EachPaneHasItsOwnSortState) {
    pc.write("A.JBI", "");
    pc.write("B.JBI", "");
    robotJob("A");
    robotJob("B");
    state.CtrlListing.SortDir = 1;
    showPC();
    showController();
    EXPECT_THAT(window.pc.names, ElementsAre("A.JBI", "B.JBI"));
    EXPECT_THAT(window.controller.names, ElementsAre("B.JBI", "A.JBI"));
}

TEST_F(PanesTest, SortingEitherPaneLeavesTheOther) {
    for (const char* name : {"A", "B"}) {
        pc.write(std::string(name) + ".JBI", "");
        robotJob(name);
    }
    showPC();
    showController();
    const int pcShows = window.pc.shows;
    window.pc.click({"B.JBI"});
    state.CtrlListing.SortDir = 1;
    panes.sort(ActiveSide::Controller);
    EXPECT_THAT(window.controller.names, ElementsAre("B.JBI", "A.JBI"));
    EXPECT_THAT(window.pc.names, ElementsAre("A.JBI", "B.JBI"));
    EXPECT_THAT(window.pc.selectedNames(), ElementsAre("B.JBI"));
    EXPECT_EQ(window.pc.shows, pcShows);
    EXPECT_EQ(state.PCListing.SortDir, 0);

    const int controllerShows = window.controller.shows;
    state.CtrlListing.SortDir = 0;
    state.PCListing.SortDir = 1;
    panes.sort(ActiveSide::PC);
    EXPECT_THAT(window.pc.names, ElementsAre("B.JBI", "A.JBI"));
    EXPECT_THAT(window.controller.names, ElementsAre("B.JBI", "A.JBI"));
    EXPECT_EQ(window.controller.shows, controllerShows);
}

TEST_F(PanesTest, AnotherFolderOpenedDuringTheYieldIsWhatIsShownAtTheEnd) {
    pc.write("OUTER.JBI", "");
    pc.write("SUB/INNER.JBI", "");
    ASSERT_TRUE(panes.scanPC(pc.path()));
    window.onYield = [this] {
        window.onYield = nullptr;
        ASSERT_TRUE(panes.scanPC(pc.path("SUB")));
        panes.fill(ActiveSide::PC);
    };
    panes.fill(ActiveSide::PC);
    EXPECT_THAT(window.pc.names, ElementsAre("INNER.JBI"));
    EXPECT_EQ(window.pcStatus, "PC: 1 items");
}

TEST_F(PanesTest, ScanningDuringTheYieldWithoutAFillLeavesNoStaleRows) {
    pc.write("OUTER.JBI", "");
    pc.makeFolder("SUB");
    ASSERT_TRUE(panes.scanPC(pc.path()));
    window.onYield = [this] { ASSERT_TRUE(panes.scanPC(pc.path("SUB"))); };
    panes.fill(ActiveSide::PC);
    EXPECT_THAT(window.pc.names, IsEmpty());
}

TEST_F(PanesTest, TheFilterBoxesFollowTheModel) {
    state.Controler = 1;
    panes.fillFilterChoices();
    EXPECT_THAT(window.controllerChoices, ElementsAre("*.JBI", "*.DAT"));
    EXPECT_THAT(window.pcChoices,
                ElementsAre("*.JBI", "*.JBR", "*.DAT;*.CND;*.SYS", "*.PRM;*.LST", "*.*"));
    EXPECT_EQ(window.pcFilter, 0);
}

TEST_F(PanesTest, NamesThatAreStillThereAreSelected) {
    for (const char* name : {"A.JBI", "B.JBI", "C.JBI"})
        pc.write(name, "");
    showPC();
    panes.selectNames(ActiveSide::PC, {"C.JBI", "GONE.JBI", "B.JBI"});
    EXPECT_THAT(panes.selectedNames(ActiveSide::PC), ElementsAre("B.JBI", "C.JBI"));
}

TEST_F(PanesTest, WhenNoneIsLeftTheFillsOwnSelectionStays) {
    pc.write("A.JBI", "");
    showPC();
    panes.selectNames(ActiveSide::PC, {"GONE.JBI"});
    EXPECT_THAT(panes.selectedNames(ActiveSide::PC), ElementsAre("A.JBI"));
}

TEST_F(PanesTest, AQuickFilterLeavesOutFoldersAndFilesByTheirNames) {
    robot();
    pc.makeFolder("welding");
    pc.makeFolder("spare");
    for (const char* name : {"WELD1", "DOOR", "aweld"})
        pcJob(name);
    showPanes();
    panes.setNameFilter(ActiveSide::PC, "wELD");
    EXPECT_TRUE(panes.fill(ActiveSide::PC));
    EXPECT_THAT(window.pc.names, ElementsAre("welding", "aweld.JBI", "WELD1.JBI"));
    EXPECT_EQ(window.pcStatus, "PC: 3 items");
    panes.setNameFilter(ActiveSide::PC, "nowhere");
    panes.fill(ActiveSide::PC);
    EXPECT_EQ(panes.rows(ActiveSide::PC).emptiness(), EmptyPane::NothingFound);
    panes.setNameFilter(ActiveSide::PC, "");
    panes.fill(ActiveSide::PC);
    EXPECT_THAT(window.pc.names, SizeIs(5));
}

TEST_F(PanesTest, TheQuickFilterOfOnePaneIsNotThatOfTheOther) {
    robotJob("WELD");
    robotJob("DOOR");
    showPanes();
    panes.setNameFilter(ActiveSide::Controller, "weld");
    panes.fill(ActiveSide::Controller);
    panes.fill(ActiveSide::PC);
    EXPECT_THAT(window.controller.names, ElementsAre("WELD.JBI"));
    pcJob("DOOR");
    showPanes();
    EXPECT_THAT(window.pc.names, ElementsAre("DOOR.JBI"));
}

TEST_F(PanesTest, SeveralSelectedItemsAreCountedWithTheirBytes) {
    robot();
    pc.write("A.JBI", std::string(1000, 'a'));
    pc.write("B.JBI", std::string(34, 'b'));
    pc.makeFolder("inner");
    showPanes();
    EXPECT_EQ(window.pcStatus, "PC: 3 items");
    window.pc.click({"A.JBI", "B.JBI", "inner"});
    panes.showSelection();
    EXPECT_EQ(window.pcStatus, "PC: 3 items, 3 selected (1034)");
    window.pc.click({"A.JBI"});
    panes.showSelection();
    EXPECT_EQ(window.pcStatus, "PC: 3 items");
}

TEST_F(PanesTest, NamesThatComeAndGoAreNoticedByTheFoldersDate) {
    robot();
    pcJob("A");
    showPanes();
    EXPECT_FALSE(panes.hasPCChanged());
    EXPECT_FALSE(panes.rescanPC()) << "nothing to show";
    std::size_t files = 1;
    for (; files < 5000 && !panes.hasPCChanged(); ++files) // the system's clock may be coarse
        pcJob("B" + std::to_string(files));
    EXPECT_TRUE(panes.hasPCChanged());
    EXPECT_TRUE(panes.rescanPC());
    EXPECT_FALSE(panes.hasPCChanged());
    EXPECT_THAT(window.pc.names, SizeIs(files));
}

/// A yield would eat the letters that are typed meanwhile.
TEST_F(PanesTest, ANameFilterIsShownWithoutLettingEventsIn) {
    robot();
    for (const char* name : {"DOOR1", "DOOR2", "ROOF"})
        pcJob(name);
    showPanes();
    window.pc.click({"DOOR2", "DOOR2.JBI", "ROOF.JBI"});
    window.yields = 0;
    panes.filterNames(ActiveSide::PC, "door");
    EXPECT_EQ(window.yields, 0);
    EXPECT_THAT(window.pc.selectedNames(), ElementsAre("DOOR2.JBI"));
    EXPECT_EQ(window.pcStatus, "PC: 2 items");
    panes.filterNames(ActiveSide::PC, "roof");
    EXPECT_THAT(window.pc.selected, IsEmpty()) << "nobody chose what is the first now";
}

} // namespace
} // namespace vantrel
