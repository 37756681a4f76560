#include "link/ZurolinkBinding.h"

#include "link/SessionErrorRecord.h"
#include "platform/Environment.h"
#include "support/TemporaryFolder.h"

#include <filesystem>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace vantrel {
namespace {

using testing::ElementsAre;

struct ZurolinkBindingTest : testing::Test {
    tests::TemporaryFolder folder;
    std::vector<LibraryProblem> problems;
    ZurolinkBinding binding{folder.path(),
                            [this](const LibraryProblem& problem) { problems.push_back(problem); }};

    void install(const char* library) const {
        std::filesystem::copy_file(library, folder.path(libraryFileName()));
    }
};

TEST_F(ZurolinkBindingTest, LoadsNothingByItself) {
    EXPECT_TRUE(problems.empty());
}

TEST_F(ZurolinkBindingTest, AMissingLibraryIsReportedByEachOperationAsItBegins) {
    EXPECT_EQ(binding.BscOpen("x", 1), session_code::libraryUnusable);
    ASSERT_EQ(problems.size(), 1u);
    EXPECT_EQ(binding.BscConnect(1), session_code::libraryUnusable);
    EXPECT_EQ(problems.size(), 1u);
    EXPECT_EQ(binding.BscOpen("x", 1), session_code::libraryUnusable);
    ASSERT_EQ(problems.size(), 2u);
    EXPECT_EQ(problems[0].path, folder.path(libraryFileName()));
    EXPECT_FALSE(problems[0].reason.empty());
    EXPECT_TRUE(problems[0].missing.empty());
}

TEST_F(ZurolinkBindingTest, AskingForTheSimulationReportsNothingYet) {
    EXPECT_EQ(binding.simulation(), std::nullopt);
    EXPECT_TRUE(problems.empty());
    EXPECT_EQ(binding.BscOpen("x", 1), session_code::libraryUnusable);
    EXPECT_EQ(problems.size(), 1u);
}

TEST_F(ZurolinkBindingTest, AFileThatIsNoLibraryIsReported) {
    folder.write(libraryFileName(), "garbage");
    EXPECT_EQ(binding.BscOpen("x", 1), session_code::libraryUnusable);
    ASSERT_EQ(problems.size(), 1u);
    EXPECT_FALSE(problems[0].reason.empty());
}

TEST_F(ZurolinkBindingTest, EveryMissingFunctionIsNamedAndNoneIsUsed) {
    install(VANTREL_INCOMPLETE_LIBRARY);
    EXPECT_EQ(binding.BscOpen("x", 1), session_code::libraryUnusable);
    ASSERT_EQ(problems.size(), 1u);
    EXPECT_TRUE(problems[0].reason.empty());
    EXPECT_THAT(problems[0].missing,
                ElementsAre("BscSetCom", "BscSetEther", "BscDisConnect", "BscClose", "BscFindFirst",
                            "BscFindNext", "BscDownLoad", "BscUpLoad", "BscSelectJob",
                            "BscDeleteJob", "BscGetVarData", "BscPutVarData"));
}

TEST_F(ZurolinkBindingTest, WithoutALibraryEveryFunctionFails) {
    char buffer[255] = {};
    double values[10] = {};
    const std::int16_t results[] = {binding.BscSetCom(1, 1, 9600, 2, 8, 0),
                                    binding.BscSetEther(1, "10.0.0.1", 0, nullptr),
                                    binding.BscConnect(1),
                                    binding.BscDisConnect(1),
                                    binding.BscClose(1),
                                    binding.BscFindFirst(1, buffer, 255),
                                    binding.BscFindNext(1, buffer, 255),
                                    binding.BscDownLoad(1, "A"),
                                    binding.BscUpLoad(1, "A"),
                                    binding.BscSelectJob(1, "A"),
                                    binding.BscDeleteJob(1),
                                    binding.BscGetVarData(1, 0, 1, values),
                                    binding.BscPutVarData(1, 0, 1, values)};
    for (const std::int16_t result : results)
        EXPECT_EQ(result, session_code::libraryUnusable);
}

TEST_F(ZurolinkBindingTest, NobodyNeedsToListenToProblems) {
    ZurolinkBinding deaf(folder.path(), nullptr);
    EXPECT_EQ(deaf.BscOpen("x", 1), session_code::libraryUnusable);
}

/// The library counts the links that it opened since it was loaded.
struct UnloadingTest : ZurolinkBindingTest {
    UnloadingTest() { install(VANTREL_COUNTING_LIBRARY); }

    /// Opens a link in a binding of its own; `end` does what is done to it before the exit.
    template <typename End>
    std::int16_t openAndEnd(const End& end) {
        ZurolinkBinding used(folder.path(), nullptr);
        const std::int16_t handle = used.BscOpen("x", 1);
        end(used, handle);
        return handle;
    }
};

TEST_F(UnloadingTest, TheLibraryIsUnloadedWithTheBinding) {
    const auto close = [](ZurolinkBinding& used, std::int16_t handle) {
        EXPECT_EQ(used.BscClose(handle), 0);
    };
    EXPECT_EQ(openAndEnd(close), 1);
    EXPECT_EQ(openAndEnd(close), 1);
}

TEST_F(UnloadingTest, ALibraryWithAnOpenLinkStaysLoaded) {
    const auto leaveOpen = [](ZurolinkBinding& used, std::int16_t handle) {
        EXPECT_EQ(used.BscDisConnect(handle), 0) << "which is a failure";
    };
    EXPECT_EQ(openAndEnd(leaveOpen), 1);
    EXPECT_EQ(openAndEnd(leaveOpen), 2);
}

TEST(ExportNamesTest, StandardCallsOn32BitWindowsMayBeDecorated) {
    EXPECT_THAT(exportNames("BscSetCom", 6, false), ElementsAre("BscSetCom"));
    EXPECT_THAT(exportNames("BscSetCom", 6, true),
                ElementsAre("BscSetCom", "BscSetCom@24", "_BscSetCom@24"));
    EXPECT_THAT(exportNames("ZurolinkSimulator", 0, true),
                ElementsAre("ZurolinkSimulator", "ZurolinkSimulator@0", "_ZurolinkSimulator@0"));
}

} // namespace
} // namespace vantrel
