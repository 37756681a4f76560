#include "console/ConsoleTalk.h"

#include "console/Report.h"

#include <deque>

#include <gtest/gtest.h>

namespace vantrel {
namespace {

class ConsoleTalkTest : public testing::Test {
  protected:
    ConsoleTalk talk(const AnswerPolicy& policy) { return {report_, policy}; }
    AnswerPolicy typing(std::deque<std::string> lines) {
        typed_ = std::move(lines);
        return {.overwrite = OverwritePolicy::Ask,
                .readLine = [this]() -> std::optional<std::string> {
                    if (typed_.empty())
                        return std::nullopt;
                    const std::string line = typed_.front();
                    typed_.pop_front();
                    return line;
                }};
    }

    std::string messages_;
    std::deque<std::string> typed_;
    Report report_{[](std::string_view) {}, [this](std::string_view text) { messages_ += text; },
                   false};
};

TEST_F(ConsoleTalkTest, WhatIsToldGoesToTheMessages) {
    talk({}).tell("a reason", BoxIcon::Exclamation);
    EXPECT_EQ(messages_, "a reason\n");
}

TEST_F(ConsoleTalkTest, UnaskedNothingIsReplaced) {
    EXPECT_EQ(talk({}).ask("", "exists", {}, nullptr), Answer::No);
    EXPECT_EQ(messages_, "");
}

TEST_F(ConsoleTalkTest, AlwaysReplacesAll) {
    EXPECT_EQ(talk({.overwrite = OverwritePolicy::Always}).ask("", "exists", {}, nullptr),
              Answer::All);
}

TEST_F(ConsoleTalkTest, WhereNobodySitsAskingReplacesNothing) {
    EXPECT_EQ(talk({.overwrite = OverwritePolicy::Ask}).ask("", "exists", {}, nullptr), Answer::No);
}

TEST_F(ConsoleTalkTest, TheTypedAnswerCounts) {
    for (const auto& [line, answer] : {std::pair("y", Answer::Yes),
                                       {" NO ", Answer::No},
                                       {"a", Answer::All},
                                       {"cancel", Answer::Cancel}})
        EXPECT_EQ(talk(typing({line})).ask("", "exists", {.text = "facts"}, nullptr), answer)
            << line;
    EXPECT_NE(messages_.find("exists\nfacts\n"), messages_.npos);
}

TEST_F(ConsoleTalkTest, AnAnswerThatIsNoneIsAskedForAgainAndTheEndIsCancel) {
    EXPECT_EQ(talk(typing({"", "maybe", "y"})).ask("", "exists", {}, nullptr), Answer::Yes);
    EXPECT_EQ(talk(typing({})).ask("", "exists", {}, nullptr), Answer::Cancel);
}

TEST_F(ConsoleTalkTest, DeletingEndsAtItsFirstFailureUnlessItIsToGoOn) {
    for (const bool keepsGoing : {false, true}) {
        ConsoleTalk deleting = talk({.deletes = true, .keepsGoing = keepsGoing});
        deleting.tell("passed over", BoxIcon::Exclamation);
        EXPECT_EQ(deleting.ask("", "first?", {}, nullptr), keepsGoing ? Answer::All : Answer::Yes);
        EXPECT_EQ(deleting.ask("", "second?", {}, nullptr), keepsGoing ? Answer::All : Answer::Yes);
        deleting.tell("failed", BoxIcon::Exclamation);
        EXPECT_EQ(deleting.ask("", "third?", {}, nullptr),
                  keepsGoing ? Answer::All : Answer::Cancel);
    }
}

TEST_F(ConsoleTalkTest, FilesLeaveTheFolderOfAnotherRobotOnlyWhenItWasNamed) {
    EXPECT_FALSE(talk({}).askYesNo("another robot's?", BoxIcon::Exclamation));
    EXPECT_TRUE(talk({.saysYes = true}).askYesNo("another robot's?", BoxIcon::Exclamation));
    EXPECT_NE(messages_.find("another robot's?"), messages_.npos);
}

TEST_F(ConsoleTalkTest, SomebodyWhoSitsThereIsAskedYesOrNo) {
    EXPECT_TRUE(talk(typing({"all", "y"})).askYesNo("replace?", BoxIcon::Question));
    EXPECT_FALSE(talk(typing({"no"})).askYesNo("replace?", BoxIcon::Question));
    EXPECT_FALSE(talk(typing({})).askYesNo("replace?", BoxIcon::Question));
    EXPECT_EQ(messages_.find("[a]"), messages_.npos);
}

TEST_F(ConsoleTalkTest, WhatTheRequestHasAnsweredIsNotAskedAnyMore) {
    AnswerPolicy policy = typing({"n"});
    policy.saysYes = true;
    EXPECT_TRUE(talk(policy).askYesNo("another robot's?", BoxIcon::Exclamation));
    EXPECT_EQ(typed_.size(), 1u);
}

TEST_F(ConsoleTalkTest, AMissingFileIsToldAndTheListReadOn) {
    EXPECT_TRUE(talk({}).askOkCancel("missing", BoxIcon::Exclamation));
    EXPECT_EQ(messages_, "missing\n");
}

TEST_F(ConsoleTalkTest, ValuesOfAListAreReplacedOnlyByTheRuleForFiles) {
    Request request;
    request.task = Request::Task::GetVariables;
    request.folder = "x";
    EXPECT_FALSE(answerPolicy(request).saysYes);
    request.overwrite = OverwritePolicy::Always;
    EXPECT_TRUE(answerPolicy(request).saysYes);
}

TEST_F(ConsoleTalkTest, TheRequestDecides) {
    Request request;
    request.task = Request::Task::Delete;
    request.keepGoing = true;
    request.folder = "x";
    request.overwrite = OverwritePolicy::Always;
    const AnswerPolicy policy = answerPolicy(request);
    EXPECT_TRUE(policy.deletes && policy.keepsGoing && policy.saysYes);
    EXPECT_EQ(policy.overwrite, OverwritePolicy::Always);
    EXPECT_FALSE(answerPolicy(Request()).deletes);
}

} // namespace
} // namespace vantrel
