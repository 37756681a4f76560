#include "app/lists/ListTransferCommands.h"

#include "app/lists/ListFileDraft.h"
#include "files/CommandFixture.h"
#include "files/ControllerPlace.h"
#include "support/NamedRow.h"

#include <array>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include <gmock/gmock.h>

namespace vantrel::tests {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::StartsWith;

/// The operator at the list-file dialog, who names a file or cancels.
class ScriptedListFile : public ListFileWindow {
  public:
    ScriptedListFile(ApplicationState& state, Snappy& session, MessageBoxes& boxes,
                     const MessageTable& messages)
        : state_(state), session_(session), boxes_(boxes), messages_(messages) {}

    bool readList(std::string_view mode) override {
        modes.emplace_back(mode);
        ListFileDraft draft(state_, session_, boxes_, messages_, mode);
        if (whileOpen)
            whileOpen();
        draft.setName(name);
        draft.confirm();
        return draft.result() == list_file_result::listRead;
    }

    std::optional<std::string> askNewList(const std::string&, const std::string&) override {
        return std::nullopt;
    }

    std::string name; ///< empty when the operator cancels
    std::vector<std::string> modes;
    std::function<void()> whileOpen;

  private:
    ApplicationState& state_;
    Snappy& session_;
    MessageBoxes& boxes_;
    const MessageTable& messages_;
};

class ListTransferCommandsTest : public CommandFixture {
  protected:
    static constexpr auto saveJobs = &ListTransferCommands::saveJobs;
    static constexpr auto loadJobs = &ListTransferCommands::loadJobs;
    static constexpr auto saveVariables = &ListTransferCommands::saveVariables;
    static constexpr auto loadVariables = &ListTransferCommands::loadVariables;

    void TearDown() override { expectLeftInOrder(); }

    void list(const std::string& lines) {
        listFile.name = "LIST.LST";
        pc.write("LIST.LST", lines);
        showPanes();
    }
    void run(void (ListTransferCommands::*command)()) {
        ListTransferCommands lists(services, listFile);
        (lists.*command)();
    }
    void byte(std::int16_t number, double value) {
        robot().variables[{0, number}] = std::array<double, 10>{value};
    }

