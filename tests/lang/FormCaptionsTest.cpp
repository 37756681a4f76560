#include "lang/FormCaptions.h"

#include "lang/LanguageFiles.h"
#include "lang/MessageNumbers.h"
#include "lang/MessageTable.h"
#include "support/ProjectFiles.h"

#include <gtest/gtest.h>

namespace vantrel {
namespace {

TEST(FormCaptionsTest, AreTheLanguagesOwn) {
    MessageTable messages;
    messages.replace({{307, "", "Remove"}, {326, "", "Back"}});
    EXPECT_EQ(formCaption(messages, message::deleteRobot), "Remove");
    EXPECT_EQ(formCaption(messages, message::cancel, "Cancel"), "Back");
}

TEST(FormCaptionsTest, AreTheDesignedOnesWhereTheLanguageHasNone) {
    const MessageTable messages;
    EXPECT_EQ(formCaption(messages, message::cancel, "Cancel"), "Cancel");
    EXPECT_EQ(formCaption(messages, message::cancel), "ｷｬﾝｾﾙ");
    EXPECT_EQ(formCaption(messages, message::askExit), "") << "no caption of a form";
}

// What the settings dialog was designed with is what the Japanese file says of it.
TEST(FormCaptionsTest, OfTheSettingsAreTheJapaneseOnes) {
    MessageTable japanese;
    ASSERT_TRUE(LanguageFiles(tests::dataFolder()).readInto("Japanese", japanese));
    for (auto number = message::settingsTitle; number <= message::cancel; ++number) {
        EXPECT_FALSE(formCaption({}, number).empty()) << number;
        EXPECT_EQ(formCaption({}, number), japanese.getMessage(number)) << number;
    }
}

} // namespace
} // namespace vantrel
