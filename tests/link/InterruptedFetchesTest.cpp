#include "link/InterruptedFetches.h"

#include "EndingFiles.h"
#include "SessionWorld.h"
#include "link/FetchFiles.h"
#include "link/FetchMark.h"
#include "link/ReplacedFile.h"
#include "link/ShownText.h"
#include "platform/Files.h"

#include <filesystem>
#include <functional>

namespace vantrel {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

constexpr const char* job = "A.JBI";

/// A PC folder with what a program left in it that ended in the middle of a fetch.
struct InterruptedFetchesTest : testing::Test {
    tests::SessionWorld world;
    FetchFiles disk;
    InterruptedFetches interrupted{disk, world.messages, world.talk};

    std::vector<std::string> names() const {
        std::vector<std::string> all;
        visitNames(world.pc.path(), [&all](std::string_view name) { all.emplace_back(name); });
        return all;
    }
    std::string contentOf(const std::string& name) const {
        return world.pc.has(name) ? world.pc.read(name) : "";
    }
    bool settle() { return interrupted.settle(world.pc.path(), names()); }
    bool settleAfterStart(FetchFiles& files) {
        return InterruptedFetches(files, world.messages, world.talk)
            .settle(world.pc.path(), names());
    }
    std::string told() const {
        return world.boxes.shown.empty() ? "" : world.boxes.shown.back().text;
    }
    /// The mark of a fetch that ended after the library wrote `part`, if anything.
    void leave(const std::string& part) {
        tests::EndingFiles files(world.pc.has(job) ? 3 : 2);
        const ReplacedFile file(files, world.pc.path(), job);
        ASSERT_EQ(file.problem(), 0);
        if (!part.empty())
            world.pc.write(job, part);
    }
};

TEST_F(InterruptedFetchesTest, TheOldFileComesBackAndThePartIsPutAway) {
    world.pc.write(job, "old");
    leave("ne");
    EXPECT_TRUE(settle());
    EXPECT_EQ(contentOf(job), "old");
    EXPECT_EQ(contentOf("A.JBI.partial-1"), "ne");
    EXPECT_THAT(names(), UnorderedElementsAre(job, "A.JBI.partial-1"));
    EXPECT_EQ(told(), "[A.JBI] interrupted; old back; part kept as [A.JBI.partial-1]");
    EXPECT_EQ(world.boxes.shown.at(0).icon, BoxIcon::Exclamation);
}

TEST_F(InterruptedFetchesTest, APartWithoutAnOldFileIsNoJobAnyMore) {
    leave("ne");
    EXPECT_TRUE(settle());
    EXPECT_THAT(names(), ElementsAre("A.JBI.partial-1"));
    EXPECT_EQ(told(), "[A.JBI] interrupted; part kept as [A.JBI.partial-1]");
}

TEST_F(InterruptedFetchesTest, NothingArrivedIsToldToo) {
    leave("");
    EXPECT_TRUE(settle());
    EXPECT_THAT(names(), IsEmpty());
    EXPECT_EQ(told(), "[A.JBI] interrupted; nothing");
}

TEST_F(InterruptedFetchesTest, ASecondLookFindsNothing) {
    leave("ne");
    EXPECT_TRUE(settle());
    EXPECT_FALSE(settle());
    EXPECT_EQ(world.boxes.shown.size(), 1u);
}

TEST_F(InterruptedFetchesTest, AFetchThatIsRunningIsLeftAlone) {
    world.pc.write(job, "old");
    const ReplacedFile running(disk, world.pc.path(), job);
    world.pc.write(job, "ne");
    EXPECT_FALSE(settle());
    EXPECT_EQ(contentOf(job), "ne");
    EXPECT_THAT(world.boxes.shown, IsEmpty());
}

/// Events that the box lets in look at the folder as well.
TEST_F(InterruptedFetchesTest, AnotherLookWhileTheOperatorReadsTellsNothingAgain) {
    leave("ne");
    tests::FakeMessageBoxes boxes;
    OperatorTalk talk(world.panel, world.question, boxes);
    boxes.whileOpen = [this] {
        EXPECT_FALSE(settleAfterStart(disk));
        EXPECT_TRUE(world.pc.has(FetchMark::fileNameFor(job))) << "until he has read it";
    };
    EXPECT_TRUE(InterruptedFetches(disk, world.messages, talk).settle(world.pc.path(), names()));
    EXPECT_EQ(boxes.shown.size(), 1u);
    EXPECT_THAT(world.boxes.shown, IsEmpty());
}

TEST_F(InterruptedFetchesTest, WhatTheOperatorSavedUnderTheNameMeanwhileIsKept) {
    world.pc.write(job, "old");
    leave("");
    world.pc.write(job, "his own work");
    EXPECT_TRUE(settle());
    EXPECT_EQ(contentOf(job), "old");
    EXPECT_EQ(contentOf("A.JBI.partial-1"), "his own work");
    EXPECT_THAT(told(), HasSubstr("[A.JBI.partial-1]"));
}

TEST_F(InterruptedFetchesTest, AnOldFileThatIsNotWhatItWasReplacesNothing) {
    world.pc.write(job, "old");
    leave("ne");
    world.pc.write("A.JBI.replaced-1", "changed");
    EXPECT_TRUE(settle());
    EXPECT_EQ(contentOf(job), "ne");
    EXPECT_EQ(contentOf("A.JBI.replaced-1"), "changed");
    EXPECT_EQ(told(), "[A.JBI] interrupted; check; old kept as [A.JBI.replaced-1]");
}

TEST_F(InterruptedFetchesTest, WithoutItsOldFileAFileStaysAndIsTold) {
    world.pc.write(job, "old");
    leave("ne");
    std::filesystem::remove(world.pc.path("A.JBI.replaced-1"));
    EXPECT_TRUE(settle());
    EXPECT_THAT(names(), ElementsAre(job));
    EXPECT_EQ(told(), "[A.JBI] interrupted; check");
}

TEST_F(InterruptedFetchesTest, AFolderInTheFilesPlaceStays) {
    world.pc.write(job, "old");
    leave("");
    world.pc.makeFolder(job);
    EXPECT_TRUE(settle());
    EXPECT_TRUE(isFolder(world.pc.path(job)));
    EXPECT_EQ(contentOf("A.JBI.replaced-1"), "old");
    EXPECT_EQ(told(), "[A.JBI] interrupted; check; old kept as [A.JBI.replaced-1]");
}

TEST_F(InterruptedFetchesTest, AMarkThatCannotBeRemovedIsToldOnce) {
    tests::FailingFiles failing;
    failing.failsRemoveMark = true;
    InterruptedFetches stuck(failing, world.messages, world.talk);
    leave("ne");
    EXPECT_TRUE(stuck.settle(world.pc.path(), names()));
    EXPECT_FALSE(stuck.settle(world.pc.path(), names()));
    EXPECT_EQ(world.boxes.shown.size(), 1u);
}

TEST_F(InterruptedFetchesTest, ANameThatIsOnlyNotKnownToBeOnTheDiskIsToldAsItIs) {
    tests::FailingFiles failing;
    failing.failsFolderFlush = true;
    world.pc.write(job, "old");
    leave("ne");
    EXPECT_TRUE(settleAfterStart(failing));
    EXPECT_EQ(contentOf(job), "old");
    EXPECT_EQ(contentOf("A.JBI.partial-1"), "ne");
    EXPECT_EQ(told(), "[A.JBI] interrupted; old back; part kept as [A.JBI.partial-1]");
}

TEST_F(InterruptedFetchesTest, APartWithoutAnOldFileIsToldByItsNewNameTooWhereThatIsNotKnown) {
    tests::FailingFiles failing;
    failing.failsFolderFlush = true;
    leave("ne");
    EXPECT_TRUE(settleAfterStart(failing));
    EXPECT_THAT(names(), ElementsAre("A.JBI.partial-1"));
    EXPECT_EQ(told(), "[A.JBI] interrupted; part kept as [A.JBI.partial-1]");
}

TEST_F(InterruptedFetchesTest, WhatIsFetchedAgainAfterItWasToldIsToldAnew) {
    tests::FailingFiles failing;
    failing.failsRemoveMark = true;
    InterruptedFetches stuck(failing, world.messages, world.talk);
    leave("ne");
    EXPECT_TRUE(stuck.settle(world.pc.path(), names()));
    stuck.begin(world.pc.path(), job);
    EXPECT_FALSE(stuck.isTold(world.pc.path(), job));
    stuck.end();
    EXPECT_TRUE(stuck.settle(world.pc.path(), names()));
    EXPECT_EQ(world.boxes.shown.size(), 2u);
}

TEST_F(InterruptedFetchesTest, TheProgramsOwnFetchIsNotInterrupted) {
    leave("ne");
    interrupted.begin(world.pc.path(), job);
    EXPECT_FALSE(settle()) << "also where no lock says whose mark it is";
    interrupted.end();
    EXPECT_TRUE(settle());
}

TEST_F(InterruptedFetchesTest, AnotherFileOfTheOldOnesSizeIsNotTheOldVersion) {
    world.pc.write(job, "old");
    leave("ne");
    world.pc.write("A.JBI.replaced-1", "new");
    EXPECT_TRUE(settle());
    EXPECT_EQ(contentOf(job), "ne");
    EXPECT_EQ(contentOf("A.JBI.replaced-1"), "new");
    EXPECT_EQ(told(), "[A.JBI] interrupted; check; old kept as [A.JBI.replaced-1]");
}

TEST_F(InterruptedFetchesTest, SoManyThatNobodyReadsThemAreToldInTurn) {
    constexpr int all = 12;
    for (int number = 0; number < all; ++number) {
        tests::EndingFiles files(2);
        const ReplacedFile file(files, world.pc.path(), std::to_string(number) + ".JBI");
    }
    EXPECT_TRUE(settle());
    EXPECT_EQ(names().size(), 2u);
    EXPECT_TRUE(settle());
    EXPECT_TRUE(names().empty());
    EXPECT_FALSE(settle());
}

TEST_F(InterruptedFetchesTest, WhatLiesAsideHasANameThatAMessageShowsWhole) {
    for (const std::size_t length : {10, 179, 180, 181, 199, 200, 201, 250}) {
        const std::string name(length, 'N');
        const std::string aside = freeSpareName(world.pc.path(), name, replacedSuffix);
        EXPECT_EQ(shownText(aside), aside);
    }
}

TEST_F(InterruptedFetchesTest, SeveralAreToldInOneBox) {
    for (const char* name : {"A.JBI", "B.JBI"}) {
        tests::EndingFiles files(2);
        const ReplacedFile file(files, world.pc.path(), name);
    }
    EXPECT_TRUE(settle());
    ASSERT_EQ(world.boxes.shown.size(), 1u);
    EXPECT_THAT(told(), HasSubstr("[A.JBI]"));
    EXPECT_THAT(told(), HasSubstr("\n["));
    EXPECT_THAT(told(), HasSubstr("[B.JBI]"));
}

/// What lies under a mark's name and is none, or not this one's.
std::vector<std::string> damagedMarks() {
    const FetchMark other{.name = "B.JBI"};
    return {"Vantrel fetch 1\n../A.JBI\n\n0\n0\nend\n",
            "Vantrel fetch 1\nA.JBI\nB.JBI\n0\n0\nend\n",
            "Vantrel fetch 1\nA.JBI\n../A.JBI.replaced-1\n0\n0\nend\n",
            "Vantrel fetch 1\nA.JBI\n\n-1\n0\nend\n",
            "Vantrel fetch 1\nA.JBI\n\n0\n99999999999999999999999\nend\n",
            "Vantrel fetch 2\nA.JBI\n\n0\n0\nmore\nend\n",
            "somebody's notes",
            other.format()};
}

TEST_F(InterruptedFetchesTest, WhatIsNoMarkIsLeftAloneAndToldOnceByName) {
    const std::string mark = FetchMark::fileNameFor(job);
    world.pc.write(job, "mine");
    for (const std::string& content : damagedMarks()) {
        SCOPED_TRACE(content);
        world.pc.write(mark, content);
        InterruptedFetches look(disk, world.messages, world.talk);
        EXPECT_TRUE(look.settle(world.pc.path(), names()));
        EXPECT_FALSE(look.settle(world.pc.path(), names()));
        EXPECT_THAT(world.boxes.texts(), ElementsAre("[A.JBI] mark unusable: [" + mark + "]"));
        EXPECT_EQ(contentOf(mark), content);
        world.boxes.shown.clear();
    }
    EXPECT_EQ(contentOf(job), "mine");
}

TEST_F(InterruptedFetchesTest, AFolderUnderAMarksNameIsToldOnce) {
    const std::string mark = FetchMark::fileNameFor(job);
    world.pc.write(job, "mine");
    world.pc.makeFolder(mark);
    EXPECT_TRUE(settle());
    EXPECT_FALSE(settle());
    EXPECT_THAT(world.boxes.texts(), ElementsAre("[A.JBI] mark unusable: [" + mark + "]"));
}

TEST_F(InterruptedFetchesTest, AMarkThatMayNotBeOpenedIsToldOnce) {
    const std::string mark = FetchMark::fileNameFor(job);
    world.pc.write(job, "half");
    world.pc.write(mark, FetchMark{.name = job}.format());
    tests::FailingFiles failing;
    failing.failsTake = true;
    InterruptedFetches denied(failing, world.messages, world.talk);
    EXPECT_TRUE(denied.settle(world.pc.path(), names()));
    EXPECT_FALSE(denied.settle(world.pc.path(), names()));
    EXPECT_THAT(world.boxes.texts(), ElementsAre("[A.JBI] mark unusable: [" + mark + "]"));
    EXPECT_EQ(contentOf(job), "half");
}

TEST_F(InterruptedFetchesTest, AMarkThatCanBeReadAtLastIsSettled) {
    const std::string mark = FetchMark::fileNameFor(job);
    world.pc.write(job, "half");
    world.pc.write("A.JBI.replaced-1", "old");
    FetchMark file{.name = job, .aside = "A.JBI.replaced-1"};
    file.describeOld("old");
    world.pc.write(mark, file.format());
    tests::FailingFiles failing;
    failing.failsTake = true;
    InterruptedFetches fetches(failing, world.messages, world.talk);
    EXPECT_TRUE(fetches.settle(world.pc.path(), names()));
    EXPECT_EQ(fetches.forbidsSending(world.pc.path(), job), session_code::markUnusable);
    failing.failsTake = false;
    EXPECT_EQ(fetches.forbidsSending(world.pc.path(), job), session_code::fileNotReadable);
    EXPECT_TRUE(fetches.settle(world.pc.path(), names()));
    EXPECT_EQ(contentOf(job), "old");
    EXPECT_EQ(fetches.forbidsSending(world.pc.path(), job), 0);
}

TEST_F(InterruptedFetchesTest, ATornMarkThatCannotBeRemovedIsToldOnce) {
    const std::string mark = FetchMark::fileNameFor(job);
    world.pc.write(job, "mine");
    world.pc.write(mark, "Vant");
    tests::FailingFiles failing;
    failing.failsRemoveMark = true;
    InterruptedFetches stuck(failing, world.messages, world.talk);
    EXPECT_TRUE(stuck.settle(world.pc.path(), names()));
    EXPECT_FALSE(stuck.settle(world.pc.path(), names()));
    EXPECT_THAT(world.boxes.texts(), ElementsAre("[A.JBI] mark unusable: [" + mark + "]"));
}

TEST_F(InterruptedFetchesTest, ADamagedMarksFileIsFoundByItsOldVersionToo) {
    const std::string mark = FetchMark::fileNameFor(job);
    world.pc.write("A.JBI.replaced-1", "old");
    world.pc.write(mark, "?");
    EXPECT_TRUE(settle());
    EXPECT_EQ(told(), "[A.JBI] mark unusable: [" + mark + "]; old kept as [A.JBI.replaced-1]");
}

TEST_F(InterruptedFetchesTest, ADamagedMarkWithoutAFileIsToldByItsOwnName) {
    const std::string mark = FetchMark::fileNameFor(job);
    world.pc.write("B.JBI", "another");
    world.pc.write(mark, "?");
    EXPECT_TRUE(settle());
    EXPECT_EQ(told(), "[" + mark + "] mark of nothing");
}

TEST_F(InterruptedFetchesTest, ADamagedMarkIsToldBesideAWholeOne) {
    leave("ne");
    const std::string mark = FetchMark::fileNameFor("B.JBI");
    world.pc.write("B.JBI", "mine");
    world.pc.write(mark, "?");
    EXPECT_TRUE(settle());
    ASSERT_EQ(world.boxes.shown.size(), 1u);
    EXPECT_THAT(told(), HasSubstr("[A.JBI] interrupted; part kept as [A.JBI.partial-1]"));
    EXPECT_THAT(told(), HasSubstr("[B.JBI] mark unusable: [" + mark + "]"));
    EXPECT_FALSE(settle());
}

/// A fetch of which every step can be the last. True when it succeeded.
bool fetch(tests::EndingFiles& files, const tests::TemporaryFolder& folder, bool arrives) {
    ReplacedFile file(files, folder.path(), job);
    if (file.problem() != 0)
        return false;
    if (files.step())
        folder.write(job, "ne");
    if (arrives && files.step())
        folder.write(job, "new");
    return arrives && !files.hasEnded() && file.keep() == 0;
}

struct EndRow {
    bool hasOld;
    bool arrives;
};

class EndedProgramTest : public InterruptedFetchesTest, public testing::WithParamInterface<EndRow> {
  protected:
    static constexpr int steps = 10; ///< more than a fetch or a look has

