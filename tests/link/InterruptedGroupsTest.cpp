#include "EndingFiles.h"
#include "GroupFiles.h"
#include "SessionWorld.h"
#include "base/PathRules.h"
#include "link/FetchMark.h"
#include "link/GroupMark.h"
#include "link/InterruptedFetches.h"
#include "link/SessionErrorRecord.h"
#include "platform/Files.h"

#include <algorithm>
#include <filesystem>
#include <set>

namespace vantrel {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

/// A PC folder with what a program left in it that ended while it fetched a group of files.
struct InterruptedGroupsTest : testing::Test {
    tests::SessionWorld world;
    FetchFiles disk;
    InterruptedFetches interrupted{disk, world.messages, world.talk};
    const std::string mark = GroupMark::fileName();

    std::vector<std::string> names() const {
        std::vector<std::string> all;
        visitNames(world.pc.path(), [&all](std::string_view name) { all.emplace_back(name); });
        return all;
    }
    std::string contentOf(const std::string& name) const {
        return world.pc.has(name) ? world.pc.read(name) : "";
    }
    bool settle() { return interrupted.settle(world.pc.path(), names()); }
    /// The mark of these files; of the first ones has arrived what `arrived` says.
    void leave(const std::vector<std::string>& files, const std::vector<std::string>& arrived) {
        world.pc.write(mark, announcementOf(files) + linesOf(arrived));
    }
    static std::string announcementOf(const std::vector<std::string>& files) {
        GroupMark group;
        for (const std::string& name : files)
            group.files.push_back({.name = name});
        return group.format();
    }
    static std::string linesOf(const std::vector<std::string>& arrived) {
        std::string lines;
        for (std::size_t file = 0; file < arrived.size(); ++file)
            lines += GroupMark::arrivedLine(file, KnownContent::of(arrived[file]));
        return lines;
    }
    std::int16_t forbids(const std::string& name) {
        return interrupted.forbidsSending(world.pc.path(), name);
    }
};

TEST_F(InterruptedGroupsTest, WhatHasArrivedStaysWithoutAWordAndIsBroughtToTheDisk) {
    world.pc.write("A.JBI", "new a");
    world.pc.write("B.JBI", "new b");
    leave({"A.JBI", "B.JBI", "C.JBI"}, {"new a", "new b"});
    tests::GroupFiles files;
    InterruptedFetches look(files, world.messages, world.talk);
    EXPECT_FALSE(look.settle(world.pc.path(), names()));
    EXPECT_THAT(names(), UnorderedElementsAre("A.JBI", "B.JBI"));
    EXPECT_THAT(world.boxes.shown, IsEmpty());
    EXPECT_GE(files.flushes, 2) << "the power may go behind the mark";
}

TEST_F(InterruptedGroupsTest, WhatIsNotSaidToHaveArrivedIsPutAwayAndTold) {
    world.pc.write("A.JBI", "new a");
    world.pc.write("B.JBI", "ne");
    leave({"A.JBI", "B.JBI", "C.JBI"}, {"new a"});
    EXPECT_TRUE(settle());
    EXPECT_THAT(names(), UnorderedElementsAre("A.JBI", "B.JBI.partial-1"));
    EXPECT_THAT(world.boxes.texts(),
                ElementsAre("[B.JBI] interrupted; part kept as [B.JBI.partial-1]"));
    EXPECT_FALSE(settle());
}

TEST_F(InterruptedGroupsTest, WhatIsNotWhatArrivedStaysAndIsTold) {
    world.pc.write("A.JBI", "");
    world.pc.write("B.JBI", "edited");
    leave({"A.JBI", "B.JBI", "C.JBI"}, {"new a", "new b", "new c"});
    EXPECT_TRUE(settle());
    EXPECT_THAT(names(), UnorderedElementsAre("A.JBI", "B.JBI"));
    EXPECT_EQ(contentOf("B.JBI"), "edited");
    EXPECT_THAT(world.boxes.texts(),
                ElementsAre("[A.JBI] interrupted; check\n[B.JBI] interrupted; check\n"
                            "[C.JBI] interrupted; nothing"));
}

TEST_F(InterruptedGroupsTest, ATornLastLineIsNone) {
    world.pc.write("A.JBI", "new a");
    const std::string line = GroupMark::arrivedLine(0, KnownContent::of("new a"));
    world.pc.write(mark, announcementOf({"A.JBI", "B.JBI"}) + line.substr(0, line.size() - 1));
    EXPECT_TRUE(settle());
    EXPECT_THAT(names(), ElementsAre("A.JBI.partial-1"));
}

TEST_F(InterruptedGroupsTest, AllNamesAreToldInBoxesThatFitTheScreen) {
    std::vector<std::string> files;
    for (int number = 10; number < 35; ++number) {
        files.push_back(std::to_string(number) + ".JBI");
        world.pc.write(files.back(), "ne");
    }
    leave(files, {});
    EXPECT_TRUE(settle());
    ASSERT_EQ(world.boxes.shown.size(), 3u);
    const auto lineCount = [](const std::string& text) {
        return std::ranges::count(text, '\n') + 1;
    };
    EXPECT_EQ(lineCount(world.boxes.shown[0].text), 10);
    EXPECT_EQ(lineCount(world.boxes.shown[2].text), 5);
    std::string all;
    for (const std::string& text : world.boxes.texts())
        all += text;
    for (const std::string& name : files)
        EXPECT_THAT(all, HasSubstr("[" + name + "]"));
}

TEST_F(InterruptedGroupsTest, OneThatIsRunningIsLeftAlone) {
    auto held = HeldFile::makeReadable(world.pc.path(mark));
    ASSERT_TRUE(held && held->write(announcementOf({"A.JBI", "B.JBI"})));
    world.pc.write("A.JBI", "ne");
    EXPECT_FALSE(settle());
    EXPECT_EQ(contentOf("A.JBI"), "ne");
}

TEST_F(InterruptedGroupsTest, TheProgramsOwnIsPassedOverUntilItEnds) {
    world.pc.write("A.JBI", "ne");
    leave({"A.JBI", "B.JBI"}, {});
    interrupted.beginGroup(world.pc.path());
    EXPECT_FALSE(settle());
    interrupted.endGroup();
    EXPECT_TRUE(settle());
}

TEST_F(InterruptedGroupsTest, OnADiskWithoutLocksNothingIsTouchedAndToldOnce) {
    tests::GroupFiles files;
    files.knowsNoLocks = true;
    InterruptedFetches look(files, world.messages, world.talk);
    world.pc.write("A.JBI", "new a");
    world.pc.write("B.JBI", "ne");
    leave({"A.JBI", "B.JBI", "C.JBI"}, {"new a"});
    EXPECT_TRUE(look.settle(world.pc.path(), names()));
    EXPECT_FALSE(look.settle(world.pc.path(), names()));
    EXPECT_THAT(world.boxes.texts(), ElementsAre("[B.JBI] interrupted; check"));
    EXPECT_EQ(contentOf("B.JBI"), "ne");
    EXPECT_TRUE(world.pc.has(mark));
    EXPECT_EQ(look.forbidsSending(world.pc.path(), "B.JBI"), 0) << "the operator knows";
}

TEST_F(InterruptedGroupsTest, OneThatCannotBeReadIsToldOnceAndForbidsEveryFile) {
    world.pc.write("A.JBI", "mine");
    for (const std::string content : {"?", "Vantrel fetch group 1\nname ../A.JBI\nend\n",
                                      "Vantrel fetch 1\nA.JBI\n\n0\n0\nend\n"}) {
        world.boxes.shown.clear();
        world.pc.write(mark, content);
        InterruptedFetches look(disk, world.messages, world.talk);
        EXPECT_TRUE(look.settle(world.pc.path(), names()));
        EXPECT_FALSE(look.settle(world.pc.path(), names()));
        EXPECT_THAT(world.boxes.texts(), ElementsAre("[" + mark + "] group mark unusable"));
        EXPECT_EQ(look.forbidsSending(world.pc.path(), "A.JBI"), session_code::markUnusable);
        EXPECT_EQ(look.unusableMark(), mark);
        EXPECT_EQ(contentOf(mark), content);
    }
    EXPECT_EQ(contentOf("A.JBI"), "mine");
}

TEST_F(InterruptedGroupsTest, ATornOneGoesWithoutAWord) {
    world.pc.write("A.JBI", "mine");
    for (const std::string& content :
         {std::string(), std::string("Vantrel fetch group 1\nname A.J"), std::string(100, '\0')}) {
        world.pc.write(mark, content);
        EXPECT_FALSE(settle());
        EXPECT_THAT(names(), ElementsAre("A.JBI"));
    }
    EXPECT_THAT(world.boxes.shown, IsEmpty());
}

TEST_F(InterruptedGroupsTest, AFolderUnderItsNameForbidsEveryFile) {
    world.pc.makeFolder(mark);
    EXPECT_EQ(forbids("A.JBI"), session_code::markUnusable);
}

TEST_F(InterruptedGroupsTest, AFileThatMayBeHalfIsNotSentUntilItWasTold) {
    world.pc.write("A.JBI", "new a");
    world.pc.write("B.JBI", "ne");
    leave({"A.JBI", "B.JBI"}, {"new a"});
    EXPECT_EQ(forbids("A.JBI"), 0);
    EXPECT_EQ(forbids("B.JBI"), session_code::fileNotReadable);
    EXPECT_EQ(forbids("C.JBI"), 0);
    EXPECT_TRUE(settle());
    EXPECT_EQ(forbids("B.JBI"), 0);
}

TEST_F(InterruptedGroupsTest, NorIsOneThatIsNotWhatHadArrived) {
    world.pc.write("A.JBI", "");
    leave({"A.JBI", "B.JBI"}, {"new a"});
    EXPECT_EQ(forbids("A.JBI"), session_code::fileNotReadable);
    world.pc.write("A.JBI", "new a");
    EXPECT_EQ(forbids("A.JBI"), 0);
}

TEST_F(InterruptedGroupsTest, AFileThatAnotherProgramIsAboutToFetchIsNotSentUntilItHasArrived) {
    auto held = HeldFile::makeReadable(world.pc.path(mark));
    ASSERT_TRUE(held && held->write(announcementOf({"A.JBI", "B.JBI"})));
    EXPECT_EQ(forbids("A.JBI"), session_code::fileNotReadable);
    EXPECT_EQ(forbids("B.JBI"), session_code::fileNotReadable);
    EXPECT_EQ(forbids("C.JBI"), 0);
    EXPECT_TRUE(held->append(linesOf({"new a"})));
    EXPECT_EQ(forbids("A.JBI"), 0);
    EXPECT_EQ(forbids("B.JBI"), session_code::fileNotReadable);
    EXPECT_TRUE(held->remove());
    EXPECT_EQ(forbids("B.JBI"), 0);
}

TEST_F(InterruptedGroupsTest, ASendBesideOneThatCannotBeReadNamesIt) {
    world.pc.write("WELD.JBI", tests::SessionWorld::job("WELD"));
    world.pc.write(mark, "?");
    EXPECT_FALSE(world.session->JobDownLoad("WELD.JBI", true));
    EXPECT_EQ(world.error(), " 47 0");
    EXPECT_EQ(world.session->unusableMark(), mark);
    EXPECT_EQ(world.library.callCount(), 0);
}

TEST_F(InterruptedGroupsTest, AnOlderBuildsMarkIsSettledBesideIt) {
    world.pc.write("A.JBI", "ne");
    leave({"A.JBI", "C.JBI"}, {});
    world.pc.write("B.JBI", "half");
    world.pc.write(FetchMark::fileNameFor("B.JBI"), FetchMark{.name = "B.JBI"}.format());
    EXPECT_TRUE(settle());
    EXPECT_THAT(names(), UnorderedElementsAre("A.JBI.partial-1", "B.JBI.partial-1"));
    ASSERT_EQ(world.boxes.shown.size(), 1u);
}

// A program that ends.

/// The disk under a program that ends, and what the power takes with it.
class MortalFiles : public tests::EndingFiles {
  public:
    using EndingFiles::EndingFiles;

