#include "link/JobFetch.h"

#include "EndingFiles.h"
#include "JobFetchFixture.h"
#include "link/FetchMark.h"
#include "link/ReplacedFile.h"
#include "support/NamedRow.h"

#include <filesystem>

namespace vantrel {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using tests::JobFetchTest;
using tests::SessionWorld;

TEST_F(JobFetchTest, AJobArrivesByteForByteWithoutReadingTheDirectory) {
    EXPECT_TRUE(fetch("WELD.JBI"));
    EXPECT_EQ(world.pc.read("WELD.JBI"), weld);
    EXPECT_EQ(world.library.trace(), tests::wholeLink(world, 1, {"BscUpLoad(1, WELD.JBI)"}));
    EXPECT_THAT(world.question.questions, IsEmpty());
}

TEST_F(JobFetchTest, AnExistingFileIsAskedForAndReplaced) {
    world.pc.write("WELD.JBI", "old");
    world.question.answers = {Answer::Yes};
    EXPECT_TRUE(fetch("WELD.JBI"));
    EXPECT_THAT(world.question.questions, ElementsAre("WELD.JBI already exists. Overwrite it?"));
    EXPECT_EQ(world.pc.read("WELD.JBI"), weld);
    EXPECT_EQ(fileCount(), 1u);
    EXPECT_EQ(world.error(), " 0 0");
}

TEST_F(JobFetchTest, APressOfCancelIsLookedAtAfterTheFile) {
    world.view.onYield = [this](int) { world.panel.pressCancel(); };
    EXPECT_FALSE(fetch("WELD.JBI"));
    EXPECT_EQ(world.error(), " 3 0");
    EXPECT_EQ(world.pc.read("WELD.JBI"), weld);
}

TEST_F(JobFetchTest, APartOfAFileThatCannotBeRemovedIsTold) {
    world.session->DisplayMonitor = false;
    world.library.onCall = [this](const std::string& function) {
        if (function == "BscUpLoad")
            world.pc.write("NEW.JBI/inside", "x");
    };
    EXPECT_FALSE(fetch("NEW.JBI"));
    EXPECT_EQ(world.error(), "BscUpLoad 1200 0");
    EXPECT_THAT(world.boxes.texts(), ElementsAre("[NEW.JBI] incomplete"));
    EXPECT_EQ(world.boxes.shown.at(0).icon, BoxIcon::Exclamation);
}

struct AnswerRow : tests::NamedRow {
    Answer answer;
    bool result;
    const char* error;
    bool replaced;
};

class FetchAnswerTest : public JobFetchTest, public testing::WithParamInterface<AnswerRow> {};

TEST_P(FetchAnswerTest, DecidesAboutTheExistingFile) {
    world.pc.write("WELD.JBI", "old");
    world.question.answers = {GetParam().answer};
    EXPECT_EQ(fetch("WELD.JBI"), GetParam().result);
    EXPECT_EQ(world.error(), GetParam().error);
    EXPECT_EQ(world.pc.read("WELD.JBI"), GetParam().replaced ? weld : "old");
    EXPECT_EQ(world.library.callCount(), GetParam().replaced ? 6 : 0);
}

INSTANTIATE_TEST_SUITE_P(Answers, FetchAnswerTest,
                         testing::Values(AnswerRow{"Yes", Answer::Yes, true, " 0 0", true},
                                         AnswerRow{"No", Answer::No, false, " 4 0", false},
                                         AnswerRow{"All", Answer::All, true, " 5 0", true},
                                         AnswerRow{"Cancel", Answer::Cancel, false, " 3 0", false}),
                         tests::rowName);

TEST_F(JobFetchTest, OverwriteAllReplacesWithoutAsking) {
    world.pc.write("WELD.JBI", "old");
    EXPECT_TRUE(fetch("WELD.JBI", true));
    EXPECT_THAT(world.question.questions, IsEmpty());
    EXPECT_EQ(world.pc.read("WELD.JBI"), weld);
}

TEST_F(JobFetchTest, WithTheMonitorOffAnExistingFileIsKept) {
    world.pc.write("WELD.JBI", "old");
    world.session->DisplayMonitor = false;
    EXPECT_FALSE(fetch("WELD.JBI"));
    EXPECT_EQ(world.error(), " 3 0");
    EXPECT_EQ(world.pc.read("WELD.JBI"), "old");
}

TEST_F(JobFetchTest, ExistingFilesAreFoundByNormalisedName) {
    world.pc.write("weld.jbi", "old");
    world.question.answers = {Answer::No};
    EXPECT_FALSE(fetch("WELD.JBI"));
    EXPECT_EQ(world.error(), " 4 0");
}

TEST_F(JobFetchTest, AnotherExtensionIsAnotherFile) {
    world.pc.write("WELD.JBI", "old");
    EXPECT_TRUE(fetch("WELD.JBR"));
    EXPECT_THAT(world.question.questions, IsEmpty());
    EXPECT_EQ(world.pc.read("WELD.JBR"), weld);
    EXPECT_EQ(world.pc.read("WELD.JBI"), "old");
}

TEST_F(JobFetchTest, AFailedFetchLeavesTheOldFileThere) {
    world.pc.write("WELD.JBI", "old");
    world.library.disturb({.function = "BscUpLoad", .code = 2020});
    EXPECT_FALSE(fetch("WELD.JBI", true));
    EXPECT_EQ(world.error(), "BscUpLoad 2020 0");
    EXPECT_EQ(world.pc.read("WELD.JBI"), "old");
    EXPECT_EQ(fileCount(), 1u);
}

TEST_F(JobFetchTest, APartialFileIsRemoved) {
    world.library.disturb({.function = "BscUpLoad", .code = 2020});
    world.library.onCall = [this](const std::string& function) {
        if (function == "BscUpLoad")
            world.pc.write("WELD.JBI", "par");
    };
    EXPECT_FALSE(fetch("WELD.JBI"));
    EXPECT_EQ(fileCount(), 0u);
}

TEST_F(JobFetchTest, AFetchThatBringsNothingIsAFailure) {
    world.pc.write("WELD.JBI", "old");
    world.library.disturb({.function = "BscUpLoad", .doNothing = true});
    EXPECT_FALSE(fetch("WELD.JBI", true));
    EXPECT_EQ(world.error(), "BscUpLoad 25 0");
    EXPECT_EQ(world.pc.read("WELD.JBI"), "old");
}

TEST_F(JobFetchTest, ALinkThatWillNotCloseCountsAsAFailedFetch) {
    world.pc.write("WELD.JBI", "old");
    world.library.disturb({.function = "BscDisConnect", .code = -3});
    EXPECT_FALSE(fetch("WELD.JBI", true));
    EXPECT_EQ(world.error(), "BscDisConnect -3 0");
    EXPECT_EQ(world.pc.read("WELD.JBI"), "old");
}

TEST_F(JobFetchTest, AFileOfTheLongestNameIsReplacedToo) {
    const std::string base(250, 'A');
    world.controller().put(base + ".JBI", SessionWorld::job(base));
    world.pc.write(base + ".JBI", "old");
    EXPECT_TRUE(fetch(base + ".JBI", true));
    EXPECT_EQ(world.pc.read(base + ".JBI"), SessionWorld::job(base));
    EXPECT_EQ(fileCount(), 1u);
}

TEST_F(JobFetchTest, AWriteProtectedFileIsNotFetchedOver) {
    const std::filesystem::path file(world.pc.write("WELD.JBI", "old"));
    std::filesystem::permissions(file, std::filesystem::perms(0444));
    expectBlocked();
    EXPECT_EQ(world.pc.read("WELD.JBI"), "old");
    std::filesystem::permissions(file, std::filesystem::perms::owner_all);
}

TEST_F(JobFetchTest, AFolderIsNotFetchedOver) {
    world.pc.makeFolder("WELD.JBI");
    expectBlocked();
}

TEST_F(JobFetchTest, WhatCannotBeReplacedIsTheReasonEvenWhenTheLinkThenStaysOpen) {
    world.pc.makeFolder("WELD.JBI");
    world.library.disturb({.function = "BscDisConnect", .code = -3});
    EXPECT_FALSE(fetch("WELD.JBI", true));
    EXPECT_EQ(world.error(), " 26 0");
    EXPECT_EQ(world.library.openLinks(), 1);
}

TEST_F(JobFetchTest, AFileThatAppearsDuringTheListIsAskedFor) {
    world.controller().put("PICK.JBI", SessionWorld::job("PICK"));
    world.session->AddJobList("WELD.JBI");
    world.session->AddJobList("PICK.JBI");
    world.view.onYield = [this](int) { world.pc.write("PICK.JBI", "mine"); };
    world.question.answers = {Answer::No};
    EXPECT_TRUE(world.session->JobListUpLoad());
    EXPECT_THAT(world.question.questions, ElementsAre("PICK.JBI already exists. Overwrite it?"));
    EXPECT_EQ(world.pc.read("PICK.JBI"), "mine");
}

TEST_F(JobFetchTest, AnEmptyFileHasNotArrived) {
    world.pc.write("WELD.JBI", "old");
    world.library.disturb({.function = "BscUpLoad", .code = 0, .cutTo = 0});
    EXPECT_FALSE(fetch("WELD.JBI", true));
    EXPECT_EQ(world.error(), "BscUpLoad 25 0");
    EXPECT_EQ(world.pc.read("WELD.JBI"), "old");
    EXPECT_EQ(fileCount(), 1u);
}

TEST_F(JobFetchTest, AFetchThatFailsInTheMiddleLeavesTheOldFile) {
    world.pc.write("WELD.JBI", "old");
    world.library.disturb({.function = "BscUpLoad", .code = 3010, .cutTo = 5});
    EXPECT_FALSE(fetch("WELD.JBI", true));
    EXPECT_EQ(world.error(), "BscUpLoad 3010 0");
    EXPECT_EQ(world.pc.read("WELD.JBI"), "old");
    EXPECT_EQ(fileCount(), 1u);
}

/// A folder takes the file's place during the transfer, so that the old file cannot come back.
TEST_F(JobFetchTest, AnOldFileThatCannotBePutBackIsToldBesideTheFailureEvenWithTheMonitorOff) {
    world.pc.write("WELD.JBI", "old");
    world.session->DisplayMonitor = false;
    world.library.disturb({.function = "BscUpLoad", .code = 3010});
    world.library.onCall = [this](const std::string& function) {
        if (function == "BscUpLoad")
            world.pc.makeFolder("WELD.JBI/inside");
    };
    EXPECT_FALSE(fetch("WELD.JBI", true));
    EXPECT_EQ(world.error(), "BscUpLoad 3010 0");
    using Box = tests::FakeMessageBoxes;
    EXPECT_THAT(world.boxes.shown,
                ElementsAre(Box::Box{Box::Kind::Tell, "[WELD.JBI] kept as [WELD.JBI.replaced-1]",
                                     BoxIcon::Exclamation}));
    EXPECT_EQ(world.pc.read("WELD.JBI.replaced-1"), "old");
}

TEST_F(JobFetchTest, WhatAKilledProgramLeftIsPutBackFirstAndAskedFor) {
    world.pc.write("WELD.JBI", "old");
    {
        tests::EndingFiles files(3);
        const ReplacedFile killed(files, world.pc.path(), "WELD.JBI");
    }
    world.question.answers = {Answer::No};
    EXPECT_FALSE(fetch("WELD.JBI"));
    EXPECT_EQ(world.error(), " 4 0");
    EXPECT_EQ(world.pc.read("WELD.JBI"), "old");
    EXPECT_EQ(fileCount(), 1u);
    EXPECT_THAT(world.boxes.texts(), ElementsAre("[WELD.JBI] interrupted; old back"));
}

TEST_F(JobFetchTest, AMarkThatCannotBeReadIsNotWrittenOver) {
    const std::string mark = FetchMark::fileNameFor("WELD.JBI");
    for (const std::string content : {"?", "Vantrel fetch 2\nWELD.JBI\nend\n"}) {
        world.pc.write("WELD.JBI", "half");
        world.pc.write(mark, content);
        EXPECT_FALSE(fetch("WELD.JBI", true));
        EXPECT_EQ(world.error(), " 47 0");
        EXPECT_EQ(world.session->unusableMark(), mark);
        EXPECT_EQ(world.pc.read("WELD.JBI"), "half");
        EXPECT_EQ(world.pc.read(mark), content);
        EXPECT_FALSE(world.session->JobDownLoad("WELD.JBI", true)) << "and goes on forbidding";
        EXPECT_EQ(world.controller().bytes("WELD.JBI"), weld);
    }
    EXPECT_EQ(world.library.callCount("BscUpLoad"), 0);
}

TEST_F(JobFetchTest, AnOldFileThatIsGoneIsNotTakenForOneThatIsBack) {
    world.pc.write("WELD.JBI", "old");
    world.library.disturb({.function = "BscUpLoad", .code = 3010});
    world.library.onCall = [this](const std::string& function) {
        if (function != "BscUpLoad")
            return;
        world.pc.write("WELD.JBI", "ne");
        std::filesystem::remove(world.pc.path("WELD.JBI.replaced-1"));
    };
    EXPECT_FALSE(fetch("WELD.JBI", true));
    EXPECT_THAT(world.boxes.texts(), ElementsAre("[WELD.JBI] kept as [WELD.JBI.replaced-1]"));
}

/// The operator deleted the file, and did not mean its old version to come back.
TEST_F(JobFetchTest, AnOldVersionWithoutAMarkIsNeverPutBack) {
    world.pc.write("WELD.JBI.replaced-1", "old");
    EXPECT_TRUE(fetch("WELD.JBI"));
    EXPECT_THAT(world.question.questions, IsEmpty());
    EXPECT_EQ(world.pc.read("WELD.JBI"), weld);
    EXPECT_EQ(world.pc.read("WELD.JBI.replaced-1"), "old");
}

TEST_F(JobFetchTest, TheFolderIsMarkedBeforeTheLibraryWritesAndALookChangesNothing) {
    world.pc.write("WELD.JBI", "old");
    bool wasMarked = false;
    world.library.onCall = [&](const std::string& function) {
        if (function != "BscUpLoad")
            return;
        const std::string mark = FetchMark::fileNameFor("WELD.JBI");
        wasMarked = world.pc.has(mark);
        EXPECT_FALSE(world.session->settleInterruptedFetches(world.pc.path(), {mark}));
    };
    EXPECT_TRUE(fetch("WELD.JBI", true));
    EXPECT_TRUE(wasMarked);
    EXPECT_EQ(fileCount(), 1u);
    EXPECT_THAT(world.boxes.shown, IsEmpty());
}

TEST_F(JobFetchTest, AMarkIsNoFileToFetch) {
    const std::string mark = FetchMark::fileNameFor("WELD.JBI");
    world.controller().put(mark, "x");
    EXPECT_FALSE(fetch(mark, true));
    EXPECT_EQ(world.error(), " 23 0");
    EXPECT_EQ(world.library.callCount(), 0);
}

/// A session on a disk with one kind of step that fails.
struct FailingDiskTest : JobFetchTest {
    tests::FailingFiles files;

