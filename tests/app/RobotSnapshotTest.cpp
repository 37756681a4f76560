#include "app/history/RobotSnapshot.h"

#include "files/CommandFixture.h"
#include "platform/Files.h"

#include <gmock/gmock.h>

namespace vantrel {
namespace {

using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

class RobotSnapshotTest : public tests::CommandTest {
  protected:
    RobotSnapshotTest() {
        state.CurrentRobot.Name = "LINE1";
        auto opened = HistoryStore::openOrMake(place.path("history"));
        if (!opened)
            throw std::runtime_error(opened.reason());
        history.emplace(std::move(*opened));
    }

    Result<SnapshotResult> take() {
        showPanes();
        return RobotSnapshot(services, *history, "LINE1").take();
    }
    SnapshotResult taken() {
        auto result = take();
        EXPECT_TRUE(result) << (result ? "" : result.reason());
        return result ? std::move(*result) : SnapshotResult{};
    }
    std::string content(const std::string& name) {
        const auto read = history->read("LINE1", name);
        return read && *read ? **read : "none";
    }
    std::string message() { return history->log({})->front().message; }
    std::vector<std::string> unreadNames(const SnapshotResult& result) {
        std::vector<std::string> names;
        for (const auto& file : result.unread)
            names.push_back(file.name);
        return names;
    }