    std::set<std::string> onDisk; ///< names of files whose content is there
    std::string groupOnDisk;      ///< what is sure to be in the group's mark

    Outcome write(HeldFile& file, const std::string& content) override {
        Outcome written = EndingFiles::write(file, content);
        if (written && GroupMark::parse(content))
            groupOnDisk = content;
        return written;
    }
    Outcome flush(const std::string& path) override {
        Outcome flushed = EndingFiles::flush(path);
        if (flushed)
            onDisk.insert(PathRules().lastName(path));
        return flushed;
    }
    std::vector<std::string> flushAll(const std::string& folder,
                                      const std::vector<std::string>& names) override {
        auto failed = EndingFiles::flushAll(folder, names);
        if (failed.empty())
            onDisk.insert(names.begin(), names.end());
        return failed;
    }
};

/// What becomes of content that nobody has brought to the disk.
struct Cut {
    bool isPower;                     ///< else the program alone has ended
    bool losesLines;                  ///< of the mark
    std::optional<std::size_t> keeps; ///< bytes of each file; nothing: the file is gone
};

struct EndedGroupTest : InterruptedGroupsTest, testing::WithParamInterface<Cut> {
    const std::vector<std::string> list{"N0.JBI", "OLD0.JBI", "N1.JBI", "N2.JBI",
                                        "N3.JBI", "OLD1.JBI", "N4.JBI"};

