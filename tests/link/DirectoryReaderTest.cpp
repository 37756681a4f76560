#include "link/DirectoryReader.h"

#include "SessionWorld.h"

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
    world.messages.replace({{93, "reading directory", "reading directory"}});
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

TEST_F(DirectoryReaderTest, AnEndlessDirectoryStopsAtAMillionEntries) {
    world.library.recordCalls(false);
    world.controller().endless = true;
    EXPECT_FALSE(read());
    EXPECT_EQ(list.size(), 1'000'000u);
    EXPECT_EQ(world.error(), "BscFind 24 1000000");
    EXPECT_EQ(world.library.openLinks(), 0);
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

} // namespace
} // namespace vantrel