    FailingDiskTest() {
        world.services.files = &files;
        world.session = std::make_unique<Snappy>(world.services);
        world.session->path = world.pc.path();
        world.pc.write("WELD.JBI", "old");
    }
};

TEST_F(FailingDiskTest, AFileThatIsNotFlushedHasNotArrived) {
    files.failsFlush = true;
    EXPECT_FALSE(fetch("WELD.JBI", true));
    EXPECT_EQ(world.error(), "BscUpLoad 46 0");
    EXPECT_EQ(world.pc.read("WELD.JBI"), "old");
    EXPECT_EQ(fileCount(), 1u);
}

TEST_F(FailingDiskTest, WithoutAMarkNothingIsFetched) {
    files.failsHold = true;
    EXPECT_FALSE(fetch("WELD.JBI", true));
    EXPECT_EQ(world.error(), " 45 0");
    EXPECT_EQ(world.pc.read("WELD.JBI"), "old");
    EXPECT_EQ(world.library.callCount("BscUpLoad"), 0);
    EXPECT_EQ(world.library.openLinks(), 0);
}

/// Its directory is no longer the session's afterwards; the folders are absolute.
TEST_F(JobFetchTest, ALibraryThatChangesTheCurrentDirectoryMovesNoFile) {
    const tests::TemporaryFolder elsewhere;
    world.controller().put("PICK.JBI", SessionWorld::job("PICK"));
    world.pc.write("WELD.JBI", "old");
    world.library.onCall = [&](const std::string&) {
        std::filesystem::current_path(elsewhere.path());
    };
    EXPECT_TRUE(fetch("WELD.JBI", true));
    EXPECT_TRUE(fetch("PICK.JBI"));
    EXPECT_EQ(world.pc.read("WELD.JBI"), weld);
    EXPECT_EQ(fileCount(), 2u);
    EXPECT_TRUE(std::filesystem::is_empty(elsewhere.path()));
    std::filesystem::current_path(world.pc.path());
}

TEST_F(JobFetchTest, NothingIsFetchedIntoAFolderThatCannotBeListed) {
    world.session->path = world.pc.path("nowhere");
    EXPECT_FALSE(fetch("WELD.JBI"));
    EXPECT_EQ(world.error(), " 42 0");
    EXPECT_FALSE(world.session->systemReason().empty());
    EXPECT_EQ(world.library.callCount(), 0);
}

TEST_F(JobFetchTest, NamesThatAreNotPlainOpenNoLinkAndTouchNoFile) {
    for (const char* name : {"../WELD.JBI", "a\\b.JBI", "A:B.JBI", "NUL"}) {
        EXPECT_FALSE(fetch(name, true));
        EXPECT_EQ(world.error(), " 23 0");
    }
    EXPECT_FALSE(fetch("\xED\x95\x9C.JBI"));
    EXPECT_EQ(world.error(), "BscUpLoad 20 0");
    EXPECT_EQ(world.library.callCount(), 0);
    EXPECT_EQ(fileCount(), 0u);
}

TEST_F(JobFetchTest, ProgressShowsTheNameWithoutCancel) {
    EXPECT_TRUE(fetch("WELD.JBI"));
    EXPECT_THAT(world.view.messages(), ElementsAre("Transferring WELD.JBI"));
    EXPECT_FALSE(world.panel.cancelButtonShown());
    EXPECT_TRUE(world.panel.barShown());
    EXPECT_FALSE(world.panel.isVisible());
}

TEST_F(JobFetchTest, AFileThatCameDuringTheConnectIsNotReplacedUnasked) {
    world.library.onCall = [this](const std::string& function) {
        if (function == "BscConnect")
            world.pc.write("WELD.JBI", "mine");
    };
    EXPECT_FALSE(fetch("WELD.JBI"));
    EXPECT_EQ(world.error(), " 36 0");
    EXPECT_EQ(world.pc.read("WELD.JBI"), "mine");
    EXPECT_EQ(world.library.callCount("BscUpLoad"), 0);
    EXPECT_EQ(world.library.openLinks(), 0);
    EXPECT_EQ(fileCount(), 1u);
}

TEST_F(JobFetchTest, AFileThatCameDuringTheConnectIsReplacedByOneWhoMayReplaceAll) {
    world.library.onCall = [this](const std::string& function) {
        if (function == "BscConnect")
            world.pc.write("WELD.JBI", "mine");
    };
    EXPECT_TRUE(fetch("WELD.JBI", true));
    EXPECT_EQ(world.pc.read("WELD.JBI"), weld);
    EXPECT_EQ(fileCount(), 1u);
}

TEST_F(JobFetchTest, AnotherRobotChosenInTheLastCallsEndsTheFetch) {
    world.pc.write("WELD.JBI", "old");
    world.library.onCall = [this](const std::string& function) {
        if (function == "BscClose")
            world.session->port = 2;
    };
    EXPECT_FALSE(fetch("WELD.JBI", true));
    EXPECT_EQ(world.error(), " 29 0");
    EXPECT_EQ(world.pc.read("WELD.JBI"), "old");
    EXPECT_EQ(fileCount(), 1u);
}

TEST_F(FailingDiskTest, AnOldVersionThatCannotBeRemovedIsToldAndTheFetchIsDone) {
    files.failsRemove = true;
    world.session->DisplayMonitor = false;
    EXPECT_TRUE(fetch("WELD.JBI", true));
    EXPECT_EQ(world.pc.read("WELD.JBI"), weld);
    EXPECT_EQ(world.pc.read("WELD.JBI.replaced-1"), "old");
    EXPECT_THAT(world.boxes.texts(), ElementsAre("[WELD.JBI]; old kept as [WELD.JBI.replaced-1]"));
    EXPECT_FALSE(world.pc.has(FetchMark::fileNameFor("WELD.JBI")));
}

TEST_F(FailingDiskTest, AnotherRobotChosenWhileTheOldVersionIsToldEndsTheFetch) {
    files.failsRemove = true;
    world.boxes.whileOpen = [this] { world.session->port = 2; };
    EXPECT_FALSE(fetch("WELD.JBI", true)) << "a move would delete the original on the other robot";
    EXPECT_EQ(world.error(), " 29 0");
    EXPECT_EQ(world.pc.read("WELD.JBI"), weld);
}

/// A disk that does not tell whether a mark's program is still there.
struct UnlockedDiskTest : FailingDiskTest {
    const std::string mark = FetchMark::fileNameFor("WELD.JBI");