    tests::TemporaryFolder place;
    std::optional<HistoryStore> history;
    TransferServices services{state,    session,  panes, window, table,
                              messages, progress, talk,  results};
};

TEST_F(RobotSnapshotTest, RecordsEveryFileThatModelAndTableLetThrough) {
    robotJob("A", "1");
    robot().put("B.DAT", "data");
    robot().put("NOT IN THE TABLE.XYZ", "x");
    const auto result = taken();
    EXPECT_TRUE(result.isWhole());
    EXPECT_EQ(result.fetched, 2U);
    EXPECT_EQ(content("A.JBI"), job("A", "1"));
    EXPECT_EQ(content("B.DAT"), "data");
    EXPECT_THAT(*history->files("LINE1"), ElementsAre("A.JBI", "B.DAT"));
}

TEST_F(RobotSnapshotTest, TouchesNothingOfTheOperatorsAndAsksNothing) {
    robotJob("A", "robot's");
    pcJob("A", "operator's");
    const std::string before = session.path;
    std::string fetchedTo;
    progressView.onYield = [&](int) { fetchedTo = session.path; };
    taken();
    EXPECT_EQ(pc.read("A.JBI"), job("A", "operator's"));
    EXPECT_EQ(content("A.JBI"), job("A", "robot's"));
    EXPECT_EQ(session.path, before);
    EXPECT_NE(fetchedTo, "");
    EXPECT_FALSE(isFolder(fetchedTo));
    EXPECT_THAT(question.questions, IsEmpty());
    EXPECT_THAT(boxes.texts(), IsEmpty());
    EXPECT_EQ(robot().names(), std::vector<std::string>{"A.JBI"});
}

TEST_F(RobotSnapshotTest, TheEntrySaysWhatHasChangedAndWhere) {
    robotJob("SAME");
    robotJob("CHANGED", "1");
    robotJob("GONE");
    taken();
    EXPECT_EQ(message(), "LINE1: 3 new\n\n+ CHANGED.JBI\n+ GONE.JBI\n+ SAME.JBI\n\n"
                         "Robot: LINE1\nAddress: COM1\nMode: BSC\nModel: Cygna\nFiles: 3\n"
                         "Result: complete\n");
    robotJob("CHANGED", "2");
    robotJob("NEW");
    robot().erase("GONE.JBI");
    taken();
    EXPECT_THAT(message(), StartsWith("LINE1: 1 changed, 1 new, 1 gone\n\n"
                                      "~ CHANGED.JBI\n+ NEW.JBI\n- GONE.JBI\n\n"));
    EXPECT_THAT(history->log({})->front().by.mail, HasSubstr("@"));
}

TEST_F(RobotSnapshotTest, NothingNewIsNoEntry) {
    robotJob("A");
    taken();
    EXPECT_EQ(taken().recorded.end, Recorded::End::Unchanged);
    EXPECT_EQ(history->log({})->size(), 1U);
}

TEST_F(RobotSnapshotTest, AFileThatCannotBeFetchedKeepsItsLastVersionAndTheRestGoesOn) {
    for (const char* name : {"A", "B", "C"})
        robotJob(name, "1");
    taken();
    for (const char* name : {"A", "B", "C"})
        robotJob(name, "2");
    showPanes();
    library.disturb({.function = "BscUpLoad", .call = 2, .code = 2000});
    const auto result = RobotSnapshot(services, *history, "LINE1").take();
    ASSERT_TRUE(result);
    ASSERT_THAT(unreadNames(*result), ElementsAre("B.JBI"));
    EXPECT_THAT(result->unread[0].reason, HasSubstr("line broken"));
    EXPECT_EQ(content("A.JBI"), job("A", "2"));
    EXPECT_EQ(content("B.JBI"), job("B", "1"));
    EXPECT_EQ(content("C.JBI"), job("C", "2"));
    EXPECT_THAT(message(), AllOf(StartsWith("LINE1: 2 changed, 1 not read\n"),
                                 HasSubstr("\n? B.JBI\n"), HasSubstr("\nResult: partial\n")));
}

TEST_F(RobotSnapshotTest, AnEmptyAnswerIsNoNewVersion) {
    robotJob("A", "1");
    taken();
    robot().put("A.JBI", "");
    const auto result = taken();
    EXPECT_THAT(unreadNames(result), ElementsAre("A.JBI"));
    EXPECT_EQ(result.recorded.end, Recorded::End::Unchanged);
    EXPECT_EQ(content("A.JBI"), job("A", "1"));
}

TEST_F(RobotSnapshotTest, ALinkThatFailsIsNotTriedForEveryFile) {
    for (const char* name : {"A", "B", "C", "D"})
        robotJob(name);
    taken();
    showPanes();
    library.disturb({.function = "BscConnect", .call = 2, .code = 0});
    library.forgetCalls();
    const auto result = RobotSnapshot(services, *history, "LINE1").take();
    ASSERT_TRUE(result);
    EXPECT_THAT(unreadNames(*result), ElementsAre("B.JBI", "C.JBI", "D.JBI"));
    EXPECT_EQ(library.callCount("BscConnect"), 2);
    EXPECT_THAT(*history->files("LINE1"), ElementsAre("A.JBI", "B.JBI", "C.JBI", "D.JBI"));
}

TEST_F(RobotSnapshotTest, NamesThatDifferInLetterCaseOnlyAreNotTakenForEachOther) {
    robotJob("A");
    robot().put("Weld.JBI", "1");
    robot().put("WELD.JBI", "2");
    const auto result = taken();
    EXPECT_THAT(unreadNames(result), testing::UnorderedElementsAre("Weld.JBI", "WELD.JBI"));
    EXPECT_THAT(*history->files("LINE1"), ElementsAre("A.JBI"));
}

TEST_F(RobotSnapshotTest, ANameThatLeadsElsewhereIsUnread) {
    robot().put("A:B.JBI", "x");
    robotJob("B");
    const auto result = taken();
    EXPECT_THAT(unreadNames(result), ElementsAre("A:B.JBI"));
    EXPECT_THAT(*history->files("LINE1"), ElementsAre("B.JBI"));
    EXPECT_THAT(message(), HasSubstr("1 not read"));
}

TEST_F(RobotSnapshotTest, ADataFileThatOnlySomeRobotsHaveIsMissedWhereItWasSeen) {
    robotJob("A");
    showPanes();
    ASSERT_THAT(state.CtrlListing.Names, ElementsAre("A.JBI", "FIXED.DAT"));
    EXPECT_TRUE(taken().isWhole());
    robot().put("FIXED.DAT", "1");
    EXPECT_TRUE(taken().isWhole());
    robot().erase("FIXED.DAT");
    EXPECT_THAT(unreadNames(taken()), ElementsAre("FIXED.DAT"));
    EXPECT_EQ(content("FIXED.DAT"), "1");
}

TEST_F(RobotSnapshotTest, WhatIsNoLongerLetThroughIsNotGone) {
    robotJob("A");
    robot().put("B.DAT", "1");
    taken();
    program.write("FileTable.tbl", "*.JBI,1,1,1,1,1,1,1,1,1\n");
    TransferTable narrower;
    ASSERT_TRUE(narrower.load(program.path()));
    table = narrower;
    const auto result = taken();
    EXPECT_EQ(result.recorded.end, Recorded::End::Unchanged);
    EXPECT_TRUE(result.isWhole());
    EXPECT_EQ(content("B.DAT"), "1");
}

TEST_F(RobotSnapshotTest, TheEntrySaysWhichFilesTheHistoryCouldNotTake) {
    robotJob("A");
    const std::string longName = std::string(242, 'X') + ".JBI";
    robot().put(longName, "1");
    const auto result = taken();
    EXPECT_FALSE(result.isWhole());
    EXPECT_THAT(message(), AllOf(StartsWith("LINE1: 1 new, 1 not read\n"),
                                 HasSubstr("\n? " + longName), HasSubstr("Result: partial")));
}

TEST_F(RobotSnapshotTest, NothingIsRecordedAfterAPressOfCancel) {
    robotJob("A");
    robotJob("B");
    showPanes();
    pressCancelAtYield(2);
    const auto result = RobotSnapshot(services, *history, "LINE1").take();
    EXPECT_FALSE(result);
    EXPECT_TRUE(history->log({})->empty());
}

TEST_F(RobotSnapshotTest, TheSettingThatAsksForRelatedJobsChangesNothing) {
    robotJob("A");
    state.JBR = true;
    taken();
    EXPECT_THAT(*history->files("LINE1"), ElementsAre("A.JBI"));
}

} // namespace
} // namespace vantrel
