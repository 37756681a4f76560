#include "app/folders/PCFileCommands.h"

#include "MainCommandsFixture.h"
#include "base/PathRules.h"
#include "link/FetchMark.h"
#include "link/GroupMark.h"
#include "platform/Files.h"

#include <gmock/gmock.h>

namespace vantrel::tests {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using testing::StartsWith;

/// Between the check of a name and its use somebody else takes it.
class FasterPrompts : public PromptWindow {
  public:
    /// `appears` is the file that comes meanwhile, if not the one of that name.
    FasterPrompts(const TemporaryFolder& folder, std::string name, std::string appears = {})
        : folder_(folder), name_(std::move(name)),
          appears_(appears.empty() ? name_ : std::move(appears)) {}

    std::optional<std::string> ask(const TextPrompt&) override {
        folder_.write(appears_, "of somebody else");
        return name_;
    }

  private:
    const TemporaryFolder& folder_;
    std::string name_, appears_;
};

class PCFileCommandsTest : public MainCommandsTest {
  protected:
    PCFileCommandsTest() { state.Active = ActiveSide::Controller; } // the pane has to be turned to

    void show(const std::vector<std::string>& names) {
        for (const std::string& name : names)
            pc.write(name, job(name.substr(0, name.find('.'))));
        showPanes();
        main.updateStates();
    }
    static std::string join(const std::string& folder, const std::string& name) {
        return PathRules().join(folder, name);
    }
};

TEST_F(PCFileCommandsTest, ANewFolderIsMadeShownAndSelected) {
    show({"A.JBI"});
    prompts.answer = "line 2";
    files.newFolder();
    EXPECT_TRUE(pc.has("line 2"));
    EXPECT_THAT(window.pc.selectedNames(), ElementsAre("line 2"));
    EXPECT_EQ(state.Active, ActiveSide::PC);
    EXPECT_THAT(boxes.texts(), IsEmpty());
    EXPECT_EQ(prompts.asked.front().text, "");
}

TEST_F(PCFileCommandsTest, WhoeverLeavesThePromptChangesNothing) {
    show({"A.JBI"});
    window.pc.click({"A.JBI"});
    files.newFolder();
    files.rename();
    files.goToFolder();
    EXPECT_THAT(prompts.asked, SizeIs(3));
    EXPECT_THAT(window.pc.names, ElementsAre("A.JBI"));
    EXPECT_EQ(state.PCPath, pc.path());
    EXPECT_THAT(boxes.texts(), IsEmpty());
}

TEST_F(PCFileCommandsTest, ANameIsCheckedWhileItIsTyped) {
    show({"A.JBI"});
    window.pc.click({"A.JBI"});
    for (const char* name : {"a/b", "a\\b", "..", "a:b", "CON", "a.", "a*", "a\nb"}) {
        prompts.answer = name;
        files.newFolder();
        EXPECT_EQ(prompts.problems.back(), "unusable") << name;
        prompts.answer = name;
        files.rename();
        EXPECT_EQ(prompts.problems.back(), "unusable") << name;
    }
    prompts.answer = "A.JBI";
    files.newFolder();
    EXPECT_EQ(prompts.problems.back(), "taken");
    EXPECT_THAT(window.pc.names, ElementsAre("A.JBI"));
}

TEST_F(PCFileCommandsTest, AFolderThatCannotBeMadeIsToldWithTheReason) {
    show({"A.JBI"});
    FasterPrompts faster(pc, "new");
    PCFileCommands(services, main, faster, folderSource).newFolder();
    EXPECT_THAT(boxes.texts(), ElementsAre(StartsWith("[new] not made\n")));
    EXPECT_EQ(pc.read("new"), "of somebody else");
}

TEST_F(PCFileCommandsTest, ARenamedFileKeepsItsBytesAndIsSelected) {
    show({"A.JBI", "B.JBI"});
    window.pc.click({"B.JBI"});
    prompts.answer = "C.JBI";
    files.rename();
    EXPECT_EQ(prompts.asked.front().label, "new name of B.JBI:");
    EXPECT_EQ(prompts.asked.front().text, "B.JBI");
    EXPECT_EQ(prompts.asked.front().selected, 1U) << "the ending stays";
    EXPECT_THAT(window.pc.names, ElementsAre("A.JBI", "C.JBI"));
    EXPECT_THAT(window.pc.selectedNames(), ElementsAre("C.JBI"));
    EXPECT_EQ(pc.read("C.JBI"), job("B"));
    EXPECT_EQ(state.Active, ActiveSide::PC);
}

TEST_F(PCFileCommandsTest, ARenamingGoesOverNothing) {
    show({"A.JBI", "B.JBI"});
    window.pc.click({"B.JBI"});
    prompts.answer = "A.JBI";
    files.rename();
    EXPECT_EQ(prompts.problems.back(), "taken");
    EXPECT_EQ(pc.read("A.JBI"), job("A"));
    EXPECT_EQ(pc.read("B.JBI"), job("B"));
}

TEST_F(PCFileCommandsTest, AFileThatCameMeanwhileStaysAndTheFailureIsTold) {
    show({"B.JBI"});
    window.pc.click({"B.JBI"});
    FasterPrompts faster(pc, "A.JBI");
    PCFileCommands(services, main, faster, folderSource).rename();
    EXPECT_THAT(boxes.texts(), ElementsAre(StartsWith("[B.JBI] not renamed\n")));
    EXPECT_EQ(pc.read("A.JBI"), "of somebody else");
    EXPECT_EQ(pc.read("B.JBI"), job("B"));
}

TEST_F(PCFileCommandsTest, LetterCaseAloneCanBeChanged) {
    show({"weld.jbi"});
    window.pc.click({"weld.jbi"});
    prompts.answer = "WELD.JBI";
    files.rename();
    EXPECT_THAT(boxes.texts(), IsEmpty());
    EXPECT_EQ(pc.read("WELD.JBI"), job("weld"));
    // Where letter case tells no names apart the old spelling may stay.
    if (comparedName("a") != comparedName("A")) {
        EXPECT_THAT(window.pc.names, ElementsAre("WELD.JBI"));
    }
}

TEST_F(PCFileCommandsTest, OfAFolderTheWholeNameIsReplacedByTyping) {
    pc.makeFolder("line 1.old");
    showPanes();
    window.pc.click({"line 1.old"});
    prompts.answer = "line 2";
    files.rename();
    EXPECT_EQ(prompts.asked.front().selected, std::string("line 1.old").size());
    EXPECT_TRUE(pc.has("line 2"));
}

TEST_F(PCFileCommandsTest, WithoutASelectionThereIsNothingToRename) {
    show({});
    files.rename();
    EXPECT_THAT(prompts.asked, IsEmpty());
}

TEST_F(PCFileCommandsTest, AFolderIsOpenedByItsTypedPath) {
    const std::string inner = pc.makeFolder("inner");
    pc.write("inner/X.JBI", job("X"));
    show({"A.JBI"});
    prompts.answer = join(inner, "");
    files.goToFolder();
    EXPECT_EQ(state.PCPath, inner) << "without the separator at its end";
    EXPECT_THAT(window.pc.names, ElementsAre("X.JBI"));
    EXPECT_EQ(view.folder, inner);
    EXPECT_EQ(state.Active, ActiveSide::PC);
    EXPECT_EQ(prompts.asked.front().text, pc.path());
    EXPECT_EQ(prompts.asked.front().selected, pc.path().size());
}

TEST_F(PCFileCommandsTest, APathMayBeginInTheFolderShown) {
    const std::string inner = pc.makeFolder("inner");
    show({});
    prompts.answer = "inner";
    files.goToFolder();
    EXPECT_EQ(state.PCPath, inner);
}

TEST_F(PCFileCommandsTest, AFolderThatIsNotThereIsSaidWhileItIsTyped) {
    show({"A.JBI"});
    for (const char* name : {"none", "A.JBI"}) {
        prompts.answer = name;
        files.goToFolder();
        EXPECT_EQ(prompts.problems.back(), "no such folder") << name;
    }
    EXPECT_EQ(state.PCPath, pc.path());
}

TEST_F(PCFileCommandsTest, APathIsCompletedByTheFoldersThere) {
    for (const char* name : {"line1", "LINE2", "spare"})
        pc.makeFolder(name);
    show({"LIST.JBI"});
    files.goToFolder();
    const auto& completions = prompts.asked.back().completions;
    EXPECT_THAT(completions(join(pc.path(), "li")),
                ElementsAre(join(pc.path(), "line1"), join(pc.path(), "LINE2")));
    EXPECT_THAT(completions("sp"), ElementsAre("spare"));
    EXPECT_THAT(completions(join(pc.path("none"), "x")), IsEmpty());
}

TEST_F(PCFileCommandsTest, GoesBackAndForwardAmongTheFoldersShown) {
    const std::string inner = pc.makeFolder("inner");
    show({"A.JBI"});
    files.step(-1);
    EXPECT_EQ(state.PCPath, pc.path()) << "nothing was shown before";
    main.openPCFolder(inner, FolderTree::folderOnly(inner));
    main.updateStates();
    EXPECT_TRUE(shown("mnuBack").enabled);
    EXPECT_FALSE(shown("mnuForward").enabled);
    run("mnuBack");
    EXPECT_EQ(state.PCPath, pc.path());
    EXPECT_THAT(window.pc.names, ElementsAre("inner", "A.JBI"));
    EXPECT_FALSE(shown("mnuBack").enabled);
    EXPECT_TRUE(shown("mnuForward").enabled);
    run("mnuForward");
    EXPECT_EQ(state.PCPath, inner);
}

TEST_F(PCFileCommandsTest, AFolderThatIsGoneIsToldOnceAndLeftOut) {
    const std::string inner = pc.makeFolder("inner");
    const std::string second = pc.makeFolder("second");
    show({});
    main.openPCFolder(inner, FolderTree::folderOnly(inner));
    main.openPCFolder(second, FolderTree::folderOnly(second));
    ASSERT_TRUE(removeFolder(inner));
    files.step(-1);
    EXPECT_THAT(boxes.texts(), ElementsAre(" is not there: [" + inner + "]"));
    EXPECT_EQ(state.PCPath, second);
    files.step(-1);
    EXPECT_EQ(state.PCPath, pc.path());
    EXPECT_THAT(boxes.texts(), SizeIs(1));
    files.step(1);
    EXPECT_EQ(state.PCPath, second);
}

TEST_F(PCFileCommandsTest, DroppedFilesAreCopiedHereAndOnlyHere) {
    const TemporaryFolder elsewhere;
    const std::string dropped = elsewhere.write("N.JBI", job("N"));
    show({"A.JBI"});
    files.takeDropped({dropped});
    EXPECT_THAT(window.pc.names, ElementsAre("A.JBI", "N.JBI"));
    EXPECT_TRUE(elsewhere.has("N.JBI"));
    EXPECT_EQ(library.callCount("BscDownLoad"), 0);
    EXPECT_EQ(state.Active, ActiveSide::PC);
}

TEST_F(PCFileCommandsTest, ASingleDroppedFolderIsOpened) {
    const TemporaryFolder elsewhere;
    elsewhere.write("N.JBI", job("N"));
    show({"A.JBI"});
    files.takeDropped({elsewhere.path()});
    EXPECT_EQ(state.PCPath, elsewhere.path());
    EXPECT_THAT(window.pc.names, ElementsAre("N.JBI"));
}

TEST_F(PCFileCommandsTest, WhileAnOperationRunsNothingIsTaken) {
    const TemporaryFolder elsewhere;
    const std::string dropped = elsewhere.write("N.JBI", job("N"));
    show({"A.JBI"});
    state.Busy = true;
    files.takeDropped({dropped});
    files.takeDropped({elsewhere.path()});
    EXPECT_FALSE(pc.has("N.JBI"));
    EXPECT_EQ(state.PCPath, pc.path());
}

TEST_F(PCFileCommandsTest, TheSelectionIsGivenByItsPaths) {
    show({"A.JBI", "B.JBI", "C.JBI"});
    window.pc.click({"A.JBI", "C.JBI"});
    EXPECT_THAT(files.selectedPaths(), ElementsAre(pc.path("A.JBI"), pc.path("C.JBI")));
}

TEST_F(PCFileCommandsTest, WhatOthersHaveChangedIsShownWithTheSelectionKept) {
    show({"A.JBI", "C.JBI"});
    window.pc.click({"C.JBI"});
    pc.write("B.JBI", job("B"));
    files.lookForChanges(true);
    EXPECT_THAT(window.pc.names, ElementsAre("A.JBI", "B.JBI", "C.JBI"));
    EXPECT_THAT(window.pc.selectedNames(), ElementsAre("C.JBI"));
    EXPECT_EQ(window.pcStatus, "PC: 3 items");
}

/// Whoever presses Delete a moment later must not meet another file.
TEST_F(PCFileCommandsTest, ASelectedFileThatIsGoneLeavesNothingSelected) {
    show({"A.JBI", "C.JBI"});
    window.pc.click({"C.JBI"});
    ASSERT_TRUE(removeFile(pc.path("C.JBI")));
    files.lookForChanges(true);
    EXPECT_THAT(window.pc.names, ElementsAre("A.JBI"));
    EXPECT_THAT(window.pc.selected, IsEmpty());
    EXPECT_FALSE(view.input.selectedKind.has_value());
}

TEST_F(PCFileCommandsTest, WithoutAChangeTheListIsLeftAlone) {
    show({"A.JBI"});
    files.lookForChanges(true);
    files.lookForChanges(false);
    EXPECT_EQ(window.pc.updates, 0);
}

TEST_F(PCFileCommandsTest, AFileSavedInPlaceIsSeenByACloserLook) {
    show({"A.JBI"});
    pc.write("A.JBI", job("A", "longer than before"));
    files.lookForChanges(true);
    EXPECT_EQ(window.pc.updates, 1);
    EXPECT_EQ(panes.rows(ActiveSide::PC).sizeText(0),
              std::to_string(job("A", "longer than before").size()));
}

TEST_F(PCFileCommandsTest, NobodyLooksWhileAnOperationRunsOrTheProgramStarts) {
    show({"A.JBI"});
    pc.write("B.JBI", job("B"));
    state.Busy = true;
    files.lookForChanges(true);
    state.Busy = false;
    state.StartupDone = false;
    files.lookForChanges(true);
    EXPECT_EQ(window.pc.updates, 0);
}

TEST_F(PCFileCommandsTest, AFolderThatIsGoneStaysAsItWasShown) {
    const std::string inner = pc.makeFolder("inner");
    show({});
    main.openPCFolder(inner, FolderTree::folderOnly(inner));
    ASSERT_TRUE(removeFolder(inner));
    files.lookForChanges(true);
    EXPECT_EQ(state.PCPath, inner);
    EXPECT_THAT(boxes.texts(), IsEmpty());
}

TEST_F(PCFileCommandsTest, TheFilterHoldsForWhatComes) {
    show({"A.JBI"});
    main.filterNames(ActiveSide::PC, "a");
    pc.write("AB.JBI", job("AB"));
    pc.write("C.JBI", job("C"));
    files.lookForChanges(true);
    EXPECT_THAT(window.pc.names, ElementsAre("A.JBI", "AB.JBI"));
}

/// The question whether one robot's folder is sent to another goes by the folder's spelling.
TEST_F(PCFileCommandsTest, ATypedPathHasTheSpellingOfEveryOther) {
    const std::string inner = pc.makeFolder("robot2");
    pc.makeFolder("robot1");
    show({});
    for (const std::string typed : {"robot1/../robot2", "./robot2", "robot1//..//robot2/"}) {
        state.PCPath = pc.path();
        prompts.answer = typed;
        files.goToFolder();
        EXPECT_EQ(state.PCPath, inner) << typed;
    }
}

/// A drop, for instance, may open another folder below an open prompt.
TEST_F(PCFileCommandsTest, ACommandHoldsForTheFolderInWhichItWasGiven) {
    const std::string inner = pc.makeFolder("inner");
    pc.write("inner/A.JBI", job("OTHER"));
    show({"A.JBI"});
    window.pc.click({"A.JBI"});
    prompts.whileOpen = [&] { main.openPCFolder(inner, FolderTree::folderOnly(inner)); };
    prompts.answer = "B.JBI";
    files.rename();
    EXPECT_TRUE(pc.has("B.JBI"));
    EXPECT_TRUE(pc.has("inner/A.JBI"));
    state.PCPath = pc.path();
    prompts.answer = "new";
    files.newFolder();
    EXPECT_TRUE(pc.has("new"));
    EXPECT_FALSE(pc.has("inner/new"));
}

TEST_F(PCFileCommandsTest, ANewNameThatTheFileTypeHidesLeavesNothingSelected) {
    show({"A.JBI", "B.JBI"});
    window.pcFilter = 0; // jobs only
    panes.fill(ActiveSide::PC);
    window.pc.click({"B.JBI"});
    prompts.answer = "B.BAK";
    files.rename();
    EXPECT_TRUE(pc.has("B.BAK"));
    EXPECT_THAT(window.pc.names, ElementsAre("A.JBI"));
    EXPECT_THAT(window.pc.selected, IsEmpty()) << "nobody chose A";
}

TEST_F(PCFileCommandsTest, ANewNameThatTheQuickFilterHidesEndsIt) {
    show({"DOOR.JBI", "ROOF.JBI"});
    main.filterNames(ActiveSide::PC, "door");
    prompts.answer = "HOOD.JBI";
    window.pc.click({"DOOR.JBI"});
    files.rename();
    EXPECT_THAT(window.pc.selectedNames(), ElementsAre("HOOD.JBI"));
    EXPECT_THAT(view.closedQuickFilters, ElementsAre(ActiveSide::PC));
    EXPECT_THAT(window.pc.names, ElementsAre("HOOD.JBI", "ROOF.JBI"));
}

/// Its mark finds it by its name.
TEST_F(PCFileCommandsTest, AFileThatIsBeingFetchedKeepsItsName) {
    show({"A.JBI"});
    pc.write(FetchMark::fileNameFor("A.JBI"), "");
    window.pc.click({"A.JBI"});
    prompts.answer = "B.JBI";
    files.rename();
    EXPECT_TRUE(pc.has("A.JBI"));
    EXPECT_FALSE(pc.has("B.JBI"));
    EXPECT_THAT(boxes.texts(), ElementsAre("[A.JBI] not finished"));
    EXPECT_THAT(prompts.asked, IsEmpty());
}

TEST_F(PCFileCommandsTest, AFileOfAGroupThatIsBeingFetchedKeepsItsNameToo) {
    show({"A.JBI"});
    pc.write(GroupMark::fileName(), GroupMark{{{.name = "A.JBI"}, {.name = "C.JBI"}}}.format());
    window.pc.click({"A.JBI"});
    prompts.answer = "B.JBI";
    files.rename();
    EXPECT_TRUE(pc.has("A.JBI"));
    EXPECT_FALSE(pc.has("B.JBI"));
    EXPECT_THAT(boxes.texts(), ElementsAre("[A.JBI] not finished"));
}

TEST_F(PCFileCommandsTest, NoFileTakesTheNameOfOneThatIsStillToCome) {
    show({"A.JBI"});
    pc.write(FetchMark::fileNameFor("B.JBI"), "");
    window.pc.click({"A.JBI"});
    prompts.answer = "B.JBI";
    files.rename();
    EXPECT_EQ(prompts.asked.back().problem("B.JBI"), "[B.JBI] not finished");
    EXPECT_NE(prompts.asked.back().problem(FetchMark::fileNameFor("X")), "");
    EXPECT_EQ(prompts.asked.back().problem("C.JBI"), "");
    EXPECT_TRUE(pc.has("A.JBI"));
    EXPECT_FALSE(pc.has("B.JBI"));
}

TEST_F(PCFileCommandsTest, NorOfOneWhoseFetchBeginsWhileItIsTyped) {
    for (const char* fetched : {"A.JBI", "B.JBI"}) {
        show({"A.JBI"});
        window.pc.click({"A.JBI"});
        const std::string mark = FetchMark::fileNameFor(fetched);
        FasterPrompts faster(pc, "B.JBI", mark);
        PCFileCommands(services, main, faster, folderSource).rename();
        EXPECT_EQ(boxes.texts().back(), "[" + std::string(fetched) + "] not finished");
        EXPECT_TRUE(pc.has("A.JBI"));
        EXPECT_FALSE(pc.has("B.JBI"));
        EXPECT_TRUE(removeFile(pc.path(mark)));
    }
}

TEST_F(PCFileCommandsTest, NothingIsReadOnANetworkWhileSomebodyTypes) {
    networkFolder = pc.makeFolder("share");
    show({"A.JBI"});
    files.goToFolder();
    const TextPrompt prompt = prompts.asked.back();
    EXPECT_THAT(prompt.completions(join(networkFolder, "x")), IsEmpty());
    EXPECT_EQ(prompt.problem(join(networkFolder, "none")), "") << "found out when it is opened";
    EXPECT_EQ(prompt.problem(pc.path("none")), "no such folder");
}

TEST_F(PCFileCommandsTest, AFolderOnANetworkIsLeftAlone) {
    show({"A.JBI"});
    networkFolder = pc.path();
    pc.write("B.JBI", job("B"));
    files.lookForChanges(true);
    EXPECT_EQ(window.pc.updates, 0);
}

TEST_F(PCFileCommandsTest, OfVeryManyFilesOnlyTheNamesAreLookedAt) {
    show({"A.JBI"});
    for (std::int32_t more = 0; more < PCFileCommands::mostLookedAt; ++more)
        state.PCListing.append("X", 0, DateText());
    pc.write("A.JBI", job("A", "longer than before"));
    files.lookForChanges(true);
    EXPECT_EQ(window.pc.updates, 0);
    state.PCListing.Count = PCFileCommands::mostLookedAt;
    files.lookForChanges(true);
    EXPECT_EQ(window.pc.updates, 1);
}

TEST_F(PCFileCommandsTest, AQuickFilterThatDoesNotHideTheNewNameStays) {
    show({"DOOR.JBI", "ROOF.JBI"});
    window.pcFilter = 0; // jobs only
    main.filterNames(ActiveSide::PC, "door");
    window.pc.click({"DOOR.JBI"});
    prompts.answer = "DOOR.BAK";
    files.rename();
    EXPECT_THAT(view.closedQuickFilters, IsEmpty());
    EXPECT_THAT(window.pc.names, IsEmpty());
}

} // namespace
} // namespace vantrel::tests
