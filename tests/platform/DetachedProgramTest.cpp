#include "platform/DetachedProgram_posix.h"
#include "platform/Environment.h"
#include "support/CurrentFolderKept.h"
#include "support/EnvironmentVariable.h"
#include "support/TemporaryFolder.h"

#include <array>
#include <cerrno>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace vantrel {
namespace {

using namespace tests;

/// A folder of programs that tell through a pipe how they were started.
class DetachedProgram : public testing::Test {
  protected:
    void SetUp() override {
        ASSERT_EQ(::mkfifo(folder_.path("pipe").c_str(), 0600), 0);
        pipe_ = ::open(folder_.path("pipe").c_str(), O_RDWR | O_CLOEXEC);
        ASSERT_GE(pipe_, 0);
        install("teller", "printf '%s' \"$#[$1]\" > '" + folder_.path("pipe") + "'");
    }
    void TearDown() override { ::close(pipe_); }

    void install(const std::string& name, const std::string& command) const {
        const std::string path = folder_.write(name, "#!/bin/sh\n" + command + "\n");
        ASSERT_EQ(::chmod(path.c_str(), 0755), 0);
    }

    std::string told() const {
        constexpr int patience = 60'000; ///< milliseconds; for a machine that hangs only
        pollfd waiting{pipe_, POLLIN, 0};
        if (::poll(&waiting, 1, patience) != 1)
            return "nothing";
        std::array<char, 4096> buffer{};
        const auto count = ::read(pipe_, buffer.data(), buffer.size());
        return {buffer.data(), static_cast<std::size_t>(std::max<ssize_t>(count, 0))};
    }

    TemporaryFolder folder_;
    EnvironmentVariable path_{"PATH", folder_.path() + ":relative"};
    int pipe_ = -1;
};

TEST_F(DetachedProgram, GetsItsArgumentAsItIs) {
    ASSERT_TRUE(startDetached("teller", "a b'c\"$HOME`id`*;\\"));
    EXPECT_EQ(told(), "1[a b'c\"$HOME`id`*;\\]");
}

TEST_F(DetachedProgram, LeavesNoChildBehind) {
    ASSERT_TRUE(startDetached("teller", "x"));
    EXPECT_EQ(told(), "1[x]");
    EXPECT_EQ(::waitpid(-1, nullptr, WNOHANG), -1);
    EXPECT_EQ(errno, ECHILD);
}

TEST_F(DetachedProgram, RunsInASessionOfItsOwn) {
    install("session", "read -r line < /proc/self/stat; set -- $line; printf '%s' \"$6\" > '" +
                           folder_.path("pipe") + "'");
    ASSERT_TRUE(startDetached("session", "x"));
    const std::string session = told();
    EXPECT_NE(session, "nothing");
    EXPECT_NE(session, std::to_string(::getsid(0)));
}

TEST_F(DetachedProgram, IsNotWaitedFor) {
    ASSERT_EQ(::mkfifo(folder_.path("go").c_str(), 0600), 0);
    install("waiting", "printf started > '" + folder_.path("pipe") + "'; read -r line < '" +
                           folder_.path("go") + "'; printf ended > '" + folder_.path("pipe") + "'");
    ASSERT_TRUE(startDetached("waiting", "x"));
    EXPECT_EQ(told(), "started");
    folder_.write("go", "on\n");
    EXPECT_EQ(told(), "ended");
}

TEST_F(DetachedProgram, IsNotTakenFromAPlaceThatDependsOnTheCurrentFolder) {
    std::filesystem::create_directory(folder_.path("relative"));
    install("relative/planted", "exit");
    const CurrentFolderKept kept;
    std::filesystem::current_path(folder_.path());
    EXPECT_FALSE(startDetached("planted", "x"));
}

TEST_F(DetachedProgram, FailsWhenThereIsNone) {
    EXPECT_EQ(startDetached("none", "x").reason(), "none: No such file or directory");
}

TEST_F(DetachedProgram, FailsWhenItCannotBeRun) {
    const std::string path = folder_.write("broken", "no program at all");
    ASSERT_EQ(::chmod(path.c_str(), 0755), 0);
    EXPECT_EQ(startDetached("broken", "x").reason(), "broken: Exec format error");
}

TEST_F(DetachedProgram, MustBeExecutable) {
    folder_.write("data", "#!/bin/sh\n");
    EXPECT_FALSE(startDetached("data", "x"));
}

TEST_F(DetachedProgram, OpensDocumentsAndTextFilesByAbsolutePath) {
    install("xdg-open", "printf '%s' \"$1\" > '" + folder_.path("pipe") + "'");
    const std::string document = folder_.write("-help \u8868.pdf", "");
    ASSERT_TRUE(openDocument(document));
    EXPECT_EQ(told(), document);
    ASSERT_TRUE(editTextFile(document));
    EXPECT_EQ(told(), document);
}

} // namespace
} // namespace vantrel