    static std::string newOf(const std::string& name) { return "new " + name; }
    static std::string oldOf(const std::string& name) {
        return name.starts_with("OLD") ? "old " + name : "";
    }
    static std::string bracketed(const std::string& name) { return "[" + name + "]"; }
    std::string told() const {
        std::string all;
        for (const std::string& text : world.boxes.texts())
            all += text;
        return all;
    }
    void prepare() {
        for (const std::string& name : names())
            std::filesystem::remove(world.pc.path(name));
        world.boxes.shown.clear();
        for (const std::string& name : list)
            if (!oldOf(name).empty())
                world.pc.write(name, oldOf(name));
    }
    /// The list is fetched by a program that ends with its files' steps; the library's writing of
    /// a file is two of them. True when it did not end.
    bool run(MortalFiles& files) {
        world.services.files = &files;
        world.session = std::make_unique<Snappy>(world.services);
        world.session->path = world.pc.path();
        for (const std::string& name : list) {
            world.session->AddJobList(name);
        }
        int received = 0;
        world.library.disturb({.function = "BscUpLoad", .fromThereOn = true, .doNothing = true});
        world.question.answers = {Answer::All};
        world.library.onCall = [&](const std::string& function) {
            if (function != "BscUpLoad")
                return;
            const std::string name = list[static_cast<std::size_t>(received++)];
            if (files.step())
                world.pc.write(name, newOf(name).substr(0, 2));
            if (files.step())
                world.pc.write(name, newOf(name));
        };
        const bool succeeded = world.session->JobListUpLoad();
        world.library.onCall = nullptr;
        world.session.reset();
        return succeeded && !files.hasEnded();
    }
    void cutPower(const MortalFiles& files) {
        if (!GetParam().isPower)
            return;
        if (GetParam().losesLines && !contentOf(mark).empty())
            world.pc.write(mark, files.groupOnDisk);
        for (const std::string& name : list) {
            const std::string content = contentOf(name);
            if (content.empty() || content == oldOf(name) || files.onDisk.contains(name))
                continue;
            if (GetParam().keeps)
                world.pc.write(name, content.substr(0, *GetParam().keeps));
            else
                std::filesystem::remove(world.pc.path(name));
        }
    }
    /// Names of files that are neither old nor new.
    std::set<std::string> halves() const {
        std::set<std::string> found;
        for (const std::string& name : list)
            if (world.pc.has(name) && contentOf(name) != newOf(name) &&
                contentOf(name) != oldOf(name))
                found.insert(name);
        return found;
    }
    void expectTruth(const MortalFiles& files) {
        for (const std::string& name : list) {
            const bool isTold = told().find(bracketed(name)) != std::string::npos;
            const bool isNew = contentOf(name) == newOf(name);
            const bool isAsBefore =
                contentOf(name) == oldOf(name) && world.pc.has(name) == !oldOf(name).empty();
            EXPECT_TRUE(isNew || isAsBefore || isTold)
                << name << ": " << contentOf(name) << world.pc.has(name);
            // What is known to be on the disk is not called a part where the mark says so.
            const bool isSure = files.onDisk.contains(name) && oldOf(name).empty();
            EXPECT_TRUE(isNew || !isSure || GetParam().losesLines) << name;
        }
        for (const std::string& name : names())
            EXPECT_FALSE(FetchMark::isFileName(name)) << name;
    }
    void expectAllToldOf(const std::set<std::string>& files) {
        for (const std::string& name : files)
            EXPECT_THAT(told(), HasSubstr(bracketed(name)));
    }
};

constexpr int moreThanAllSteps = 200;

TEST_P(EndedGroupTest, LeavesNothingHalfUntoldWhereverItEnds) {
    bool succeeded = false;
    for (int step = 0; !succeeded && step < moreThanAllSteps; ++step) {
        SCOPED_TRACE(step);
        prepare();
        MortalFiles files(step);
        succeeded = run(files);
        cutPower(files);
        const auto half = halves();
        world.boxes.shown.clear();
        InterruptedFetches(disk, world.messages, world.talk).settle(world.pc.path(), names());
        expectTruth(files);
        expectAllToldOf(half);
        EXPECT_TRUE(!succeeded || world.boxes.shown.empty());
        world.boxes.shown.clear();
        EXPECT_FALSE(settle()) << "a second look finds nothing";
    }
    EXPECT_TRUE(succeeded) << "the last one did not end";
}

TEST_P(EndedGroupTest, LeavesNothingHalfUntoldWhenMendingEndsInTheMiddleEither) {
    bool succeeded = false;
    for (int step = 0; !succeeded && step < moreThanAllSteps; ++step) {
        bool isMended = false;
        for (int mending = 0; !isMended && mending < moreThanAllSteps; ++mending) {
            SCOPED_TRACE(std::to_string(step) + " " + std::to_string(mending));
            prepare();
            MortalFiles files(step);
            succeeded = run(files);
            cutPower(files);
            auto half = halves();
            tests::EndingFiles second(mending);
            InterruptedFetches(second, world.messages, world.talk).settle(world.pc.path(), names());
            isMended = !second.hasEnded();
            const auto left = names();
            // Until the group's mark is gone the next look tells of its files again.
            if (world.pc.has(mark)) {
                world.boxes.shown.clear();
                std::erase_if(half, [](const auto& name) { return !oldOf(name).empty(); });
            }
            InterruptedFetches(disk, world.messages, world.talk).settle(world.pc.path(), left);
            expectTruth(files);
            expectAllToldOf(half);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Cuts, EndedGroupTest,
                         testing::Values(Cut{false, false, 0}, Cut{true, false, 0},
                                         Cut{true, true, 0}, Cut{true, false, 3},
                                         Cut{true, true, 3}, Cut{true, false, {}},
                                         Cut{true, true, {}}, Cut{true, true, 100}));

} // namespace
} // namespace vantrel
