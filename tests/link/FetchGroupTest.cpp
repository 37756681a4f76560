#include "link/FetchGroup.h"

#include "GroupFiles.h"
#include "SessionWorld.h"
#include "link/FetchMark.h"
#include "link/GroupMark.h"
#include "platform/Files.h"

#include <filesystem>

namespace vantrel {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using tests::SessionWorld;

/// A session that copies a list of new files from a controller.
struct FetchGroupTest : testing::Test {
    SessionWorld world;
    tests::GroupFiles files;
    const std::string mark = world.pc.path(GroupMark::fileName());

    FetchGroupTest() {
        world.services.files = &files;
        world.session = std::make_unique<Snappy>(world.services);
        world.session->path = world.pc.path();
    }

    static std::string nameOf(int number) { return "J" + std::to_string(number) + ".JBI"; }
    static std::string jobOf(int number) { return SessionWorld::job("J" + std::to_string(number)); }
    /// Jobs on the controller and in the list, by their numbers.
    void add(int first, int count) {
        for (int number = first; number < first + count; ++number) {
            world.controller().put(nameOf(number), jobOf(number));
            world.session->AddJobList(nameOf(number));
        }
    }
    /// Calls it before the library writes the file of that number, counted from 0.
    void whenReceiving(int file, const std::function<void()>& work) {
        world.library.onCall = [this, file, work](const std::string& function) {
            if (function == "BscUpLoad" && world.library.callCount("BscUpLoad") == file + 1)
                work();
        };
    }
    void whenConnecting(int file, const std::function<void()>& work) {
        world.library.onCall = [this, file, work](const std::string& function) {
            if (function == "BscConnect" && world.library.callCount("BscConnect") == file + 1)
                work();
        };
    }
    bool fetch() { return world.session->JobListUpLoad(); }
    std::vector<std::string> namesThere() const {
        std::vector<std::string> names;
        visitNames(world.pc.path(), [&names](std::string_view name) { names.emplace_back(name); });
        return names;
    }
    std::size_t filesThere() const { return namesThere().size(); }
    bool isWhole(int number) const {
        return world.pc.has(nameOf(number)) && world.pc.read(nameOf(number)) == jobOf(number);
    }
    std::vector<std::string> announced() const {
        const auto content = readFile(mark);
        const auto read = GroupMark::parse(content ? *content : std::string());
        std::vector<std::string> names;
        for (const auto& file : read ? read->files : std::vector<GroupMark::File>())
            names.push_back(file.name);
        return names;
    }
    const std::vector<EntryEnd>& ends() const { return world.session->entryEnds(); }
};

TEST_F(FetchGroupTest, ManyNewFilesCostAHandfulOfFlushes) {
    add(0, 200);
    EXPECT_TRUE(fetch());
    EXPECT_LE(files.flushes, 12);
    EXPECT_EQ(files.groups, 2);
    EXPECT_EQ(filesThere(), 200u);
    for (int number = 0; number < 200; ++number)
        EXPECT_TRUE(isWhole(number)) << number;
    EXPECT_THAT(world.boxes.shown, IsEmpty());
}

TEST_F(FetchGroupTest, NextFilesAreAnnouncedBeforeTheFirstIsReceivedAndEverybodyCanRead) {
    add(0, 103);
    std::vector<std::string> names;
    whenReceiving(0, [&] { names = announced(); });
    EXPECT_TRUE(fetch());
    ASSERT_EQ(names.size(), GroupMark::mostFiles);
    EXPECT_EQ(names.front(), "J0.JBI");
    EXPECT_EQ(names.back(), "J99.JBI");
    EXPECT_EQ(filesThere(), 103u);
}

TEST_F(FetchGroupTest, WhatHasArrivedIsSaidInTheMarkAndOnTheDiskBeforeTheMarkGoes) {
    add(0, 3);
    whenReceiving(2, [&] {
        const auto content = readFile(mark);
        const auto read = GroupMark::parse(content ? *content : std::string());
        ASSERT_TRUE(read && read->files.size() == 3);
        EXPECT_EQ(read->files[0].arrived, KnownContent::of(jobOf(0)));
        EXPECT_EQ(read->files[1].arrived, KnownContent::of(jobOf(1)));
        EXPECT_FALSE(read->files[2].arrived);
    });
    EXPECT_TRUE(fetch());
    EXPECT_FALSE(anythingExists(mark));
}

TEST_F(FetchGroupTest, LinksAndCallsAreThoseOfSingleFetches) {
    add(0, 2);
    EXPECT_TRUE(fetch());
    EXPECT_EQ(world.library.trace(),
              tests::inOrder({tests::wholeLink(world, 1, {"BscUpLoad(1, J0.JBI)"}),
                              tests::wholeLink(world, 2, {"BscUpLoad(2, J1.JBI)"})}));
}

TEST_F(FetchGroupTest, AFileThatIsThereIsNotAnnouncedAndHasItsOwnMark) {
    add(0, 4);
    world.pc.write(nameOf(2), "old");
    world.question.answers = {Answer::All};
    std::vector<std::string> names;
    bool hadOwn = false;
    world.library.onCall = [&](const std::string& function) {
        const int count = world.library.callCount("BscUpLoad");
        if (function == "BscUpLoad" && count == 1)
            names = announced();
        if (function == "BscUpLoad" && count == 3)
            hadOwn = anythingExists(world.pc.path(FetchMark::fileNameFor(nameOf(2))));
    };
    EXPECT_TRUE(fetch());
    EXPECT_THAT(names, ElementsAre("J0.JBI", "J1.JBI", "J3.JBI"));
    EXPECT_TRUE(hadOwn);
    EXPECT_TRUE(isWhole(2));
    EXPECT_EQ(filesThere(), 4u);
}

TEST_F(FetchGroupTest, WhereEverythingMayBeReplacedAnOldFileEndsNoGroup) {
    add(0, 1);
    world.pc.write(nameOf(0), "old");
    add(1, 2);
    add(3, 1);
    world.pc.write(nameOf(3), "old");
    add(4, 2);
    world.question.answers = {Answer::All};
    EXPECT_TRUE(fetch());
    EXPECT_EQ(files.groups, 1);
    for (int number = 0; number < 6; ++number)
        EXPECT_TRUE(isWhole(number)) << number;
    EXPECT_EQ(filesThere(), 6u);
}

TEST_F(FetchGroupTest, JobsOfThePCAloneAreNotAnnounced) {
    world.pc.write("LocalJob.lst", "J1\n");
    add(0, 3);
    std::vector<std::string> names;
    whenReceiving(0, [&] { names = announced(); });
    EXPECT_TRUE(fetch());
    EXPECT_THAT(names, ElementsAre("J0.JBI", "J2.JBI"));
}

TEST_F(FetchGroupTest, OneNewFileAloneHasItsOwnMark) {
    add(0, 1);
    whenReceiving(0, [&] {
        EXPECT_FALSE(anythingExists(mark));
        EXPECT_TRUE(anythingExists(world.pc.path(FetchMark::fileNameFor(nameOf(0)))));
    });
    EXPECT_TRUE(fetch());
    EXPECT_TRUE(isWhole(0));
}

TEST_F(FetchGroupTest, ASingleFetchHasItsOwnMark) {
    add(0, 3);
    EXPECT_TRUE(world.session->JobUpLoad(nameOf(1)));
    EXPECT_EQ(files.groups, 0);
    world.question.answers = {Answer::No};
    EXPECT_TRUE(fetch()) << "and a list after it";
    EXPECT_EQ(filesThere(), 3u);
}

TEST_F(FetchGroupTest, AfterTwoSecondsWhatHasArrivedIsBroughtToTheDisk) {
    add(0, 6);
    int before = 0;
    world.library.onCall = [&](const std::string& function) {
        if (function != "BscUpLoad")
            return;
        const int count = world.library.callCount("BscUpLoad");
        if (count == 3)
            files.now += std::chrono::milliseconds(1999);
        if (count == 4) {
            before = files.groups;
            files.now += std::chrono::milliseconds(1);
        }
    };
    EXPECT_TRUE(fetch());
    EXPECT_EQ(before, 1);
    EXPECT_EQ(files.groups, 2);
    EXPECT_EQ(filesThere(), 6u);
}

TEST_F(FetchGroupTest, ASecondListBeginsAnew) {
    add(0, 3);
    EXPECT_TRUE(fetch());
    world.session->JobListClear();
    add(3, 3);
    EXPECT_TRUE(fetch());
    EXPECT_EQ(files.groups, 2);
    EXPECT_EQ(filesThere(), 6u);
}

TEST_F(FetchGroupTest, LooksOfItsOwnProgramPassItOver) {
    add(0, 2);
    files.knowsNoLocks = false;
    whenReceiving(1, [&] {
        EXPECT_FALSE(world.session->settleInterruptedFetches(world.pc.path(), namesThere()));
    });
    EXPECT_TRUE(fetch());
    EXPECT_THAT(world.boxes.shown, IsEmpty());
    EXPECT_EQ(filesThere(), 2u);
}

// The mark cannot be had.

/// All files arrive, each with a mark of its own.
struct FallbackTest : FetchGroupTest {
    void expectSingly() {
        add(0, 3);
        bool wasSingle = true;
        world.library.onCall = [&](const std::string& function) {
            if (function == "BscUpLoad")
                wasSingle = wasSingle && hasOwnMark();
        };
        EXPECT_TRUE(fetch());
        EXPECT_TRUE(wasSingle);
        for (int number = 0; number < 3; ++number)
            EXPECT_TRUE(isWhole(number)) << number;
        EXPECT_THAT(world.boxes.shown, IsEmpty());
    }
    bool hasOwnMark() const {
        const int number = world.library.callCount("BscUpLoad") - 1;
        return anythingExists(world.pc.path(FetchMark::fileNameFor(nameOf(number))));
    }
};

TEST_F(FallbackTest, WhereAnotherProgramFetchesIntoTheFolder) {
    auto others = HeldFile::makeReadable(mark);
    ASSERT_TRUE(others && others->write(GroupMark{{{.name = "X.JBI"}}}.format()));
    expectSingly();
    EXPECT_TRUE(anythingExists(mark));
}

TEST_F(FallbackTest, ButNotForAFileThatTheOtherProgramIsAboutToFetch) {
    add(0, 3);
    auto others = HeldFile::makeReadable(mark);
    ASSERT_TRUE(others && others->write(GroupMark{{{.name = nameOf(1)}}}.format()));
    EXPECT_FALSE(fetch());
    EXPECT_EQ(world.error(), " 45 1");
    EXPECT_EQ(world.library.callCount("BscUpLoad"), 1);
    EXPECT_EQ(world.library.openLinks(), 0);
    EXPECT_TRUE(others->append(GroupMark::arrivedLine(0, KnownContent::of("x"))));
    world.question.answers = {Answer::No};
    EXPECT_TRUE(fetch()) << "as soon as it has arrived";
    EXPECT_TRUE(isWhole(0) && isWhole(1) && isWhole(2));
}

TEST_F(FallbackTest, WhereAMarkLiesThatNobodyCouldSettle) {
    whenConnecting(0, [&] { world.pc.write(GroupMark::fileName(), "?"); });
    const auto connect = world.library.onCall;
    add(0, 2);
    EXPECT_TRUE(fetch());
    EXPECT_TRUE(isWhole(0) && isWhole(1));
    EXPECT_EQ(world.pc.read(GroupMark::fileName()), "?");
}

TEST_F(FallbackTest, WhereTheMarkCannotBeMade) {
    files.failsHoldReadable = true;
    expectSingly();
}

TEST_F(FallbackTest, WhereTheDiskKnowsNoLocks) {
    files.knowsNoLocks = true;
    expectSingly();
    EXPECT_FALSE(anythingExists(mark));
}

TEST_F(FallbackTest, BehindALineThatCannotBeAdded) {
    add(0, 4);
    files.failsAppend = true;
    std::vector<bool> groups;
    world.library.onCall = [&](const std::string& function) {
        if (function == "BscUpLoad")
            groups.push_back(anythingExists(mark));
    };
    EXPECT_TRUE(fetch());
    EXPECT_THAT(groups, ElementsAre(true, false, false, false));
    EXPECT_EQ(filesThere(), 4u);
}

TEST_F(FallbackTest, AMarkThatStaysTellsOfNothing) {
    add(0, 3);
    files.failsRemoveMark = true;
    EXPECT_TRUE(fetch());
    EXPECT_TRUE(isWhole(0) && isWhole(1) && isWhole(2));
    EXPECT_EQ(world.pc.read(GroupMark::fileName()), "");
}

// A file does not reach the disk.

TEST_F(FetchGroupTest, AFileThatDoesNotReachTheDiskHasFailedAlone) {
    add(0, 4);
    files.lost = {nameOf(2)};
    EXPECT_FALSE(fetch());
    EXPECT_EQ(world.error(), "BscUpLoad 46 2");
    EXPECT_EQ(world.session->failedIndex(), 2);
    EXPECT_THAT(ends(),
                ElementsAre(EntryEnd::Done, EntryEnd::Done, EntryEnd::Failed, EntryEnd::Done));
    EXPECT_FALSE(world.pc.has(nameOf(2)));
    EXPECT_TRUE(isWhole(0) && isWhole(1) && isWhole(3));
    EXPECT_EQ(filesThere(), 3u);
    EXPECT_THAT(world.boxes.shown, IsEmpty()) << "the caller tells of the one in the record";
}

TEST_F(FetchGroupTest, OthersThatDoNotReachItEitherAreToldByName) {
    add(0, 3);
    files.lost = {nameOf(0), nameOf(2)};
    EXPECT_FALSE(fetch());
    EXPECT_EQ(world.error(), "BscUpLoad 46 0");
    EXPECT_THAT(ends(), ElementsAre(EntryEnd::Failed, EntryEnd::Done, EntryEnd::Failed));
    EXPECT_THAT(world.boxes.texts(), ElementsAre("[J2.JBI] not flushed"));
    EXPECT_EQ(filesThere(), 1u);
}

TEST_F(FetchGroupTest, AFailureThatIsFoundInTheMiddleEndsTheListBeforeTheNextFile) {
    add(0, 5);
    files.lost = {nameOf(1)};
    whenReceiving(2, [&] { files.now += std::chrono::seconds(3); });
    EXPECT_FALSE(fetch());
    EXPECT_EQ(world.error(), "BscUpLoad 46 1");
    EXPECT_EQ(world.library.callCount("BscUpLoad"), 3);
    EXPECT_THAT(ends(), ElementsAre(EntryEnd::Done, EntryEnd::Failed, EntryEnd::Done,
                                    EntryEnd::NotTried, EntryEnd::NotTried));
    EXPECT_EQ(filesThere(), 2u);
    EXPECT_THAT(world.boxes.shown, IsEmpty());
}

TEST_F(FetchGroupTest, AFailureThatIsFoundAfterCancelIsAFailure) {
    add(0, 3);
    files.lost = {nameOf(0)};
    whenReceiving(1, [&] { world.panel.pressCancel(); });
    EXPECT_FALSE(fetch());
    EXPECT_EQ(world.error(), "BscUpLoad 46 0");
    EXPECT_FALSE(world.session->wasCancelled());
    EXPECT_THAT(ends(), ElementsAre(EntryEnd::Failed, EntryEnd::Done, EntryEnd::NotTried));
}

TEST_F(FetchGroupTest, BesideAnotherFailureItIsToldByName) {
    add(0, 2);
    world.session->AddJobList("GONE.JBI");
    files.lost = {nameOf(1)};
    EXPECT_FALSE(fetch());
    EXPECT_EQ(world.error(), "BscUpLoad 1200 2");
    EXPECT_THAT(ends(), ElementsAre(EntryEnd::Done, EntryEnd::Failed, EntryEnd::Failed));
    EXPECT_THAT(world.boxes.texts(), ElementsAre("[J1.JBI] not flushed"));
}

TEST_F(FetchGroupTest, WhatSomebodyHasSavedUnderItsNameMeanwhileStays) {
    add(0, 2);
    files.lost = {nameOf(0)};
    whenReceiving(1, [&] { world.pc.write(nameOf(0), "his own work"); });
    EXPECT_FALSE(fetch());
    EXPECT_EQ(world.pc.read(nameOf(0)), "his own work");
    EXPECT_THAT(world.boxes.texts(), ElementsAre("[J0.JBI] incomplete"));
}

TEST_F(FetchGroupTest, OneThatCannotBeRemovedEitherIsTold) {
    add(0, 2);
    files.lost = {nameOf(0)};
    files.failsRemove = true;
    EXPECT_FALSE(fetch());
    EXPECT_THAT(world.boxes.texts(), ElementsAre("[J0.JBI] incomplete"));
}

// The list ends early.

TEST_F(FetchGroupTest, CancelKeepsWhatHasArrivedAndTheMarkGoes) {
    add(0, 4);
    whenReceiving(1, [&] { world.panel.pressCancel(); });
    EXPECT_FALSE(fetch());
    EXPECT_EQ(world.error(), " 3 1");
    EXPECT_TRUE(isWhole(0) && isWhole(1));
    EXPECT_EQ(filesThere(), 2u);
}

TEST_F(FetchGroupTest, AFailedFetchLeavesNothingOfItAndTheOthersWhole) {
    add(0, 4);
    world.library.disturb({.function = "BscUpLoad", .call = 3, .code = 3010, .cutTo = 5});
    EXPECT_FALSE(fetch());
    EXPECT_EQ(world.error(), "BscUpLoad 3010 2");
    EXPECT_THAT(ends(),
                ElementsAre(EntryEnd::Done, EntryEnd::Done, EntryEnd::Failed, EntryEnd::NotTried));
    EXPECT_TRUE(isWhole(0) && isWhole(1));
    EXPECT_EQ(filesThere(), 2u);
    EXPECT_THAT(world.boxes.shown, IsEmpty());
}

TEST_F(FetchGroupTest, AnEmptyFileHasNotArrived) {
    add(0, 2);
    world.library.disturb({.function = "BscUpLoad", .code = 0, .cutTo = 0});
    EXPECT_FALSE(fetch());
    EXPECT_EQ(world.error(), "BscUpLoad 25 0");
    EXPECT_EQ(filesThere(), 0u);
}

TEST_F(FetchGroupTest, APartThatCannotBeRemovedIsTold) {
    add(0, 2);
    files.failsRemove = true;
    world.library.disturb({.function = "BscUpLoad", .code = 3010, .cutTo = 5});
    EXPECT_FALSE(fetch());
    EXPECT_EQ(world.error(), "BscUpLoad 3010 0");
    EXPECT_THAT(world.boxes.texts(), ElementsAre("[J0.JBI] incomplete"));
}

TEST_F(FetchGroupTest, AnotherRobotChosenInTheLastCallsEndsTheList) {
    add(0, 3);
    world.library.onCall = [this](const std::string& function) {
        if (function == "BscClose" && world.library.callCount("BscClose") == 2)
            world.session->port = 2;
    };
    EXPECT_FALSE(fetch());
    EXPECT_EQ(world.error(), " 29 1");
    EXPECT_TRUE(isWhole(0));
    EXPECT_EQ(filesThere(), 1u);
}

// A file comes after it was announced.

TEST_F(FetchGroupTest, BeforeAQuestionEverythingIsOnTheDiskAndNothingAnnounced) {
    add(0, 4);
    whenReceiving(1, [&] { world.pc.write(nameOf(2), "another program's"); });
    world.question.answers = {Answer::No};
    world.question.whileOpen = [&] {
        EXPECT_FALSE(anythingExists(mark)) << "a program that ends now has nothing put away";
        EXPECT_TRUE(isWhole(0) && isWhole(1));
    };
    EXPECT_TRUE(fetch());
    EXPECT_EQ(world.question.questions.size(), 1u);
    EXPECT_THAT(ends(),
                ElementsAre(EntryEnd::Done, EntryEnd::Done, EntryEnd::Refused, EntryEnd::Done));
    EXPECT_EQ(world.pc.read(nameOf(2)), "another program's");
    EXPECT_TRUE(isWhole(3));
    EXPECT_EQ(filesThere(), 4u);
}

TEST_F(FetchGroupTest, OneThatComesWhileConnectingIsNotReplacedUnasked) {
    add(0, 3);
    whenConnecting(1, [&] { world.pc.write(nameOf(1), "mine"); });
    EXPECT_FALSE(fetch());
    EXPECT_EQ(world.error(), " 36 1");
    EXPECT_EQ(world.pc.read(nameOf(1)), "mine");
    EXPECT_EQ(filesThere(), 2u);
    EXPECT_EQ(world.library.openLinks(), 0);
}

TEST_F(FetchGroupTest, OneThatComesWhileConnectingIsReplacedAfterAllByItself) {
    add(0, 4);
    world.pc.write(nameOf(0), "old");
    world.question.answers = {Answer::All};
    bool hadGroup = true;
    world.library.onCall = [&](const std::string& function) {
        if (function == "BscConnect" && world.library.callCount("BscConnect") == 3)
            world.pc.write(nameOf(2), "mine");
        if (function == "BscUpLoad" && world.library.callCount("BscUpLoad") == 3)
            hadGroup = anythingExists(mark);
    };
    EXPECT_TRUE(fetch());
    EXPECT_FALSE(hadGroup);
    for (int number = 0; number < 4; ++number)
        EXPECT_TRUE(isWhole(number)) << number;
    EXPECT_EQ(filesThere(), 4u);
}

TEST_F(FetchGroupTest, NothingIsFetchedOverOneWhenTheGroupBeforeItHasFailed) {
    add(0, 4);
    world.pc.write(nameOf(0), "old");
    world.question.answers = {Answer::All};
    files.lost = {nameOf(1)};
    whenConnecting(2, [&] { world.pc.write(nameOf(2), "mine"); });
    EXPECT_FALSE(fetch());
    EXPECT_EQ(world.error(), "BscUpLoad 46 1");
    EXPECT_THAT(ends(), ElementsAre(EntryEnd::Done, EntryEnd::Failed, EntryEnd::NotTried,
                                    EntryEnd::NotTried));
    EXPECT_EQ(world.pc.read(nameOf(2)), "mine");
    EXPECT_EQ(world.library.openLinks(), 0);
}

TEST_F(FetchGroupTest, AFileOfTheListItselfIsReplacedOnlyAfterItIsOnTheDisk) {
    add(0, 1);
    world.pc.write(nameOf(0), "old");
    add(1, 2);
    world.session->AddJobList(nameOf(1));
    world.question.answers = {Answer::All};
    bool hadGroup = true;
    whenReceiving(3, [&] { hadGroup = anythingExists(mark); });
    EXPECT_TRUE(fetch());
    EXPECT_FALSE(hadGroup);
    EXPECT_TRUE(isWhole(1));
    EXPECT_EQ(filesThere(), 3u);
}

TEST_F(FetchGroupTest, WhatAnotherMarkTellsOfIsNotAnnounced) {
    add(0, 3);
    std::vector<std::string> names;
    world.library.onCall = [&](const std::string& function) {
        if (function == "BscConnect" && world.library.callCount("BscConnect") == 1)
            world.pc.write(FetchMark::fileNameFor(nameOf(1)),
                           FetchMark{.name = nameOf(1)}.format());
        if (function == "BscUpLoad" && world.library.callCount("BscUpLoad") == 1)
            names = announced();
    };
    EXPECT_FALSE(fetch());
    EXPECT_THAT(names, ElementsAre("J0.JBI", "J2.JBI"));
    EXPECT_EQ(world.error(), " 45 1");
}

} // namespace
} // namespace vantrel
