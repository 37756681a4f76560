#include "files/TransferPace.h"

#include "CommandFixture.h"
#include "files/CopyCommand.h"
#include "support/NamedRow.h"

#include <algorithm>
#include <chrono>
#include <set>
#include <string>
#include <vector>

#include <gmock/gmock.h>

namespace vantrel::tests {
namespace {

using std::chrono::milliseconds;
using testing::ElementsAre;
using testing::HasSubstr;

constexpr std::int64_t kilobyte = 1024;

/// A pace of files of one size, all of which are transferred but for `passedOver`.
class TransferPaceTest : public testing::Test {
  protected:
    TransferPace paceOf(std::size_t files, std::int64_t size = kilobyte) {
        return {std::vector<std::int64_t>(files, size),
                [this](std::size_t item) { return !passedOver.contains(item); }};
    }

    std::set<std::size_t> passedOver;
};

TEST_F(TransferPaceTest, CountsBytesOfTheFilesThatAreHandled) {
    TransferPace pace({100, 20, 3}, [](std::size_t) { return true; });
    EXPECT_EQ(pace.bytesOfAll(), 123);
    EXPECT_EQ(pace.bytesDone(), 0);
    pace.reach(1, milliseconds(10));
    EXPECT_EQ(pace.bytesDone(), 100);
    pace.reach(3, milliseconds(20));
    EXPECT_EQ(pace.bytesDone(), 123);
    EXPECT_EQ(pace.worked(), milliseconds(20));
    pace.reach(9, milliseconds(30));
    EXPECT_EQ(pace.bytesDone(), 123);
}

TEST_F(TransferPaceTest, NothingIsEstimatedBeforeASecondAndTwoFiles) {
    TransferPace quick = paceOf(100);
    quick.reach(2, milliseconds(999));
    EXPECT_FALSE(quick.secondsLeft());
    quick.reach(3, milliseconds(1000));
    EXPECT_TRUE(quick.secondsLeft());

    TransferPace slow = paceOf(100);
    slow.reach(1, milliseconds(5000));
    EXPECT_FALSE(slow.secondsLeft()) << "one of many may be an odd one";
    slow.reach(2, milliseconds(10000));
    EXPECT_EQ(slow.secondsLeft(), 8 * 60);
}

TEST_F(TransferPaceTest, ATenthOfTheWorkIsEnough) {
    TransferPace pace = paceOf(10);
    pace.reach(1, milliseconds(4000));
    EXPECT_EQ(pace.secondsLeft(), 40);
}

TEST_F(TransferPaceTest, FilesThatWerePassedOverDoNotMakeItFaster) {
    for (std::size_t item = 0; item < 90; ++item)
        passedOver.insert(item);
    TransferPace pace = paceOf(100);
    pace.reach(90, milliseconds(2000));
    EXPECT_FALSE(pace.secondsLeft());
    pace.reach(91, milliseconds(12000));
    pace.reach(92, milliseconds(22000));
    EXPECT_EQ(pace.secondsLeft(), 60) << "80, as one speaks of it";
    EXPECT_EQ(pace.bytesDone(), 92 * kilobyte);
}

TEST_F(TransferPaceTest, SizesDecideAndEmptyFilesTakeTimeToo) {
    const auto all = [](std::size_t) { return true; };
    TransferPace large({kilobyte, kilobyte, 38 * kilobyte}, all);
    large.reach(2, milliseconds(4000));
    EXPECT_EQ(large.secondsLeft(), 40);
    TransferPace empty({0, 0, 0, 0}, all);
    empty.reach(2, milliseconds(20000));
    EXPECT_EQ(empty.secondsLeft(), 20);
}

TEST_F(TransferPaceTest, HugeFilesCountRightly) {
    TransferPace pace = paceOf(2000, 2147483647);
    pace.reach(1000, milliseconds(1000LL * 3600 * 1000));
    EXPECT_EQ(pace.secondsLeft(), 1000 * 3600);
}

struct RoundingRow : NamedRow {
    int seconds; ///< left
    int shown;
};

class RoundedTime : public TransferPaceTest, public testing::WithParamInterface<RoundingRow> {};

TEST_P(RoundedTime, IsAsOneSpeaksOfIt) {
    TransferPace pace = paceOf(4);
    pace.reach(2, milliseconds(GetParam().seconds * 1000LL));
    EXPECT_EQ(pace.secondsLeft(), GetParam().shown);
}

INSTANTIATE_TEST_SUITE_P(
    , RoundedTime,
    testing::Values(RoundingRow{{"Moment"}, 9, 0}, RoundingRow{{"Ten"}, 10, 10},
                    RoundingRow{{"Seconds"}, 34, 30}, RoundingRow{{"MoreSeconds"}, 35, 40},
                    RoundingRow{{"AlmostAMinute"}, 54, 50}, RoundingRow{{"Minute"}, 55, 60},
                    RoundingRow{{"ManySeconds"}, 89, 60}, RoundingRow{{"Minutes"}, 90, 120},
                    RoundingRow{{"ManyMinutes"}, 3700, 62 * 60}),
    rowName);

// Four seconds a file at first, then one that takes longer.
TEST_F(TransferPaceTest, DoesNotJumpToAndFro) {
    TransferPace pace = paceOf(12);
    pace.reach(2, milliseconds(8000));
    EXPECT_EQ(pace.secondsLeft(), 40);
    pace.reach(3, milliseconds(16000));
    EXPECT_EQ(pace.secondsLeft(), 40) << "48 seconds would be shown as 50";
    pace.reach(4, milliseconds(40000));
    EXPECT_EQ(pace.secondsLeft(), 60) << "80 seconds are longer by half";
    pace.reach(10, milliseconds(60000));
    EXPECT_EQ(pace.secondsLeft(), 10);
    pace.reach(11, milliseconds(66000));
    EXPECT_EQ(pace.secondsLeft(), 0);
}

/// The line in the progress window, by a clock that only the library's work moves.
class PaceLineTest : public CommandFixture {
  protected:
    PaceLineTest() {
        progress.setClock([this] { return now; });
        library.onCall = [this](const std::string& function) {
            if (function == "BscDownLoad" || function == "BscUpLoad")
                now += milliseconds(2000);
        };
        for (const char* name : {"A", "B", "C"})
            pcJob(name, std::string(kilobyte, '1'));
    }
    void TearDown() override { expectLeftInOrder(); }

