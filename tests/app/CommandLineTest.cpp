#include "app/start/CommandLine.h"

#include <vector>

#include <gtest/gtest.h>

namespace vantrel {
namespace {

struct Case {
    const char* name;
    std::vector<std::string> arguments;
    bool endsAtOnce;
    bool startedForAutomation;
};

class CommandLineTest : public testing::TestWithParam<Case> {};

TEST_P(CommandLineTest, IsRead) {
    const CommandLine read = readCommandLine(GetParam().arguments);
    EXPECT_EQ(read.endsAtOnce, GetParam().endsAtOnce);
    EXPECT_EQ(read.startedForAutomation, GetParam().startedForAutomation);
}

INSTANTIATE_TEST_SUITE_P(
    , CommandLineTest,
    testing::Values(Case{"NoArguments", {}, false, false}, Case{"Exit", {"/EXIT"}, true, false},
                    Case{"ExitInsideALongerWord", {"/EXITNOW"}, true, false},
                    Case{"ExitAfterAnotherArgument", {"-x", "a/EXIT"}, true, false},
                    Case{"ExitInLowerCase", {"/exit"}, false, false},
                    Case{"ExitAcrossTwoArguments", {"/EX", "IT"}, false, false},
                    Case{"Embedding", {"-Embedding"}, false, true},
                    Case{"EmbeddingInOtherCase", {"-EMBEDDING"}, false, true},
                    Case{"Automation", {"/automation"}, false, true},
                    Case{"AutomationInsideAFileName", {"/home/automation.lst"}, false, false},
                    Case{"Both", {"/Automation", "/EXIT"}, true, true}),
    [](const auto& test) { return test.param.name; });

} // namespace
} // namespace vantrel