    UnlockedDiskTest() {
        files.knowsNoLocks = true;
        tests::EndingFiles ending(3);
        const ReplacedFile killed(ending, world.pc.path(), "WELD.JBI");
        world.pc.write("WELD.JBI", "half");
    }
};

TEST_F(UnlockedDiskTest, ALookTouchesNothingAndTellsOnce) {
    EXPECT_TRUE(world.session->settleInterruptedFetches(world.pc.path(), {mark}));
    EXPECT_FALSE(world.session->settleInterruptedFetches(world.pc.path(), {mark}));
    EXPECT_THAT(world.boxes.texts(), ElementsAre("[WELD.JBI] interrupted; check; old kept as "
                                                 "[WELD.JBI.replaced-1]"));
    EXPECT_EQ(world.pc.read("WELD.JBI"), "half");
    EXPECT_EQ(world.pc.read("WELD.JBI.replaced-1"), "old");
    EXPECT_TRUE(world.pc.has(mark));
}

TEST_F(UnlockedDiskTest, AfterItWasToldTheJobCanBeFetched) {
    EXPECT_TRUE(fetch("WELD.JBI", true));
    EXPECT_EQ(world.pc.read("WELD.JBI"), weld);
    EXPECT_EQ(world.pc.read("WELD.JBI.replaced-1"), "old");
    EXPECT_FALSE(world.pc.has(mark));
    EXPECT_EQ(fileCount(), 2u);
}

TEST_F(UnlockedDiskTest, OnlyAMarkThatWasToldIsTakenOver) {
    world.library.onCall = [this](const std::string& function) {
        if (function == "BscConnect")
            world.pc.write(FetchMark::fileNameFor("NEW.JBI"),
                           FetchMark{.name = "NEW.JBI"}.format());
    };
    world.controller().put("NEW.JBI", SessionWorld::job("NEW"));
    EXPECT_FALSE(fetch("NEW.JBI"));
    EXPECT_EQ(world.error(), " 45 0");
    EXPECT_TRUE(world.pc.has(FetchMark::fileNameFor("NEW.JBI")));
}

} // namespace
} // namespace vantrel