    /// The different lines that were to be seen, in order.
    std::vector<std::string> shownLines() const {
        std::vector<std::string> seen;
        for (const auto& picture : progressView.pictures)
            if (picture.visible && !picture.pace.empty() &&
                (seen.empty() || seen.back() != picture.pace))
                seen.push_back(picture.pace);
        return seen;
    }

    milliseconds now{123456};
};

TEST_F(PaceLineTest, OfACopyGoesOnBetweenTheFiles) {
    robot();
    selectOnPC({"A.JBI", "B.JBI", "C.JBI"});
    EXPECT_TRUE(commands.sendCopy());
    EXPECT_THAT(shownLines(),
                ElementsAre("0 of 4 KB, 0:00 elapsed", "2 of 4 KB, a moment left, 0:02 elapsed",
                            "3 of 4 KB, a moment left, 0:04 elapsed"));
    EXPECT_EQ(progress.pace(), "");
}

TEST_F(PaceLineTest, OfAMoveIsTheSame) {
    robot();
    selectOnPC({"A.JBI", "B.JBI", "C.JBI"});
    EXPECT_TRUE(commands.sendMove());
    EXPECT_THAT(shownLines(),
                ElementsAre("0 of 4 KB, 0:00 elapsed", "2 of 4 KB, a moment left, 0:02 elapsed",
                            "3 of 4 KB, a moment left, 0:04 elapsed"));
}

TEST_F(PaceLineTest, OfAReceiveTellsTheTimeAlone) {
    for (const char* name : {"X", "Y"})
        robotJob(name);
    selectOnController({"X.JBI", "Y.JBI"});
    EXPECT_TRUE(commands.receiveCopy());
    EXPECT_THAT(shownLines(), ElementsAre("0:00 elapsed", "0:02 elapsed"));
    selectOnController({"X.JBI", "Y.JBI"});
    question.answers = {Answer::All};
    EXPECT_TRUE(commands.receiveMove());
    EXPECT_THAT(shownLines(), ElementsAre("0:00 elapsed", "0:02 elapsed"));
}

TEST_F(PaceLineTest, WaitsWhileTheOperatorIsAsked) {
    for (const char* name : {"A", "B", "C"})
        robotJob(name);
    selectOnPC({"A.JBI", "B.JBI", "C.JBI"});
    question.answers = {Answer::Yes, Answer::No, Answer::Yes};
    question.whileOpen = [this] { now += std::chrono::hours(1); };
    EXPECT_TRUE(commands.sendCopy());
    EXPECT_THAT(shownLines(),
                ElementsAre("0 of 4 KB, 0:00 elapsed", "2 of 4 KB, a moment left, 0:02 elapsed",
                            "3 of 4 KB, a moment left, 0:02 elapsed"));
}

TEST_F(PaceLineTest, AFileThatFailedSaysNothingAboutTheOthers) {
    robot();
    library.disturb({.function = "BscDownLoad", .call = 1, .code = 2000});
    selectOnPC({"A.JBI", "B.JBI", "C.JBI"});
    EXPECT_FALSE(commands.sendMove());
    EXPECT_THAT(shownLines(),
                ElementsAre("0 of 4 KB, 0:00 elapsed", "0 of 4 KB, 0:02 elapsed",
                            "2 of 4 KB, 0:02 elapsed", "3 of 4 KB, a moment left, 0:04 elapsed"));
}

TEST_F(PaceLineTest, OfAListWithASizeThatNobodyKnowsTellsTheTimeAlone) {
    robot();
    showPanes();
    auto& listing = panes.listing(ActiveSide::PC);
    listing.Names.at(std::size_t(std::ranges::find(listing.Names, "B.JBI") -
                                 listing.Names.begin())) = "saved later";
    const TransferServices services{state,    session,  panes, window, table,
                                    messages, progress, talk,  results};
    EXPECT_TRUE(CopyCommand(services).send({{"A.JBI"}, {"B.JBI"}}).succeeded);
    EXPECT_THAT(shownLines(), ElementsAre("0:00 elapsed", "0:02 elapsed"));
}

TEST_F(PaceLineTest, HoursAreToldAsHours) {
    library.onCall = [this](const std::string& function) {
        if (function == "BscDownLoad")
            now += std::chrono::seconds(3725);
    };
    robot();
    selectOnPC({"A.JBI", "B.JBI"});
    EXPECT_TRUE(commands.sendCopy());
    EXPECT_THAT(shownLines().back(), HasSubstr("62 minutes left, 1:02:05 elapsed"));
}

TEST_F(PaceLineTest, ADeletionHasNone) {
    robotJob("X");
    selectOnController({"X.JBI"});
    question.answers = {Answer::Yes};
    EXPECT_TRUE(commands.deleteOnController());
    EXPECT_THAT(shownLines(), testing::IsEmpty());
}

/// Ten seconds for the directory are not the speed of a file.
TEST_F(TransferPaceTest, WhatCameBeforeTheFirstFileIsNoMeasure) {
    TransferPace pace = paceOf(100);
    pace.prepare(milliseconds(10000));
    pace.reach(1, milliseconds(11000));
    pace.prepare(milliseconds(11500)); // too late to be told of a directory
    pace.reach(2, milliseconds(12000));
    EXPECT_EQ(pace.secondsLeft(), 2 * 60) << "98 files of a second each";
    EXPECT_EQ(pace.worked(), milliseconds(12000));
}

} // namespace
} // namespace vantrel::tests
