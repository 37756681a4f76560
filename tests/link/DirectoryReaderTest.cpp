#include "link/DirectoryReader.h"

#include "SessionWorld.h"
#include "support/NamedRow.h"

namespace vantrel {
namespace {

using testing::ElementsAre;
using tests::SessionWorld;

struct DirectoryReaderTest : testing::Test {
    SessionWorld world;
    std::vector<std::string> list{"stale"};

    bool read() { return world.session->ReadDirectory(list); }
};

TEST_F(DirectoryReaderTest, EntriesComeInTheControllersOrder) {
    world.controller().put("WELD.JBI", "");
    world.controller().put("A.CND", "");
    EXPECT_TRUE(read());
    EXPECT_THAT(list, ElementsAre("WELD.JBI", "A.CND"));
    EXPECT_EQ(
        world.library.trace(),
        tests::wholeLink(world, 1,
                         {"BscFindFirst(1, 255)", "BscFindNext(1, 255)", "BscFindNext(1, 255)"}));
}

TEST_F(DirectoryReaderTest, TheProgressStandsBeforeEveryCallAndIsHiddenAtTheEnd) {
    world.controller().put("A.JBI", "");
    world.library.onCall = [this](const std::string& function) {
        const bool isShown = world.panel.isVisible() && !world.panel.barShown() &&
                             world.panel.cancelButtonShown() &&
                             world.panel.message() == "reading directory";
        EXPECT_TRUE(isShown) << function;
    };
    // What an earlier operation has left is another picture.
    world.panel.showBar(true);
    world.panel.showCancelButton(false);
    for (const char* failing : {"", "BscOpen", "BscFindFirst", "BscFindNext", "BscDisConnect"}) {
        if (*failing)
            world.library.disturb({.function = failing});
        EXPECT_EQ(read(), !*failing) << failing;
        EXPECT_FALSE(world.panel.isVisible()) << failing;
        world.library.tolerateMisuse(); // a link that would not disconnect stays open
    }
}

TEST_F(DirectoryReaderTest, AnEmptyDirectoryIsNoFailure) {
    EXPECT_TRUE(read());
    EXPECT_TRUE(list.empty());
    EXPECT_EQ(world.library.trace(), tests::wholeLink(world, 1, {"BscFindFirst(1, 255)"}));
    EXPECT_EQ(world.error(), " 0 0");
}

TEST_F(DirectoryReaderTest, AnEntryThatFillsTheWholeBufferIsTakenWhole) {
    const std::string longName(255, 'A');
    world.controller().put(longName, "");
    world.controller().put("B.JBI", "");
    EXPECT_TRUE(read());
    EXPECT_THAT(list, ElementsAre(longName, "B.JBI"));
}

TEST_F(DirectoryReaderTest, AShortEntryAfterALongOneHasNoneOfItsCharacters) {
    world.controller().terminatesNames = false;
    world.controller().put("AVERYLONGNAME.JBI", "");
    world.controller().put("B", "");
    EXPECT_TRUE(read());
    EXPECT_THAT(list, ElementsAre("AVERYLONGNAME.JBI", "B"));
}

TEST_F(DirectoryReaderTest, NamesAreReadInTheCodePage) {
    world.controller().put("\xE3\x82\xBD.JBI", "");
    EXPECT_TRUE(read());
    EXPECT_THAT(list, ElementsAre("\xE3\x82\xBD.JBI"));
}

TEST_F(DirectoryReaderTest, NamesThatWouldBeRefusedAreStillShown) {
    world.controller().put("..", "");
    world.controller().put("a/b.JBI", "");
    EXPECT_TRUE(read());
    EXPECT_THAT(list, ElementsAre("..", "a/b.JBI"));
}

TEST_F(DirectoryReaderTest, AFailureTellsHowManyEntriesHadBeenRead) {
    for (const char* name : {"A", "B", "C", "D"})
        world.controller().put(name, "");
    world.library.disturb({.function = "BscFindNext", .call = 2, .code = 2020});
    EXPECT_FALSE(read());
    EXPECT_EQ(world.error(), "BscFind 2020 2");
    EXPECT_EQ(world.library.openLinks(), 0);
}

TEST_F(DirectoryReaderTest, AFailureAtOnceHasIndexZero) {
    world.library.disturb({.function = "BscFindFirst", .code = -2});
    EXPECT_FALSE(read());
    EXPECT_EQ(world.error(), "BscFind -2 0");
}

TEST_F(DirectoryReaderTest, ADirectoryWhoseLinkWillNotCloseIsNotRead) {
    world.controller().put("A", "");
    world.library.disturb({.function = "BscDisConnect", .code = 0});
    EXPECT_FALSE(read());
    EXPECT_EQ(world.error(), "BscDisConnect 0 0");
}

TEST_F(DirectoryReaderTest, AFailedConnectLeavesAnEmptyList) {
    world.library.disturb({.function = "BscConnect", .code = 2010});
    EXPECT_FALSE(read());
    EXPECT_TRUE(list.empty());
}

struct EndlessRow : tests::NamedRow {
    std::size_t names;
    const char* error;
};

class EndlessDirectoryTest : public DirectoryReaderTest,
                             public testing::WithParamInterface<EndlessRow> {};

TEST_P(EndlessDirectoryTest, EndsWithAFailure) {
    world.library.recordCalls(false);
    world.controller().endlessNames = GetParam().names;
    EXPECT_FALSE(read());
    EXPECT_EQ(world.error(), GetParam().error);
    EXPECT_EQ(world.library.openLinks(), 0);
}

INSTANTIATE_TEST_SUITE_P(Directories, EndlessDirectoryTest,
                         testing::Values(EndlessRow{"OneName", 1, "BscFind 24 101"},
                                         EndlessRow{"RoundAndRound", 7, "BscFind 24 107"},
                                         EndlessRow{"AlwaysAnotherName", 1'000'000,
                                                    "BscFind 24 50000"}),
                         tests::rowName);

TEST_F(DirectoryReaderTest, ANameThatIsToldTwiceIsListedTwice) {
    world.controller().put("A ", "");
    world.controller().put("A", "");
    EXPECT_TRUE(read());
    EXPECT_THAT(list, ElementsAre("A", "A"));
}

/// A controller with more names than fit any buffer of theirs together.
TEST_F(DirectoryReaderTest, ALongDirectoryIsReadToItsEnd) {
    world.library.recordCalls(false);
    for (int i = 0; i < 20'000; ++i)
        world.controller().put("JOB" + std::to_string(i) + ".JBI", "");
    EXPECT_TRUE(read());
    ASSERT_EQ(list.size(), 20'000u);
    EXPECT_EQ(list.front(), "JOB0.JBI");
    EXPECT_EQ(list.back(), "JOB19999.JBI");
}

struct PaddingRow : tests::NamedRow {
    const char* before;
    const char* behind;
};

class PaddedEntryTest : public DirectoryReaderTest, public testing::WithParamInterface<PaddingRow> {
  protected:
    PaddedEntryTest() {
        world.controller().put("WELD.JBI", "");
        world.controller().before = GetParam().before;
        world.controller().behind = GetParam().behind;
    }
};

TEST_P(PaddedEntryTest, IsListedWithoutWhatSurroundsIt) {
    EXPECT_TRUE(read());
    EXPECT_THAT(list, ElementsAre("WELD.JBI"));
}

TEST_P(PaddedEntryTest, StandsInTheWayOfAJobThatIsSent) {
    world.pc.write("WELD.JBI", SessionWorld::job("WELD"));
    world.question.answers = {Answer::No};
    EXPECT_FALSE(world.session->JobDownLoad("WELD.JBI"));
    EXPECT_THAT(world.question.questions, ElementsAre("WELD.JBI already exists. Overwrite it?"));
}

INSTANTIATE_TEST_SUITE_P(Paddings, PaddedEntryTest,
                         testing::Values(PaddingRow{"BlanksBehind", "", "   "},
                                         PaddingRow{"BlanksBefore", "  ", ""},
                                         PaddingRow{"Tabs", "\t", "\t"},
                                         PaddingRow{"LineEnd", "", "\r\n"},
                                         PaddingRow{"BlanksAndLineEnd", " ", "  \r\n"}),
                         tests::rowName);

TEST_F(DirectoryReaderTest, AnEntryOfPaddingOnlyIsLeftOut) {
    world.controller().put("A", "");
    world.controller().put(" \t\r\n", "");
    world.controller().put("B", "");
    EXPECT_TRUE(read());
    EXPECT_THAT(list, ElementsAre("A", "B"));
}

TEST_F(DirectoryReaderTest, BlanksInsideANameStay) {
    world.controller().put("A B.JBI", "");
    EXPECT_TRUE(read());
    EXPECT_THAT(list, ElementsAre("A B.JBI"));
}

TEST_F(DirectoryReaderTest, ALibraryThatWritesBehindTheBufferHurtsNothing) {
    world.controller().put(std::string(255, 'A'), "");
    world.controller().put("B.JBI", "");
    world.library.overrun = 64;
    std::vector<std::string> second;
    EXPECT_TRUE(read());
    EXPECT_THAT(list, ElementsAre(std::string(255, 'A'), "B.JBI"));
    EXPECT_TRUE(world.session->ReadDirectory(second));
    EXPECT_EQ(second, list);
}

/// The window is the command's, and the library itself lets events run.
TEST_F(DirectoryReaderTest, APressDuringTheReadEndsIt) {
    for (const char* name : {"A", "B", "C", "D"})
        world.controller().put(name, "");
    world.panel.show("command");
    world.library.onCall = [this](const std::string&) {
        if (world.library.callCount("BscFindNext") == 2)
            world.panel.pressCancel();
    };
    EXPECT_FALSE(read());
    EXPECT_EQ(world.error(), " 3 3");
    EXPECT_EQ(world.library.callCount("BscFindNext"), 2);
    EXPECT_EQ(world.library.openLinks(), 0);
    EXPECT_FALSE(world.panel.isVisible());
}

TEST_F(DirectoryReaderTest, EventsRunAtEveryHundredthEntryOfALongDirectory) {
    for (int i = 0; i < 1000; ++i)
        world.controller().put("JOB" + std::to_string(i), "");
    world.panel.show("command");
    world.view.onYield = [this](int yield) {
        if (yield == 3)
            world.panel.pressCancel();
    };
    EXPECT_FALSE(read());
    EXPECT_EQ(world.error(), " 3 100") << "after the command's window and the reading's";
}

TEST_F(DirectoryReaderTest, WithoutAWindowNobodyCanCancelAndNoEventsRun) {
    for (int i = 0; i < 200; ++i)
        world.controller().put("JOB" + std::to_string(i), "");
    world.panel.show("command");
    world.panel.pressCancel();
    world.panel.hide();
    world.session->DisplayMonitor = false;
    const int yields = world.view.yields;
    EXPECT_TRUE(read());
    EXPECT_EQ(world.view.yields, yields);
}

/// At its very end, so that only the look before the window is hidden can find it.
TEST_F(DirectoryReaderTest, APressInTheLastCallOfTheReadEndsATransferBeforeItsFirstFile) {
    world.pc.write("WELD.JBI", SessionWorld::job("WELD"));
    world.session->AddJobList("WELD.JBI");
    world.library.onCall = [this](const std::string& function) {
        if (function == "BscClose")
            world.panel.pressCancel();
    };
    world.panel.show("command");
    EXPECT_FALSE(world.session->JobListDownLoad());
    EXPECT_EQ(world.error(), " 3 0");
    world.panel.show("command");
    EXPECT_FALSE(world.session->JobDownLoad("WELD.JBI"));
    EXPECT_EQ(world.error(), " 3 0");
    EXPECT_EQ(world.library.callCount("BscDownLoad"), 0);
}

TEST_F(DirectoryReaderTest, ProgressIsHiddenInEveryCase) {
    world.panel.show("command");
    EXPECT_TRUE(read());
    EXPECT_FALSE(world.panel.isVisible());
    world.panel.show("command");
    world.library.disturb({.function = "BscOpen"});
    EXPECT_FALSE(read());
    EXPECT_FALSE(world.panel.isVisible());
}

TEST_F(DirectoryReaderTest, ProgressOfACommandStaysWhileTheMonitorIsOff) {
    world.session->DisplayMonitor = false;
    world.panel.show("command");
    EXPECT_TRUE(read());
    EXPECT_TRUE(world.panel.isVisible());
}

TEST_F(DirectoryReaderTest, ASilentReadIsCancelledInTheWindowOfItsCommand) {
    for (int i = 0; i < 300; ++i)
        world.controller().put("JOB" + std::to_string(i), "");
    world.session->DisplayMonitor = false;
    world.panel.show("command");
    world.view.onYield = [this, first = world.view.yields](int yield) {
        if (yield == first + 2)
            world.panel.pressCancel();
    };
    EXPECT_FALSE(read());
    EXPECT_EQ(world.error(), " 3 200");
    EXPECT_TRUE(world.panel.isVisible());
    EXPECT_TRUE(world.panel.isCancelled()) << "for the command, too";
    EXPECT_EQ(world.library.openLinks(), 0);
}

TEST_F(DirectoryReaderTest, ALibraryThatTellsEveryFileTwiceIsReadToItsEnd) {
    for (int i = 0; i < 150; ++i)
        for (const char* behind : {"", " "})
            world.controller().put("JOB" + std::to_string(i) + behind, "");
    EXPECT_TRUE(read());
    EXPECT_EQ(list.size(), 300u);
}

TEST_F(DirectoryReaderTest, BlankEntriesAreNoRepeats) {
    world.controller().put("A", "");
    for (std::size_t i = 1; i < 150; ++i)
        world.controller().put(std::string(i, ' '), "");
    EXPECT_TRUE(read());
    EXPECT_THAT(list, ElementsAre("A"));
}

/// Code page 932 has this character at FA5C and at ED40: what the library is told is the first one.
TEST_F(DirectoryReaderTest, ANameInACodingThatTheLibraryWouldNotBeToldIsNoOtherJobsName) {
    world.controller().put("\xE7\xBA\x8A.JBI", "");
    EXPECT_TRUE(read());
    EXPECT_THAT(list, ElementsAre("\xE7\xBA\x8A.JBI"));
    world.controller().before = "\xED\x40";
    EXPECT_TRUE(read());
    EXPECT_THAT(list, ElementsAre("\uFFFD\xE7\xBA\x8A.JBI"));
    const int before = world.library.callCount();
    EXPECT_FALSE(world.session->JobDelete(list.front()));
    EXPECT_FALSE(world.session->JobUpLoad(list.front()));
    EXPECT_EQ(world.error(), "BscUpLoad 20 0");
    EXPECT_EQ(world.library.callCount(), before);
}

} // namespace
} // namespace vantrel
