#include "console/Tally.h"

#include <gtest/gtest.h>

namespace vantrel {
namespace {

TEST(Tally, NothingToDoIsAllDone) {
    EXPECT_EQ(Tally().exitCode(), 0);
}

TEST(Tally, AllDoneIsZero) {
    Tally tally;
    tally.add(ItemEnd::Done);
    tally.add(ItemEnd::Done);
    EXPECT_EQ(tally.exitCode(), 0);
}

TEST(Tally, WhatIsSkippedIsNotDone) {
    Tally tally;
    tally.add(ItemEnd::Skipped);
    EXPECT_EQ(tally.exitCode(), 1);
    tally.add(ItemEnd::Done);
    EXPECT_EQ(tally.exitCode(), 3);
}

TEST(Tally, OneCauseOfAllIsTheCode) {
    Tally tally;
    tally.add(ItemEnd::Failed, exit_code::noConnection);
    tally.add(ItemEnd::NotTried);
    EXPECT_EQ(tally.exitCode(), 12);
}

TEST(Tally, CausesThatDifferAreJustNothingDone) {
    Tally tally;
    tally.add(ItemEnd::Failed, exit_code::noConnection);
    tally.add(ItemEnd::Failed, exit_code::noLibrary);
    EXPECT_EQ(tally.exitCode(), 1);
}

TEST(Tally, ACauseDoesNotHideWhatWasDone) {
    Tally tally;
    tally.add(ItemEnd::Failed, exit_code::noConnection);
    tally.add(ItemEnd::Done, exit_code::noConnection);
    EXPECT_EQ(tally.exitCode(), 3);
}

TEST(Tally, AnInterruptionThatLeftNothingUndoneIsNone) {
    Tally tally;
    tally.interrupt();
    tally.add(ItemEnd::Done);
    EXPECT_EQ(tally.exitCode(), 0);
    tally.add(ItemEnd::NotTried);
    EXPECT_EQ(tally.exitCode(), 130);
}

TEST(Tally, CountsEachEnd) {
    Tally tally;
    tally.add(ItemEnd::Failed);
    tally.add(ItemEnd::Failed);
    tally.add(ItemEnd::Skipped);
    EXPECT_EQ(tally.count(ItemEnd::Failed), 2U);
    EXPECT_EQ(tally.count(ItemEnd::Skipped), 1U);
    EXPECT_EQ(tally.count(ItemEnd::NotTried), 0U);
}

} // namespace
} // namespace vantrel
