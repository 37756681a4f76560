#include "link/SentFile.h"

#include "SessionWorld.h"

namespace vantrel {
namespace {

using testing::ElementsAre;
using tests::SessionWorld;

struct ShownRow {
    std::string name;
    SentFile file;
    std::vector<std::string> directory;
    bool isShown;
};

SentFile sentAs(const std::string& arrivesAs, const std::string& before, bool isInPlace) {
    return {"", "", arrivesAs, before, isInPlace};
}

class SentFileTest : public testing::TestWithParam<ShownRow> {};

TEST_P(SentFileTest, IsShownByADirectoryOnlyWhenItCanHaveArrived) {
    EXPECT_EQ(isShown(GetParam().file, {1, GetParam().directory, "COM1"}), GetParam().isShown);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, SentFileTest,
    testing::Values(
        ShownRow{"Job", sentAs("A.JBI", "", false), {"B.JBI", "A.JBI"}, true},
        ShownRow{"MissingJob", sentAs("A.JBI", "", false), {"B.JBI", "AA.JBI"}, false},
        ShownRow{"JobInAnotherCase", sentAs("a.JBI", "", false), {"A.JBI"}, true},
        ShownRow{"JobWithoutExtension", sentAs("A.JBI", "", false), {"A"}, true},
        ShownRow{"OtherEntryOfTheNameWasThere", sentAs("A.JBI", "A.JBR", false), {"A.JBR"}, false},
        ShownRow{"BesideTheOtherEntry", sentAs("A.JBI", "A.JBR", false), {"A.JBR", "A.JBI"}, true},
        ShownRow{"RelatedJobOverAnOldOne", sentAs("A.JBI", "A.JBI", true), {"A.JBI"}, true},
        ShownRow{"Data", sentAs("V.DAT", "", true), {"V.DAT"}, true},
        ShownRow{"DataOverAnOldOne", sentAs("V.DAT", "V.DAT", true), {"V.DAT"}, true},
        ShownRow{"MissingData", sentAs("V.DAT", "", true), {"V.CND", "V"}, false},
        ShownRow{"NothingThere", sentAs("A.JBI", "", false), {}, false}),
    [](const auto& row) { return row.param.name; });

class LastReadingTest : public testing::Test {
  protected:
    SessionWorld world;
};

TEST_F(LastReadingTest, CountsTheReadingsThatSucceededAndKeepsWhatTheLastOneShowed) {
    world.controller().put("A.JBI", "x");
    EXPECT_EQ(world.session->lastReading().number, 0u);
    std::vector<std::string> list;
    EXPECT_TRUE(world.session->ReadDirectory(list));
    EXPECT_EQ(world.session->lastReading().number, 1u);
    EXPECT_EQ(world.session->lastReading().robot, "COM1");
    world.controller().put("B.JBI", "x");
    world.library.disturb({"BscFindNext", 1, false, false, 2000});
    EXPECT_FALSE(world.session->ReadDirectory(list));
    EXPECT_EQ(world.session->lastReading().number, 1u);
    EXPECT_THAT(world.session->lastReading().names, ElementsAre("A.JBI"));
}

TEST_F(LastReadingTest, OfASendIsTheOneThatItBeganWith) {
    world.pc.write("FILE.JBI", SessionWorld::job("JOB"));
    ASSERT_TRUE(world.session->JobDownLoad("FILE.JBI"));
    EXPECT_EQ(world.session->lastReading().number, 1u);
    EXPECT_THAT(world.session->lastReading().names, ElementsAre());
    EXPECT_EQ(world.session->lastSent().path, world.pc.path("FILE.JBI"));
    EXPECT_EQ(world.session->lastSent().arrivesAs, "JOB.JBI");
    EXPECT_EQ(world.session->lastSent().content, SessionWorld::job("JOB"));
    EXPECT_FALSE(world.session->lastSent().isInPlace);
}

TEST_F(LastReadingTest, ADataFileIsReadBeforeItIsSentAlone) {
    world.pc.write("V.DAT", "values");
    world.controller().put("V.DAT", "old");
    ASSERT_TRUE(world.session->JobDownLoad("V.DAT"));
    EXPECT_EQ(world.session->lastSent().content, "values");
    EXPECT_EQ(world.session->lastSent().shownBefore, "V.DAT");
    EXPECT_TRUE(world.session->lastSent().isInPlace);
    EXPECT_FALSE(world.session->JobDownLoad("NONE.DAT"));
    EXPECT_EQ(world.error(), " 21 0");
}

/// The question may stay open for long: what counts is the file as it is after it.
TEST_F(LastReadingTest, WhatWasSentIsReadAfterTheQuestion) {
    world.pc.write("A.JBI", SessionWorld::job("A", "ONE"));
    world.controller().put("A.JBI", SessionWorld::job("A", "OLD"));
    world.question.answers = {Answer::Yes};
    world.question.whileOpen = [this] { world.pc.write("A.JBI", SessionWorld::job("A", "TWO")); };
    ASSERT_TRUE(world.session->JobDownLoad("A.JBI"));
    EXPECT_EQ(world.session->lastSent().content, SessionWorld::job("A", "TWO"));
    EXPECT_EQ(world.session->lastSent().shownBefore, "") << "the old job was deleted first";
}

} // namespace
} // namespace vantrel
