#include "platform/ChildProcess.h"

#include "platform/Files.h"
#include "support/TemporaryFolder.h"

#include <algorithm>

#include <gtest/gtest.h>

namespace vantrel {
namespace {

ChildProcess started(const std::vector<std::string>& arguments, const std::string& folder = {}) {
    auto child = ChildProcess::start(
        {.program = VANTREL_TEST_PROGRAM, .arguments = arguments, .folder = folder});
    EXPECT_TRUE(child) << child.reason();
    return std::move(*child);
}

/// What it writes up to a text, or to its end.
std::string outputOf(ChildProcess& child, const std::string& upTo = "\n\n") {
    std::string output;
    ChildProcess* const one[] = {&child};
    while (!child.isAtEnd() && !output.ends_with(upTo)) {
        ChildProcess::wait(one, std::chrono::seconds(60));
        output += child.read();
    }
    return output;
}

TEST(ChildProcessTest, GetsItsArgumentsAsTheyAreAndItsFolder) {
    auto child = started({"arguments", "a b", "", "\"", "C:\\x y\\", "\\\"", "溶接"});
    EXPECT_EQ(outputOf(child), "<a b>\n<>\n<\">\n<C:\\x y\\>\n<\\\">\n<溶接>\n");
    const tests::TemporaryFolder folder;
    auto other = started({"folder"}, folder.path());
    EXPECT_EQ(outputOf(other), folder.path());
}

TEST(ChildProcessTest, SaysHowItEnded) {
    EXPECT_EQ(started({"seven"}).exitCode(), 7);
    EXPECT_EQ(started({"nothing"}).exitCode(), 0);
    auto killed = started({"hang"});
    killed.kill();
    EXPECT_EQ(killed.exitCode(), std::nullopt);
}

TEST(ChildProcessTest, AllThatItWritesComesInPieces) {
    auto child = started({"much"});
    const std::string output = outputOf(child);
    EXPECT_EQ(output.size(), 1'000'000U);
    EXPECT_EQ(std::ranges::count(output, '\n'), 10'000);
    EXPECT_EQ(child.exitCode(), 0);
}

TEST(ChildProcessTest, OneThatHangsIsWaitedForNoLongerThanSaid) {
    auto child = started({"hang"});
    EXPECT_EQ(outputOf(child, "hangs\n"), "hangs\n");
    ChildProcess* const one[] = {&child};
    ChildProcess::wait(one, std::chrono::milliseconds(1));
    EXPECT_EQ(child.read(), "");
    EXPECT_FALSE(child.isAtEnd());
    child.kill();
    EXPECT_EQ(outputOf(child), "");
    EXPECT_TRUE(child.isAtEnd());
}

TEST(ChildProcessTest, AProgramThatIsNotThereIsAFailure) {
    const tests::TemporaryFolder folder;
    EXPECT_FALSE(ChildProcess::start({.program = folder.path("nothing")}));
    EXPECT_FALSE(
        ChildProcess::start({.program = VANTREL_TEST_PROGRAM, .folder = folder.path("nowhere")}));
}

} // namespace
} // namespace vantrel