    void prepare() {
        for (const std::string& name : names())
            std::filesystem::remove(world.pc.path(name));
        world.boxes.shown.clear();
        if (GetParam().hasOld)
            world.pc.write(job, "old");
    }
    void expectSettled(bool succeeded) {
        const std::string before = GetParam().hasOld ? "old" : "";
        EXPECT_EQ(contentOf(job), succeeded ? "new" : before);
        for (const std::string& name : names())
            EXPECT_FALSE(FetchMark::isFileName(name)) << name;
    }
};

TEST_P(EndedProgramTest, LeavesNothingHalfWhereverItEnds) {
    for (int step = 0; step <= steps; ++step) {
        SCOPED_TRACE(step);
        prepare();
        tests::EndingFiles files(step);
        const bool succeeded = fetch(files, world.pc, GetParam().arrives);
        const bool wasHalf = contentOf(job) == "ne" || (contentOf(job) == "new" && !succeeded);
        settleAfterStart(disk);
        expectSettled(succeeded);
        EXPECT_EQ(wasHalf, told().find("[A.JBI.partial-1]") != std::string::npos);
    }
}

TEST_P(EndedProgramTest, LeavesNothingHalfWhenItEndsInTheMiddleOfMendingEither) {
    for (int step = 0; step <= steps; ++step)
        for (int mending = 0; mending <= steps; ++mending) {
            SCOPED_TRACE(std::to_string(step) + " " + std::to_string(mending));
            prepare();
            tests::EndingFiles files(step);
            const bool succeeded = fetch(files, world.pc, GetParam().arrives);
            tests::EndingFiles second(mending);
            settleAfterStart(second);
            settleAfterStart(disk);
            expectSettled(succeeded);
        }
}

INSTANTIATE_TEST_SUITE_P(Fetches, EndedProgramTest,
                         testing::Values(EndRow{true, true}, EndRow{true, false},
                                         EndRow{false, true}, EndRow{false, false}));

TEST_F(InterruptedFetchesTest, ATornMarkGoesWithoutAWord) {
    const std::string name = FetchMark::fileNameFor(job);
    world.pc.write(job, "mine");
    for (const std::string& content :
         {std::string(), std::string("Vant"), std::string("Vantrel fetch 1\nA.JBI\n"),
          std::string(100, '\0')}) {
        world.pc.write(name, content);
        EXPECT_FALSE(settle()) << content;
        EXPECT_FALSE(world.pc.has(name)) << content;
    }
    EXPECT_EQ(contentOf(job), "mine");
    EXPECT_THAT(world.boxes.shown, IsEmpty());
}

TEST_F(InterruptedFetchesTest, SpellingsHaveOneMarkWhereTheyAreOneFile) {
    world.pc.write("weld.jbi", "half");
    const bool isOneFile = anythingExists(world.pc.path("WELD.JBI"));
    EXPECT_EQ(FetchMark::fileNameFor("weld.jbi") == FetchMark::fileNameFor("WELD.JBI"), isOneFile);
    world.pc.write(FetchMark::fileNameFor("weld.jbi"), FetchMark{.name = "weld.jbi"}.format());
    EXPECT_EQ(interrupted.forbidsSending(world.pc.path(), "WELD.JBI") != 0, isOneFile);
}

} // namespace
} // namespace vantrel
