#include "console/NamePatterns.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace vantrel {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const std::vector<std::string> files{"MAIN.JBI", "SUB1.JBI", "SUB12.JBI", "TOOL.CND", "A[1].JBI"};

TEST(NamePatterns, AStarStandsForAnyCharactersAndAQuestionMarkForOne) {
    EXPECT_THAT(matchNames({"SUB*"}, files).names, ElementsAre("SUB1.JBI", "SUB12.JBI"));
    EXPECT_THAT(matchNames({"SUB?.JBI"}, files).names, ElementsAre("SUB1.JBI"));
}

TEST(NamePatterns, LetterCaseDoesNotCount) {
    EXPECT_THAT(matchNames({"main.jbi", "*.cnd"}, files).names,
                ElementsAre("MAIN.JBI", "TOOL.CND"));
}

TEST(NamePatterns, OtherSignsMeanThemselves) {
    EXPECT_THAT(matchNames({"A[1].JBI"}, files).names, ElementsAre("A[1].JBI"));
    EXPECT_THAT(matchNames({"A[12].JBI", "SUB#.JBI"}, files).names, IsEmpty());
}

TEST(NamePatterns, AFileIsNamedOnceInTheOrderOfTheFiles) {
    EXPECT_THAT(matchNames({"TOOL.CND", "*.CND", "MAIN.JBI"}, files).names,
                ElementsAre("MAIN.JBI", "TOOL.CND"));
}

TEST(NamePatterns, ANameThatIsThereMeansThatFileAlone) {
    const std::vector<std::string> twins{"a.JBI", "A.JBI"};
    EXPECT_THAT(matchNames({"A.JBI"}, twins).names, ElementsAre("A.JBI"));
    EXPECT_THAT(matchNames({"A.jbi"}, twins).names, ElementsAre("a.JBI", "A.JBI"));
}

TEST(NamePatterns, WhatNoFileHasIsTold) {
    const auto matched = matchNames({"NONE.JBI", "MAIN.*", "X*"}, files);
    EXPECT_THAT(matched.unmatched, ElementsAre("NONE.JBI", "X*"));
    EXPECT_THAT(matched.names, ElementsAre("MAIN.JBI"));
}

} // namespace
} // namespace vantrel
