#include "app/commands/HelpCommands.h"

#include "base/ApplicationState.h"
#include "base/PathRules.h"
#include "support/NamedRow.h"

#include <vector>

#include <gmock/gmock.h>

namespace vantrel {
namespace {

using testing::ElementsAre;

class HelpCommandsTest : public testing::Test {
  protected:
    HelpCommands help(const std::string& programFolder) {
        return {state, programFolder, [this](const std::string& path) {
                    opened.push_back(path);
                    return answer;
                }};
    }

    const std::string between{PathRules().separator()};
    const std::string helpFolder = ".." + between + "ZUROLINKDLL" + between + "Help" + between;
    ApplicationState state;
    std::vector<std::string> opened;
    Outcome answer = Done{};
};

struct LanguageRow : tests::NamedRow {
    const char* language;
    const char* document;
};

class HelpInLanguage : public HelpCommandsTest, public testing::WithParamInterface<LanguageRow> {};

TEST_P(HelpInLanguage, OpensItsManual) {
    state.LanguageName = GetParam().language;
    help("/opt/vantrel").mnuHelp(0);
    EXPECT_THAT(opened, ElementsAre("/opt/vantrel" + between + helpFolder + GetParam().document));
}

INSTANTIATE_TEST_SUITE_P(
    Languages, HelpInLanguage,
    testing::Values(LanguageRow{{"Japanese"}, "Japanese", "Zurolink_jp.pdf"},
                    LanguageRow{{"English"}, "English", "Zurolink_us.pdf"},
                    LanguageRow{{"System"}, "System", "Zurolink_us.pdf"},
                    LanguageRow{{"OtherLetterCase"}, "japanese", "Zurolink_us.pdf"},
                    LanguageRow{{"LongerName"}, "Japanese2", "Zurolink_us.pdf"},
                    LanguageRow{{"None"}, "", "Zurolink_us.pdf"}),
    tests::rowName);

TEST_F(HelpCommandsTest, AFolderThatEndsInASeparatorGetsNoSecondOne) {
    help("/opt" + between).mnuHelp(0);
    EXPECT_THAT(opened, ElementsAre("/opt" + between + helpFolder + "Zurolink_us.pdf"));
}

TEST_F(HelpCommandsTest, AnotherEntryPassesAnEmptyName) {
    help("/opt/vantrel").mnuHelp(1);
    help("/opt/vantrel").mnuHelp(-1);
    EXPECT_THAT(opened, ElementsAre("", ""));
}

TEST_F(HelpCommandsTest, AFailureIsNobodysBusiness) {
    answer = Failure{"no program for it"};
    EXPECT_NO_THROW(help("/opt/vantrel").mnuHelp(0));
}

} // namespace
} // namespace vantrel
