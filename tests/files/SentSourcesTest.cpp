#include "files/SentSources.h"

#include "CommandFixture.h"

#include <filesystem>

#include <gmock/gmock.h>

namespace vantrel {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

/// What becomes of the PC's files that a move has sent.
class SentSourcesTest : public tests::CommandTest {
  protected:
    /// Changes the file while the library sends it.
    void whileSent(const std::function<void()>& change) {
        library.onCall = [this, change](const std::string& function) {
            if (function == "BscDisConnect" && library.callCount("BscDownLoad") == 1)
                change();
        };
    }
};

TEST_F(SentSourcesTest, AFileThatDidNotArriveStaysAndIsNamed) {
    pcJob("A");
    pcJob("B");
    robot();
    selectOnPC({"A.JBI", "B.JBI"});
    library.disturb({"BscDownLoad", 1, false, true});
    EXPECT_FALSE(commands.sendMove());
    EXPECT_TRUE(pc.has("A.JBI"));
    EXPECT_FALSE(pc.has("B.JBI"));
    EXPECT_THAT(boxes.texts(), ElementsAre("not shown:\n[A.JBI]"));
    EXPECT_THAT(window.pc.names, ElementsAre("A.JBI"));
}

TEST_F(SentSourcesTest, TheLastFileIsJudgedByTheReadingAtTheEndOfTheCommand) {
    pcJob("A");
    robot();
    selectOnPC({"A.JBI"});
    library.disturb({"BscDownLoad", 1, false, true});
    EXPECT_FALSE(commands.sendMove());
    EXPECT_TRUE(pc.has("A.JBI"));
    EXPECT_THAT(boxes.texts(), ElementsAre("not shown:\n[A.JBI]"));
}

TEST_F(SentSourcesTest, AnOverwriteThatDidNothingKeepsTheOnlyCopy) {
    pcJob("A", "new");
    robotJob("A", "old");
    selectOnPC({"A.JBI"});
    question.answers = {Answer::Yes};
    library.disturb({"BscDownLoad", 1, false, true});
    EXPECT_FALSE(commands.sendMove());
    EXPECT_EQ(pc.read("A.JBI"), job("A", "new"));
}

TEST_F(SentSourcesTest, ASourceGoesOnlyAfterAReadingThatShowsIt) {
    for (const char* name : {"A", "B", "C"})
        pcJob(name);
    robot();
    selectOnPC({"A.JBI", "B.JBI", "C.JBI"});
    std::vector<bool> isThere;
    library.onCall = [&](const std::string& function) {
        if (function == "BscDownLoad")
            isThere.push_back(pc.has("A.JBI"));
        if (function == "BscFindFirst" && library.callCount("BscFindFirst") == 4)
            isThere.push_back(pc.has("C.JBI"));
    };
    EXPECT_TRUE(commands.sendMove());
    EXPECT_THAT(isThere, ElementsAre(true, true, false, true));
    EXPECT_THAT(window.pc.names, IsEmpty());
    // Each send begins with a reading, and one more is the pane's.
    EXPECT_EQ(library.callCount("BscFindFirst"), 4);
}

TEST_F(SentSourcesTest, AJobIsLookedForByItsNameLine) {
    pc.write("FILE.JBI", job("JOB"));
    pc.write("OTHER.JBI", job("GONE"));
    robot();
    selectOnPC({"FILE.JBI", "OTHER.JBI"});
    library.disturb({"BscDownLoad", 2, false, true});
    EXPECT_FALSE(commands.sendMove());
    EXPECT_FALSE(pc.has("FILE.JBI"));
    EXPECT_TRUE(pc.has("OTHER.JBI"));
    EXPECT_THAT(boxes.texts(), ElementsAre("not shown:\n[OTHER.JBI]"));
}

/// The first reading after the send decides: the second file arrives under the same name.
TEST_F(SentSourcesTest, ALaterFileOfTheSameNameProvesNothing) {
    pc.write("A1.JBI", job("A", "1"));
    pc.write("A2.JBI", job("A", "2"));
    robot();
    selectOnPC({"A1.JBI", "A2.JBI"});
    library.disturb({"BscDownLoad", 1, false, true});
    EXPECT_FALSE(commands.sendMove());
    EXPECT_TRUE(pc.has("A1.JBI"));
    EXPECT_FALSE(pc.has("A2.JBI"));
}

TEST_F(SentSourcesTest, DataFilesAreLookedForByTheirOwnName) {
    pc.write("V.DAT", "1");
    pc.write("W.DAT", "2");
    robot();
    selectOnPC({"V.DAT", "W.DAT"});
    library.disturb({"BscDownLoad", 2, false, true});
    EXPECT_FALSE(commands.sendMove());
    EXPECT_FALSE(pc.has("V.DAT"));
    EXPECT_TRUE(pc.has("W.DAT"));
}

TEST_F(SentSourcesTest, WithoutALastReadingTheSourceStaysAndIsNamed) {
    pcJob("A");
    pcJob("B");
    robot();
    selectOnPC({"A.JBI", "B.JBI"});
    library.disturb({"BscFindFirst", 3, true, false, 2000});
    EXPECT_FALSE(commands.sendMove());
    EXPECT_FALSE(pc.has("A.JBI"));
    EXPECT_TRUE(pc.has("B.JBI"));
    ASSERT_THAT(boxes.shown, SizeIs(2));
    EXPECT_EQ(boxes.shown[1].text, "not known:\n[B.JBI]");
}

TEST_F(SentSourcesTest, ManyFilesThatDidNotArriveAreOneMessage) {
    std::vector<std::string> names;
    for (int file = 100; file < 120; ++file) {
        pcJob("J" + std::to_string(file));
        names.push_back("J" + std::to_string(file) + ".JBI");
    }
    robot();
    selectOnPC(names);
    library.disturb({"BscDownLoad", 1, true, true});
    EXPECT_FALSE(commands.sendMove());
    ASSERT_THAT(boxes.shown, SizeIs(1));
    EXPECT_TRUE(boxes.shown[0].text.starts_with("not shown:\n[J100.JBI]\n[J101.JBI]\n"));
    EXPECT_TRUE(boxes.shown[0].text.ends_with("[J114.JBI]\nand 5 more"));
    EXPECT_TRUE(pc.has("J119.JBI"));
}

TEST_F(SentSourcesTest, ANewerVersionSavedDuringTheSendStays) {
    pcJob("A");
    robot();
    selectOnPC({"A.JBI"});
    const auto time = std::filesystem::last_write_time(pc.path("A.JBI"));
    whileSent([&] { // of the same size and time
        pcJob("A", "2");
        std::filesystem::last_write_time(pc.path("A.JBI"), time);
    });
    EXPECT_FALSE(commands.sendMove());
    EXPECT_EQ(pc.read("A.JBI"), job("A", "2"));
    EXPECT_EQ(robot().bytes("A.JBI"), job("A", "1"));
    EXPECT_THAT(boxes.texts(), ElementsAre("[A.JBI] changed meanwhile, stays"));
}

TEST_F(SentSourcesTest, ANewerDataFileSavedDuringTheSendStays) {
    pc.write("V.DAT", "1");
    robot();
    selectOnPC({"V.DAT"});
    whileSent([this] { pc.write("V.DAT", "1 and more"); });
    EXPECT_FALSE(commands.sendMove());
    EXPECT_EQ(pc.read("V.DAT"), "1 and more");
}

TEST_F(SentSourcesTest, AFileThatWasOnlyTouchedGoes) {
    pcJob("A");
    robot();
    selectOnPC({"A.JBI"});
    whileSent([this] {
        std::filesystem::last_write_time(pc.path("A.JBI"),
                                         std::filesystem::file_time_type::clock::now());
        pcJob("A");
    });
    EXPECT_TRUE(commands.sendMove());
    EXPECT_FALSE(pc.has("A.JBI"));
}

TEST_F(SentSourcesTest, WhatAnotherRobotShowsProvesNothing) {
    pcJob("A");
    robot();
    library.at("COM2").put("A.JBI", "of the other robot");
    selectOnPC({"A.JBI"});
    library.disturb({"BscDownLoad", 1, false, true});
    whileSent([this] { session.port = 2; });
    EXPECT_FALSE(commands.sendMove());
    EXPECT_TRUE(pc.has("A.JBI"));
    EXPECT_THAT(boxes.texts(), ElementsAre("not known:\n[A.JBI]"));
}

TEST_F(SentSourcesTest, TheFolderThatWasSentFromIsTheOneThatLosesTheFile) {
    pcJob("A");
    pc.write("SUB/A.JBI", job("A"));
    robot();
    selectOnPC({"A.JBI"});
    whileSent([this] { ASSERT_TRUE(panes.scanPC(pc.path("SUB"))); });
    EXPECT_TRUE(commands.sendMove());
    EXPECT_FALSE(pc.has("A.JBI"));
    EXPECT_TRUE(pc.has("SUB/A.JBI"));
}

TEST_F(SentSourcesTest, CancelLeavesNothingUnjudged) {
    pcJob("A");
    pcJob("B");
    robot();
    selectOnPC({"A.JBI", "B.JBI"});
    pressCancelAtYield(3); // shown, A, B
    EXPECT_FALSE(commands.sendMove());
    EXPECT_FALSE(pc.has("A.JBI")) << "the reading of the pane shows it";
    EXPECT_TRUE(pc.has("B.JBI"));
}

TEST_F(SentSourcesTest, AJobThatWasDeletedForAFileThatDidNotArriveIsNamed) {
    pcJob("A", "new");
    robotJob("A", "old");
    robotJob("B", "old");
    selectOnPC({"A.JBI"});
    question.answers = {Answer::Yes};
    library.disturb({"BscDownLoad", 1, false, true});
    EXPECT_FALSE(commands.sendMove());
    EXPECT_THAT(robot().names(), ElementsAre("B.JBI"));
    EXPECT_THAT(boxes.texts(),
                ElementsAre("not shown:\n[A.JBI]", "gone and not replaced:\n[A.JBI]"));
}

} // namespace
} // namespace vantrel
