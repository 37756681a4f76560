#include "LanguageWorld.h"
#include "support/NamedRow.h"

#include <filesystem>

#include <gmock/gmock.h>

namespace vantrel::tests {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

class LanguageDraftTest : public testing::Test {
  public:
    LanguageWorld world;
};

struct StartRow : NamedRow {
    const char* current;
    const char* chosen;
};

class LanguageAtStart : public LanguageDraftTest, public testing::WithParamInterface<StartRow> {};

TEST_P(LanguageAtStart, IsOneOfTheList) {
    world.state.LanguageName = GetParam().current;
    const LanguageDraft draft(world.services());
    EXPECT_EQ(world.state.LanguageName, GetParam().chosen);
    ASSERT_TRUE(draft.selected());
    EXPECT_EQ(draft.languages()[*draft.selected()], GetParam().chosen);
}

INSTANTIATE_TEST_SUITE_P(Languages, LanguageAtStart,
                         testing::Values(StartRow{{"TheCurrentOne"}, "English", "English"},
                                         StartRow{{"TheLocalesWhenNone"}, "", "Japanese"},
                                         StartRow{{"SystemWhenItsFileIsGone"}, "Klingon", "System"},
                                         StartRow{{"InTheFilesSpelling"}, "english", "English"}),
                         rowName);

TEST_F(LanguageDraftTest, ListsTheLanguagesByNameAndSystemLast) {
    EXPECT_THAT(LanguageDraft(world.services()).languages(),
                ElementsAre("English", "Japanese", "System"));
}

TEST_F(LanguageDraftTest, WithoutTheFallbackTheFirstLanguageIsChosen) {
    std::filesystem::remove(world.program.path("System.lng"));
    world.state.LanguageName = "Klingon";
    const LanguageDraft draft(world.services());
    EXPECT_EQ(world.state.LanguageName, "English");
}

TEST_F(LanguageDraftTest, AFolderWithoutLanguagesOffersNone) {
    for (const char* const name : {"English.lng", "Japanese.lng", "System.lng"})
        std::filesystem::remove(world.program.path(name));
    LanguageDraft draft(world.services());
    EXPECT_THAT(draft.languages(), IsEmpty());
    EXPECT_FALSE(draft.selected());
    EXPECT_FALSE(draft.confirm());
    EXPECT_EQ(world.boxes.shown.size(), 1U);
}

TEST_F(LanguageDraftTest, StartsWithTheLocalesFont) {
    const LanguageDraft draft(world.services());
    EXPECT_EQ(draft.font(), (CaptionFont{"ＭＳ Ｐゴシック", false, false, 9}));
}

TEST_F(LanguageDraftTest, RecordedFontFieldsOverrideTheLocalesFont) {
    world.settings.write(LanguageWorld::ini, "[Font Info]\r\nFontSize=14\r\n");
    const LanguageDraft draft(world.services());
    EXPECT_EQ(draft.font(), (CaptionFont{"ＭＳ Ｐゴシック", false, false, 14}));
}

TEST_F(LanguageDraftTest, TheCheckBoxStartsTickedOnlyWhenTheDialogIsNotWanted) {
    world.state.LangSelect = 1;
    EXPECT_FALSE(LanguageDraft(world.services()).ignoreAtStart());
    world.state.LangSelect = 0;
    EXPECT_TRUE(LanguageDraft(world.services()).ignoreAtStart());
}

TEST_F(LanguageDraftTest, AChoiceSetsTheLanguageAtOnceButReadsItOnlyAtOK) {
    LanguageDraft draft(world.services());
    draft.select(0);
    EXPECT_EQ(world.state.LanguageName, "English");
    EXPECT_EQ(world.messages.getMessage(1), "");
    EXPECT_TRUE(draft.confirm());
    EXPECT_EQ(world.messages.getMessage(1), "English");
}

TEST_F(LanguageDraftTest, AnIndexOutsideTheListChangesNothing) {
    LanguageDraft draft(world.services());
    draft.select(3);
    EXPECT_EQ(world.state.LanguageName, "Japanese");
}

TEST_F(LanguageDraftTest, OKRecordsLanguageAndFontInThisOrder) {
    LanguageDraft draft(world.services());
    draft.select(0);
    draft.setFont({"Courier", true, false, 11});
    ASSERT_TRUE(draft.confirm());
    EXPECT_EQ(world.savedSettings(),
              "[Language Info]\r\nLanguage=English\r\nLangSelect=1\r\n"
              "[Font Info]\r\nFontName=Courier\r\nFontBOLD=True\r\nFontItalic=False\r\n"
              "FontSize=11\r\n");
}

TEST_F(LanguageDraftTest, TickingTheCheckBoxRecordsThatTheDialogIsNotWanted) {
    LanguageDraft draft(world.services());
    draft.setIgnoreAtStart(true);
    ASSERT_TRUE(draft.confirm());
    EXPECT_EQ(world.state.LangSelect, 0);
    EXPECT_THAT(world.savedSettings(), HasSubstr("LangSelect=0\r\n"));
}

TEST_F(LanguageDraftTest, OtherSettingsStayInTheFile) {
    world.settings.write(LanguageWorld::ini, "[Vantrel]\r\nPort=3\r\n");
    ASSERT_TRUE(LanguageDraft(world.services()).confirm());
    EXPECT_THAT(world.savedSettings(), HasSubstr("[Vantrel]\r\nPort=3\r\n"));
}

TEST_F(LanguageDraftTest, AFontNameThatTheFileCannotExpressDoesNotKeepTheRestOut) {
    LanguageDraft draft(world.services());
    draft.setFont({"\xED\x95\x9C", false, false, 10}); // a Korean syllable
    EXPECT_TRUE(draft.confirm());
    EXPECT_THAT(world.savedSettings(), HasSubstr("Language=Japanese\r\n"));
    EXPECT_THAT(world.savedSettings(), HasSubstr("FontSize=10\r\n"));
    EXPECT_TRUE(world.boxes.shown.empty());
}

TEST_F(LanguageDraftTest, AChoiceThatCannotBeRecordedCountsWithoutAWord) {
    auto services = world.services();
    services.settingsPath = world.settings.path("missing folder/Vantrel.ini");
    EXPECT_TRUE(LanguageDraft(services).confirm());
    EXPECT_TRUE(world.boxes.shown.empty());
    EXPECT_EQ(world.messages.getMessage(1), "Japanese");
}

TEST_F(LanguageDraftTest, ALanguageThatCannotBeReadIsToldAndNothingIsRecorded) {
    LanguageDraft draft(world.services());
    draft.select(0);
    std::filesystem::remove(world.program.path("English.lng"));
    EXPECT_FALSE(draft.confirm());
    ASSERT_EQ(world.boxes.shown.size(), 1U);
    EXPECT_THAT(world.boxes.shown[0].text,
                StartsWith(world.messages.getMessage(344) + "[English.lng] "));
    EXPECT_EQ(world.savedSettings(), "");
}

TEST_F(LanguageDraftTest, CancelPutsLanguageAndFontBack) {
    world.state.LanguageName = "English";
    world.state.FontName = "Arial";
    world.state.FontSize = 12;
    world.state.LangSelect = 0;
    LanguageDraft draft(world.services());
    draft.select(2);
    draft.setFont({"Courier", true, true, 20});
    draft.setIgnoreAtStart(false);
    draft.abandon();
    EXPECT_EQ(world.state.LanguageName, "English");
    EXPECT_EQ(world.state.FontName, "Arial");
    EXPECT_EQ(world.state.FontSize, 12);
    EXPECT_FALSE(world.state.FontBold);
    EXPECT_EQ(world.state.LangSelect, 0);
    EXPECT_TRUE(world.state.LangCancelled);
    EXPECT_EQ(world.savedSettings(), "");
}

TEST_F(LanguageDraftTest, ALaterDialogForgetsAnEarlierCancel) {
    world.state.LangCancelled = true;
    const LanguageDraft draft(world.services());
    EXPECT_FALSE(world.state.LangCancelled);
}

TEST_F(LanguageDraftTest, EditOpensTheSelectedFile) {
    LanguageDraft draft(world.services());
    draft.select(0);
    draft.edit();
    EXPECT_THAT(world.edited, ElementsAre(world.program.path("English.lng")));
    EXPECT_THAT(world.boxes.shown, IsEmpty());
}

TEST_F(LanguageDraftTest, AnEditorThatDoesNotStartIsTold) {
    world.editorFailure = Failure{"no editor"};
    LanguageDraft(world.services()).edit();
    ASSERT_EQ(world.boxes.shown.size(), 1U);
    EXPECT_THAT(world.boxes.shown[0].text, HasSubstr("[Japanese.lng]"));
    EXPECT_THAT(world.boxes.shown[0].text, HasSubstr("no editor"));
}

TEST_F(LanguageDraftTest, AnIconStandsBesideItsLanguageFile) {
    world.program.write("english.ICO", "");
    LanguageDraft draft(world.services());
    EXPECT_EQ(draft.iconPath(), "");
    draft.select(0);
    EXPECT_EQ(draft.iconPath(), world.program.path("english.ICO"));
}

} // namespace
} // namespace vantrel::tests
