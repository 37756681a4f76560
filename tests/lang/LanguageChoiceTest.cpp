#include "lang/LanguageChoice.h"

#include "base/ApplicationState.h"
#include "lang/LanguageFiles.h"
#include "lang/MessageTable.h"
#include "support/FakeMessageBoxes.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>

namespace vantrel {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using tests::FakeMessageBoxes;

class ChoosingTheLanguage : public testing::Test {
  protected:
    void addLanguage(const std::string& name) {
        folder_.write(name + ".lng", "Start:\n0 \"\" \"" + name +
                                         "\"\n3 \"\" \"File [%] is missing in " + name + "\"\n");
    }
    std::string settings(const std::string& content) {
        return folder_.write("Vantrel.ini", content);
    }
    LanguageChoice choice(const std::string& localeLanguage = "Japanese") {
        return {state_, table_, files_, boxes_, localeLanguage};
    }

    tests::TemporaryFolder folder_;
    LanguageFiles files_{folder_.path()};
    ApplicationState state_;
    MessageTable table_;
    FakeMessageBoxes boxes_;
};

TEST_F(ChoosingTheLanguage, DefaultIsTheLanguageOfTheLocale) {
    addLanguage("Japanese");
    addLanguage("System");
    EXPECT_TRUE(choice().loadDefaultLanguage());
    EXPECT_EQ(state_.LanguageName, "Japanese");
    EXPECT_EQ(table_.getMessage(0), "Japanese");
    EXPECT_THAT(boxes_.shown, IsEmpty());
}

TEST_F(ChoosingTheLanguage, DefaultFallsBackToSystem) {
    addLanguage("Japanese");
    addLanguage("System");
    EXPECT_TRUE(choice("Danish").loadDefaultLanguage());
    EXPECT_EQ(state_.LanguageName, "System");
    EXPECT_EQ(table_.getMessage(0), "System");
    EXPECT_THAT(boxes_.shown, IsEmpty());
}

TEST_F(ChoosingTheLanguage, UnknownLocaleFallsBackToSystem) {
    addLanguage("System");
    EXPECT_TRUE(choice("").loadDefaultLanguage());
    EXPECT_EQ(state_.LanguageName, "System");
}

TEST_F(ChoosingTheLanguage, WithoutAnyFileTheOperatorIsTold) {
    addLanguage("English");
    EXPECT_FALSE(choice().loadDefaultLanguage());
    EXPECT_THAT(boxes_.shown, ElementsAre(FakeMessageBoxes::Box{
                                  FakeMessageBoxes::Kind::Tell,
                                  "Language File Read Error.(System.lng)", BoxIcon::Exclamation}));
}

TEST_F(ChoosingTheLanguage, ANameOfAHundredCharactersIsReadWhole) {
    const std::string longest(100, 'L');
    addLanguage(longest);
    EXPECT_TRUE(choice().loadLanguagePreference(
        settings("[Language Info]\r\nLanguage=" + longest + "\r\nLangSelect=0\r\n")));
    EXPECT_EQ(state_.LanguageName, longest);
    EXPECT_TRUE(choice().loadLanguagePreference(
        settings("[Language Info]\r\nLanguage=" + longest + "X\r\nLangSelect=0\r\n")))
        << "what is longer is cut";
    EXPECT_EQ(state_.LanguageName, longest);
}

TEST_F(ChoosingTheLanguage, RecordedLanguageIsReadSilently) {
    addLanguage("English");
    state_.LanguageName = "Japanese";
    const auto path = settings("[Language Info]\r\nLanguage=English\r\nLangSelect=0\r\n");
    EXPECT_TRUE(choice().loadLanguagePreference(path));
    EXPECT_EQ(state_.LanguageName, "English");
    EXPECT_EQ(state_.LangSelect, 0);
    EXPECT_EQ(table_.getMessage(0), "English");
    EXPECT_THAT(boxes_.shown, IsEmpty());
}

TEST_F(ChoosingTheLanguage, WithoutSettingsTheDialogIsDue) {
    addLanguage("Japanese");
    state_.LanguageName = "Japanese";
    EXPECT_FALSE(choice().loadLanguagePreference(folder_.path("Vantrel.ini")));
    EXPECT_EQ(state_.LanguageName, "Japanese");
    EXPECT_EQ(state_.LangSelect, 1);
    EXPECT_THAT(boxes_.shown, IsEmpty());
}

TEST_F(ChoosingTheLanguage, LangSelectAsksForTheDialogAtEveryStart) {
    addLanguage("English");
    const auto path = settings("[Language Info]\nLanguage=English\nLangSelect=1\n");
    EXPECT_FALSE(choice().loadLanguagePreference(path));
    EXPECT_EQ(state_.LanguageName, "English");
    EXPECT_EQ(state_.LangSelect, 1);
    EXPECT_EQ(table_.getMessage(0), "") << "the dialog reads the file, not the preference";
}

TEST_F(ChoosingTheLanguage, ALargeLangSelectIsNotTakenForZero) {
    addLanguage("English");
    const auto path = settings("[Language Info]\nLanguage=English\nLangSelect=65536\n");
    EXPECT_FALSE(choice().loadLanguagePreference(path));
    EXPECT_NE(state_.LangSelect, 0);
}

TEST_F(ChoosingTheLanguage, WithoutARecordTheDefaultLanguageCounts) {
    addLanguage("Japanese");
    state_.LanguageName = "Japanese";
    EXPECT_TRUE(choice().loadLanguagePreference(settings("[Language Info]\nLangSelect=0\n")));
    EXPECT_EQ(state_.LanguageName, "Japanese");
}

struct EmptyRecord {
    const char* name;
    const char* line;
};

class AnEmptyRecordedLanguage : public ChoosingTheLanguage,
                                public testing::WithParamInterface<EmptyRecord> {};

TEST_P(AnEmptyRecordedLanguage, IsTakenOverAndLeavesTheChoiceToTheDialog) {
    addLanguage("Japanese");
    state_.LanguageName = "Japanese";
    const auto line = std::string(GetParam().line) + "\n";
    EXPECT_FALSE(
        choice().loadLanguagePreference(settings("[Language Info]\n" + line + "LangSelect=0\n")));
    EXPECT_EQ(state_.LanguageName, "");
    EXPECT_EQ(state_.LangSelect, 0);
    EXPECT_EQ(table_.getMessage(0), "") << "nothing is read";
    EXPECT_THAT(boxes_.shown, IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(Lines, AnEmptyRecordedLanguage,
                         testing::Values(EmptyRecord{"Nothing", "Language="},
                                         EmptyRecord{"Blanks", "Language=  "},
                                         EmptyRecord{"Quotes", "Language=\"\""}),
                         [](const auto& row) { return row.param.name; });

TEST_F(ChoosingTheLanguage, WithoutAnyNameTheDialogIsDue) {
    EXPECT_FALSE(choice().loadLanguagePreference(settings("[Language Info]\nLangSelect=0\n")));
    EXPECT_THAT(boxes_.shown, IsEmpty());
}

TEST_F(ChoosingTheLanguage, AMissingRecordedFileIsNamedAndForgotten) {
    addLanguage("System");
    auto chosen = choice();
    ASSERT_TRUE(chosen.loadDefaultLanguage());
    const auto path = settings("[Language Info]\nLanguage=French\nLangSelect=0\n");
    EXPECT_FALSE(chosen.loadLanguagePreference(path));
    EXPECT_EQ(state_.LanguageName, "");
    EXPECT_THAT(boxes_.shown, ElementsAre(FakeMessageBoxes::Box{
                                  FakeMessageBoxes::Kind::Tell,
                                  "File [French.lng] is missing in System", BoxIcon::None}));
    EXPECT_EQ(table_.getMessage(0), "System") << "the texts in force stay";
}

TEST_F(ChoosingTheLanguage, ARecordedNameNeverLeadsOutOfTheFolder) {
    folder_.write("outside.lng", "Start:\n0 \"\" \"outside\"\n");
    folder_.makeFolder("program");
    const LanguageFiles files(folder_.path("program"));
    LanguageChoice chosen(state_, table_, files, boxes_, "Japanese");
    const auto path = settings("[Language Info]\nLanguage=../outside\nLangSelect=0\n");
    EXPECT_FALSE(chosen.loadLanguagePreference(path));
    EXPECT_EQ(table_.getMessage(0), "");
}

TEST_F(ChoosingTheLanguage, GarbageSettingsOnlyAskForTheDialog) {
    addLanguage("Japanese");
    const std::string noise("\xff\0\"[Language Info\n=\n[Language Info]\n\0Language\n\x81", 48);
    EXPECT_FALSE(choice().loadLanguagePreference(settings(noise)));
    EXPECT_FALSE(choice().loadLanguagePreference(settings(std::string(10'000'000, '['))));
}

TEST_F(ChoosingTheLanguage, DefaultFontsComeBeforeTheRecordedOnes) {
    choice().setDefaultFonts(folder_.path("Vantrel.ini"));
    EXPECT_EQ(state_.FontName, "ＭＳ Ｐゴシック");
    EXPECT_EQ(state_.FontSize, 9);
    EXPECT_FALSE(state_.FontBold);

    choice().setDefaultFonts(settings("[Font Info]\nFontSize=12\n"));
    EXPECT_EQ(state_.FontName, "ＭＳ Ｐゴシック");
    EXPECT_EQ(state_.FontSize, 12);
}

} // namespace
} // namespace vantrel
