#include "app/window/AnswerCaptions.h"

#include "lang/MessageTable.h"

#include <gtest/gtest.h>

namespace vantrel::tests {
namespace {

TEST(AnswerCaptionsTest, AreTheLanguagesOwn) {
    MessageTable messages;
    messages.replace({{530, "", "Yes"}, {531, "", "No"}, {532, "", "All"}, {533, "", "Cancel"}});
    EXPECT_EQ(answerCaption(messages, Answer::Yes), "Yes");
    EXPECT_EQ(answerCaption(messages, Answer::No), "No");
    EXPECT_EQ(answerCaption(messages, Answer::All), "All");
    EXPECT_EQ(answerCaption(messages, Answer::Cancel), "Cancel");
}

TEST(AnswerCaptionsTest, AreTheDesignedOnesWhereTheLanguageHasNone) {
    const MessageTable messages;
    EXPECT_EQ(answerCaption(messages, Answer::Yes), "はい(&Y)");
    EXPECT_EQ(answerCaption(messages, Answer::No), "いいえ(&N)");
    EXPECT_EQ(answerCaption(messages, Answer::All), "すべて(&A)");
    EXPECT_EQ(answerCaption(messages, Answer::Cancel), "ｷｬﾝｾﾙ(&C)");
}

} // namespace
} // namespace vantrel::tests