    ScriptedListFile listFile{state, session, boxes, messages};
    TransferServices services{state,    session,  panes, window, table,
                              messages, progress, talk,  results};
};

using Entry = void (ListTransferCommands::*)();

struct EntryRow : NamedRow {
    Entry entry;
    const char* mode;
    const char* title;
    const char* lines;
};

const EntryRow entries[] = {
    {{"SaveJobs"}, &ListTransferCommands::saveJobs, "0", "Save jobs", "A.JBI\r\n"},
    {{"LoadJobs"}, &ListTransferCommands::loadJobs, "1", "Load jobs", "B.JBI\r\n"},
    {{"SaveVariables"}, &ListTransferCommands::saveVariables, "2", "Save variables", "B001=7\r\n"},
    {{"LoadVariables"}, &ListTransferCommands::loadVariables, "3", "Load variables", "B001=5\r\n"}};

class EachListTransfer : public ListTransferCommandsTest,
                         public testing::WithParamInterface<EntryRow> {
  protected:
    EachListTransfer() {
        robotJob("A");
        pcJob("B");
        byte(1, 7);
    }
};

INSTANTIATE_TEST_SUITE_P(Entries, EachListTransfer, testing::ValuesIn(entries), rowName);

TEST_P(EachListTransfer, AsksInItsModeBeforeTheWindowIsLocked) {
    list(GetParam().lines);
    int lockDepth = -1;
    listFile.whileOpen = [&] { lockDepth = window.lockDepth; };
    run(GetParam().entry);
    EXPECT_THAT(listFile.modes, ElementsAre(GetParam().mode));
    EXPECT_EQ(lockDepth, 0);
    EXPECT_THAT(boxes.texts(), IsEmpty());
}

TEST_P(EachListTransfer, AListThatHoldsNothingIsTold) {
    for (const std::string lines : {"", "\r\n  \r\n\r\n"}) {
        boxes.shown.clear();
        list(lines);
        run(GetParam().entry);
        EXPECT_THAT(boxes.texts(), ElementsAre(messages.getMessage(64) + "[LIST.LST]"));
        EXPECT_EQ(pc.read("LIST.LST"), lines);
    }
    EXPECT_THAT(library.trace(), IsEmpty());
    EXPECT_EQ(window.locks, 0);
}

TEST_P(EachListTransfer, ACancelledDialogTransfersNothing) {
    list(GetParam().lines);
    listFile.name.clear();
    run(GetParam().entry);
    EXPECT_THAT(library.trace(), IsEmpty());
    EXPECT_EQ(window.locks, 0);
    EXPECT_EQ(pc.read("LIST.LST"), GetParam().lines);
    EXPECT_THAT(progressView.pictures, IsEmpty());
}

TEST_P(EachListTransfer, AListThatWasNotReadTransfersNothing) {
    list(GetParam().lines);
    listFile.name = "MISSING.LST";
    run(GetParam().entry);
    EXPECT_THAT(library.trace(), IsEmpty());
    EXPECT_FALSE(pc.has("MISSING.LST"));
}

TEST_P(EachListTransfer, LocksTheWindowAndShowsItsProgress) {
    list(GetParam().lines);
    std::string title;
    library.onCall = [&](const std::string&) {
        EXPECT_EQ(window.lockDepth, 1);
        if (title.empty())
            title = session.MonitorTitle;
    };
    run(GetParam().entry);
    EXPECT_EQ(title, GetParam().title);
    EXPECT_EQ(window.locks, 1);
    ASSERT_FALSE(progressView.pictures.empty());
    EXPECT_EQ(progressView.pictures.front().title, GetParam().title);
    EXPECT_TRUE(progressView.pictures.front().cancelButton);
    EXPECT_EQ(window.pc.focuses, 1) << "the active list had the focus";
}

TEST_P(EachListTransfer, AFailureIsReportedInFullWithTheEntryInALineOfItsOwn) {
    list(GetParam().lines);
    // The second connection of a load is that of its first job; the others connect for it at once.
    library.disturb({"BscConnect", GetParam().entry == loadJobs ? 2 : 1, false, false, 2000});
    run(GetParam().entry);
    std::string entry = GetParam().lines;
    entry.resize(entry.size() - 2);
    EXPECT_THAT(boxes.texts(), ElementsAre("Transfer failed: BscConnect ( 2000 )line broken at"
                                           " ( 0 )\n[" +
                                           entry + "]"));
    EXPECT_EQ(boxes.shown.front().icon, BoxIcon::Exclamation);
}

TEST_P(EachListTransfer, AnUnsetAddressIsToldOnceByTheSession) {
    list(GetParam().lines);
    state.TransMode = TransferMode::HispeedLink;
    session.IPaddress = "0.0.0.0";
    run(GetParam().entry);
    EXPECT_THAT(boxes.texts(), ElementsAre("address unset"));
    linksLeftOpen = library.openLinks();
}

TEST_P(EachListTransfer, ACancelledTransferIsNoFailure) {
    list(GetParam().lines);
    bool pressed = false;
    library.onCall = [this, &pressed](const std::string& function) {
        const bool isTransfer = function != "BscFindFirst" && function != "BscOpen";
        if (isTransfer && progress.isVisible() && !std::exchange(pressed, true))
            progress.pressCancel();
    };
    run(GetParam().entry);
    EXPECT_EQ(session.ErrorCode(), session_code::cancelled);
    EXPECT_THAT(boxes.texts(), IsEmpty());
    EXPECT_EQ(pc.read("LIST.LST"), GetParam().lines) << "a list that was left is not written";
}

TEST_F(ListTransferCommandsTest, SavedJobsNeedNotBeOnThePCAndAreShownThere) {
    robotJob("A");
    robotJob("B", "2");
    list("A.JBI\r\nB.JBI\r\n");
    run(saveJobs);
    EXPECT_EQ(pc.read("A.JBI"), job("A"));
    EXPECT_EQ(pc.read("B.JBI"), job("B", "2"));
    EXPECT_THAT(window.pc.names, ElementsAre("A.JBI", "B.JBI", "LIST.LST"));
    EXPECT_EQ(window.pcStatus, "PC: 3 items");
    EXPECT_THAT(boxes.texts(), IsEmpty());
    EXPECT_EQ(library.callCount("BscFindFirst"), 0) << "the controller's side did not change";
}

TEST_F(ListTransferCommandsTest, LoadedJobsAreShownOnTheController) {
    pcJob("A");
    robotJob("OLD");
    list("A.JBI\r\n");
    window.controller.click({"OLD.JBI"});
    run(loadJobs);
    EXPECT_EQ(robot().bytes("A.JBI"), job("A"));
    EXPECT_THAT(window.controller.names, ElementsAre("A.JBI", "OLD.JBI"));
    EXPECT_THAT(window.controller.selectedNames(), ElementsAre("OLD.JBI"));
    EXPECT_EQ(window.controllerStatus, "Controller: 2 items");
}

TEST_F(ListTransferCommandsTest, AJobThatIsThereIsAskedForUnderTheCommandsTitle) {
    pcJob("A", "2");
    robotJob("A");
    list("A.JBI\r\n");
    question.answers = {Answer::Yes};
    run(loadJobs);
    EXPECT_EQ(robot().bytes("A.JBI"), job("A", "2"));
    EXPECT_THAT(question.titles, ElementsAre("Load jobs"));
}

TEST_F(ListTransferCommandsTest, CancelAtTheQuestionIsNoFailureAndThePaneIsReadAnew) {
    pcJob("A");
    pcJob("B", "2");
    robotJob("B");
    list("A.JBI\r\nB.JBI\r\n");
    question.answers = {Answer::Cancel};
    run(loadJobs);
    EXPECT_EQ(robot().bytes("B.JBI"), job("B"));
    EXPECT_THAT(window.controller.names, ElementsAre("A.JBI", "B.JBI"));
    EXPECT_THAT(boxes.texts(), IsEmpty());
}

TEST_F(ListTransferCommandsTest, CancelWhileTheDirectoryIsReadCostsNoOtherReading) {
    pcJob("A");
    robotJob("B");
    list("A.JBI\r\n");
    library.onCall = [this](const std::string& function) {
        if (function == "BscFindNext")
            progress.pressCancel();
    };
    run(loadJobs);
    EXPECT_EQ(library.callCount("BscFindFirst"), 1);
    EXPECT_FALSE(robot().has("A.JBI"));
    EXPECT_THAT(window.controller.names, ElementsAre("B.JBI"));
    EXPECT_THAT(boxes.texts(), IsEmpty());
}

TEST_F(ListTransferCommandsTest, EntriesOfARefusedKindAreNamedAndLeftOut) {
    robot().put("A.CND", "values");
    robotJob("B");
    list("A.TXT\r\nA\r\nB.JBI\r\n");
    run(saveJobs);
    EXPECT_THAT(boxes.texts(), ElementsAre("[A.TXT] refused", "[A] refused"));
    EXPECT_EQ(session.JobListCount(), 1);
    EXPECT_TRUE(pc.has("B.JBI"));
}

TEST_F(ListTransferCommandsTest, ThePermissionIsThatOfTheDirection) {
    pc.write("A.CND", "values");
    robot();
    list("A.CND\r\n");
    run(loadJobs);
    EXPECT_THAT(boxes.texts(), ElementsAre("[A.CND] refused"));
    EXPECT_THAT(library.trace(), IsEmpty());
    boxes.shown.clear();
    robot().put("A.CND", "newer");
    question.answers = {Answer::Yes};
    run(saveJobs);
    EXPECT_THAT(boxes.texts(), IsEmpty());
    EXPECT_EQ(pc.read("A.CND"), "newer");
}

TEST_F(ListTransferCommandsTest, AListOfRefusedEntriesLeavesTheSessionAlone) {
    robot();
    list("A.TXT\r\n../B.JBI\r\n");
    run(saveJobs);
    EXPECT_EQ(boxes.shown.size(), 2U);
    EXPECT_THAT(library.trace(), IsEmpty());
    EXPECT_EQ(window.locks, 1);
}

TEST_F(ListTransferCommandsTest, AFailedJobIsNamedAndWhatArrivedBeforeItIsShown) {
    robotJob("A");
    list("A.JBI\r\nGONE.JBI\r\n");
    run(saveJobs);
    EXPECT_THAT(boxes.texts(),
                ElementsAre("Transfer failed: BscUpLoad ( 1200 )not on the controller at ( 1 )\n"
                            "[GONE.JBI]"));
    EXPECT_THAT(window.pc.names, ElementsAre("A.JBI", "LIST.LST"));
}

TEST_F(ListTransferCommandsTest, AFailedDirectoryNamesNoEntry) {
    pcJob("A");
    robotJob("OLD");
    list("A.JBI\r\n");
    library.disturb({"BscFindFirst", 1, false, false, 2000});
    run(loadJobs);
    EXPECT_EQ(boxes.texts().front(), "Transfer failed: BscFind ( 2000 )line broken at ( 0 )");
}

TEST_F(ListTransferCommandsTest, JobsOfThePCAloneArePassedOverAndCounted) {
    pc.write("LocalJob.lst", "A\r\n");
    pcJob("A");
    pcJob("B");
    robot();
    list("A.JBI\r\nB.JBI\r\n");
    run(loadJobs);
    EXPECT_FALSE(robot().has("A.JBI"));
    EXPECT_TRUE(robot().has("B.JBI"));
    EXPECT_THAT(boxes.texts(), ElementsAre("skipped: 1"));
}

TEST_F(ListTransferCommandsTest, SavedVariablesAreWrittenToTheirList) {
    byte(1, 7);
    list("B001=5\r\n");
    boxes.answers = {true};
    run(saveVariables);
    EXPECT_EQ(pc.read("LIST.LST"), "B001=7\r\n");
    EXPECT_GT(window.pc.shows, 1);
    EXPECT_THAT(boxes.texts(), ElementsAre("replace values? [LIST.LST]\n" + fromController(state)));
}

TEST_F(ListTransferCommandsTest, ValuesOfAListAreKeptWhereTheOperatorSaysSo) {
    byte(1, 7);
    byte(2, 9);
    list("B001=7\r\nB002=6\r\n");
    boxes.answers = {false};
    run(saveVariables);
    EXPECT_EQ(pc.read("LIST.LST"), "B001=7\r\nB002=6\r\n");
    EXPECT_THAT(boxes.texts(), ElementsAre("replace values? [LIST.LST]\n" + fromController(state)));
}

TEST_F(ListTransferCommandsTest, NothingIsAskedWhereNoValueIsLost) {
    byte(1, 7);
    byte(2, 9);
    list("b1=7\r\nB002=\r\nB002= \r\n");
    run(saveVariables);
    EXPECT_EQ(pc.read("LIST.LST"), "B001=7\r\nB002=9\r\nB002=9\r\n");
    EXPECT_THAT(boxes.texts(), IsEmpty());
}

TEST_F(ListTransferCommandsTest, AFailedVariableLeavesTheListFileAlone) {
    byte(1, 7);
    list("B001=5\r\nB002=6\r\n");
    library.disturb({"BscGetVarData", 2, false, false, 2000});
    run(saveVariables);
    EXPECT_EQ(pc.read("LIST.LST"), "B001=5\r\nB002=6\r\n");
    EXPECT_THAT(boxes.texts(), ElementsAre("Transfer failed: BscGetVarData ( 2000 )line broken at"
                                           " ( 1 )\n[B002=6]"));
}

TEST_F(ListTransferCommandsTest, ALineThatIsNoEntryIsShown) {
    robot();
    list("B001=5\r\nnonsense\r\n");
    run(loadVariables);
    EXPECT_EQ((robot().variables[{0, 1}][0]), 5);
    EXPECT_THAT(boxes.texts(),
                ElementsAre("Transfer failed:  ( 22 )no entry at ( 1 )\n[nonsense]"));
}

TEST_F(ListTransferCommandsTest, AListFileThatCannotBeWrittenIsNamedWithTheReason) {
    byte(1, 7);
    list("B001=5\r\n");
    listFile.whileOpen = [this] {
        library.onCall = [this](const std::string&) {
            std::filesystem::remove(pc.path("LIST.LST"));
            pc.makeFolder("LIST.LST");
        };
    };
    boxes.answers = {true};
    run(saveVariables);
    ASSERT_EQ(boxes.texts().size(), 2U);
    EXPECT_THAT(boxes.texts().back(), StartsWith("Transfer failed:  ( 6 )list not opened at ( 0 )\n"
                                                 "list not written: [LIST.LST] "));
    EXPECT_FALSE(boxes.texts().back().ends_with("] ")) << boxes.texts().back();
}

TEST_F(ListTransferCommandsTest, TheActiveListGetsTheFocusBack) {
    pcJob("A");
    robot();
    list("A.JBI\r\n");
    state.Active = ActiveSide::Controller;
    run(loadJobs);
    EXPECT_EQ(window.controller.focuses, 1);
    EXPECT_EQ(window.pc.focuses, 0);
}

} // namespace
} // namespace vantrel::tests
