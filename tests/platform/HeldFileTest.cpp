#include "platform/HeldFile.h"

#include "platform/ChildProcess.h"
#include "platform/Files.h"
#include "support/TemporaryFolder.h"

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace vantrel {
namespace {

struct HeldFileTest : testing::Test {
    tests::TemporaryFolder folder;
    const std::string path = folder.path("mark");
};

TEST_F(HeldFileTest, KeepsWhatWasWrittenLast) {
    auto held = HeldFile::make(path);
    ASSERT_TRUE(held) << held.reason();
    EXPECT_TRUE(held->write("something long"));
    EXPECT_TRUE(held->write("short"));
    EXPECT_EQ(*held->read(), "short");
    EXPECT_EQ(*held->read(), "short") << "again from its beginning";
}

TEST_F(HeldFileTest, NobodyElseHoldsItAsLongAsItsHolderLives) {
    {
        auto held = HeldFile::make(path);
        ASSERT_TRUE(held) << held.reason();
        EXPECT_TRUE(held->write("mine"));
        EXPECT_FALSE(HeldFile::make(path));
        const auto other = HeldFile::take(path);
        ASSERT_TRUE(other) << other.reason();
        EXPECT_FALSE(*other) << "somebody has it, which is no failure";
        EXPECT_EQ(*held->read(), "mine");
    }
    const auto next = HeldFile::take(path);
    ASSERT_TRUE(next && *next);
    EXPECT_EQ(*(*next)->read(), "mine");
}

TEST_F(HeldFileTest, OneThatIsThereAndFreeIsTakenOverAsItIs) {
    folder.write("mark", "older");
    const auto held = HeldFile::make(path);
    ASSERT_TRUE(held) << held.reason();
    EXPECT_EQ(*held->read(), "older");
}

TEST_F(HeldFileTest, OnlyWhatIsThereIsTaken) {
    const auto gone = HeldFile::take(path);
    ASSERT_TRUE(gone) << gone.reason();
    EXPECT_FALSE(*gone);
    EXPECT_FALSE(anythingExists(path));
}

TEST_F(HeldFileTest, WhatIsNoFileIsAFailure) {
    EXPECT_FALSE(HeldFile::take(folder.path()));
    EXPECT_FALSE(HeldFile::take(std::string("a\0b", 3)));
    EXPECT_FALSE(HeldFile::make(folder.path("nowhere/mark")));
    EXPECT_FALSE(HeldFile::make(std::string("a\0b", 3)));
}

TEST_F(HeldFileTest, RemovedItIsGoneAndFree) {
    auto held = HeldFile::make(path);
    ASSERT_TRUE(held) << held.reason();
    EXPECT_TRUE(held->remove());
    EXPECT_FALSE(anythingExists(path));
    EXPECT_TRUE(HeldFile::make(path));
}

TEST_F(HeldFileTest, OfAHugeFileOnlyTheBeginningIsRead) {
    folder.write("mark", std::string(100'000, 'x'));
    const auto held = HeldFile::take(path);
    ASSERT_TRUE(held && *held);
    EXPECT_EQ((*held)->read()->size(), 65536u);
}

TEST_F(HeldFileTest, AReadableOneIsReadByEverybodyAndHeldByNobodyElse) {
    auto held = HeldFile::makeReadable(path);
    ASSERT_TRUE(held) << held.reason();
    EXPECT_TRUE(held->write("mine"));
    EXPECT_FALSE(HeldFile::makeReadable(path));
    const auto other = HeldFile::take(path);
    EXPECT_TRUE(other && !*other);
    const auto content = readFile(path);
    ASSERT_TRUE(content) << content.reason();
    EXPECT_EQ(*content, "mine");
    EXPECT_TRUE(held->remove());
    EXPECT_FALSE(anythingExists(path));
}

TEST_F(HeldFileTest, WhatIsAddedStandsAtTheEnd) {
    folder.write("mark", "older");
    const auto taken = HeldFile::take(path);
    ASSERT_TRUE(taken && *taken);
    HeldFile held = **taken;
    EXPECT_TRUE(held.append(" and newer"));
    EXPECT_TRUE(held.append(", twice"));
    EXPECT_TRUE(held.flush());
    EXPECT_EQ(*held.read(), "older and newer, twice");
    EXPECT_TRUE(held.write("all new"));
    EXPECT_TRUE(held.append("!"));
    EXPECT_EQ(*held.read(), "all new!");
}

TEST_F(HeldFileTest, WhoHoldsALockCanBeReadMeanwhile) {
    auto held = HeldFile::lock(path);
    ASSERT_TRUE(held && *held);
    EXPECT_TRUE((*held)->write("mine"));
    EXPECT_EQ(*readFile(path), "mine");
    const auto other = HeldFile::lock(path);
    ASSERT_TRUE(other) << other.reason();
    EXPECT_FALSE(*other) << "somebody has it, which is no failure";
    EXPECT_EQ(*readFile(path), "mine");
    EXPECT_TRUE((*held)->remove());
    EXPECT_FALSE(anythingExists(path));
    EXPECT_TRUE(*HeldFile::lock(path));
}

TEST_F(HeldFileTest, ALockThatNobodyCanHaveIsAFailure) {
    EXPECT_FALSE(HeldFile::lock(folder.path("nowhere/lock")));
    EXPECT_FALSE(HeldFile::lock(folder.path()));
    EXPECT_FALSE(HeldFile::lock(std::string("a\0b", 3)));
}

TEST_F(HeldFileTest, ACrashOfItsHolderFreesALock) {
    auto holder = ChildProcess::start(
        {.program = VANTREL_TEST_PROGRAM, .arguments = {"hold", path, "another program's"}});
    ASSERT_TRUE(holder) << holder.reason();
    std::string said;
    ChildProcess* const one[] = {&*holder};
    while (!holder->isAtEnd() && !said.ends_with('\n')) {
        ChildProcess::wait(one, std::chrono::seconds(60));
        said += holder->read();
    }
    ASSERT_EQ(said, "held\n");
    const auto held = HeldFile::lock(path);
    ASSERT_TRUE(held) << held.reason();
    EXPECT_FALSE(*held);
    EXPECT_EQ(*readFile(path), "another program's");
    holder->kill();
    EXPECT_EQ(holder->exitCode(), std::nullopt);
    EXPECT_TRUE(anythingExists(path)) << "it stays behind, and nobody holds it";
    auto next = HeldFile::lock(path);
    ASSERT_TRUE(next && *next);
    EXPECT_TRUE((*next)->write("mine"));
    EXPECT_EQ(*readFile(path), "mine");
}

TEST(FlushTest, WhatIsThereIsBroughtToTheDisk) {
    const tests::TemporaryFolder folder;
    EXPECT_TRUE(flushFile(folder.write("A.JBI", "job")));
    EXPECT_TRUE(flushFolder(folder.path()));
}

TEST(FlushTest, WhatIsNotThereIsAFailure) {
    const tests::TemporaryFolder folder;
    EXPECT_FALSE(flushFile(folder.path("A.JBI")));
    EXPECT_FALSE(flushFolder(folder.path("nowhere")));
    EXPECT_FALSE(flushFile(std::string("a\0b", 3)));
}

TEST_F(HeldFileTest, OfManyFilesThoseThatAreNotOnTheDiskAreNamed) {
    for (const int count : {0, 1, 3, 4, 30}) {
        std::vector<std::string> names;
        for (int number = 0; number < count; ++number) {
            names.push_back(std::to_string(number) + ".JBI");
            folder.write(names.back(), "job");
        }
        EXPECT_THAT(flushFiles(folder.path(), names), testing::IsEmpty()) << count;
        names.insert(names.begin(), "GONE.JBI");
        EXPECT_THAT(flushFiles(folder.path(), names), testing::ElementsAre("GONE.JBI")) << count;
    }
    const std::vector<std::string> one{"A.JBI"};
    EXPECT_EQ(flushFiles(folder.path("nowhere"), one), one);
    const std::vector<std::string> bad{std::string("a\0b", 3), "0.JBI"};
    EXPECT_THAT(flushFiles(folder.path(), bad), testing::ElementsAre(bad.front()));
}

} // namespace
} // namespace vantrel
