#include "lang/FontSettings.h"

#include "base/ApplicationState.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace vantrel {
namespace {

std::string shown(const ApplicationState& state) {
    return state.FontName + (state.FontBold ? " bold" : "") + (state.FontItalic ? " italic" : "") +
           " " + std::to_string(state.FontSize);
}

TEST(LocaleFont, IsJapaneseForJapaneseOnly) {
    ApplicationState state;
    state.FontItalic = true;
    setLocaleFont("Japanese", state);
    EXPECT_EQ(shown(state), "ＭＳ Ｐゴシック 9");
    state.FontItalic = true;
    setLocaleFont("German", state);
    EXPECT_EQ(shown(state), "MS Sans Serif bold 8");
    setLocaleFont("", state);
    EXPECT_EQ(shown(state), "MS Sans Serif bold 8");
}

struct Settings {
    const char* name;
    const char* content;
    const char* font;
};

class FontInfo : public testing::TestWithParam<Settings> {};

TEST_P(FontInfo, OverridesWhatItHolds) {
    const tests::TemporaryFolder folder;
    ApplicationState state;
    state.FontName = "Base";
    state.FontBold = true;
    state.FontSize = 8;
    readFontSettings(folder.write("Vantrel.ini", GetParam().content), state);
    EXPECT_EQ(shown(state), GetParam().font);
}

INSTANTIATE_TEST_SUITE_P(
    Contents, FontInfo,
    testing::Values(
        Settings{"NoSection", "", "Base bold 8"},
        Settings{"EmptySection", "[Font Info]\n", "Base bold 8"},
        Settings{"EmptyValues", "[Font Info]\nFontName=\nFontBOLD=\nFontItalic=\nFontSize=\n",
                 "Base bold 8"},
        Settings{"Everything",
                 "[Font Info]\nFontName=Gothic\nFontBOLD=False\nFontItalic=True\nFontSize=11\n",
                 "Gothic italic 11"},
        Settings{"OtherSection", "[Vantrel]\nFontName=Gothic\nFontSize=11\n", "Base bold 8"},
        Settings{"NameAlone", "[Font Info]\nFontName=Gothic\n", "Gothic bold 8"},
        Settings{"BooleanNumbers", "[Font Info]\nFontBOLD=0\nFontItalic=-1\n", "Base italic 8"},
        Settings{"BooleanLetterCase", "[Font Info]\nFontBOLD=false\nFontItalic=TRUE\n",
                 "Base italic 8"},
        Settings{"BooleanGarbage", "[Font Info]\nFontBOLD=perhaps\nFontItalic=yes\n",
                 "Base bold 8"},
        Settings{"IntegerPartOfSize", "[Font Info]\nFontSize=9.75\n", "Base bold 9"},
        Settings{"SizeZero", "[Font Info]\nFontSize=0\n", "Base bold 0"},
        Settings{"SizeNegative", "[Font Info]\nFontSize=-9\n", "Base bold -9"},
        Settings{"SizeGarbage", "[Font Info]\nFontSize=big\n", "Base bold 0"},
        Settings{"SizeLarge", "[Font Info]\nFontSize=300\n", "Base bold 300"},
        Settings{"SizeBeyondTheField", "[Font Info]\nFontSize=99999\n", "Base bold 32767"},
        Settings{"BooleanOutOfRange", "[Font Info]\nFontBOLD=0\nFontItalic=99999\n",
                 "Base italic 8"},
        Settings{"BooleanBeyondEveryNumber", "[Font Info]\nFontBOLD=0\nFontItalic=1e999\n",
                 "Base italic 8"}),
    [](const auto& row) { return row.param.name; });

/// 99 characters and the end of the text.
TEST(FontInfoFile, IsReadIntoBuffersOfAHundredCharacters) {
    const tests::TemporaryFolder folder;
    ApplicationState state;
    const std::string name(99, 'N');
    const std::string size = std::string(98, '0') + "12";
    readFontSettings(folder.write("Vantrel.ini", "[Font Info]\nFontName=" + name +
                                                     "more\nFontSize=" + size + "\n"),
                     state);
    EXPECT_EQ(state.FontName, name);
    EXPECT_EQ(state.FontSize, 1);
}

TEST(FontInfoFile, MayBeMissing) {
    const tests::TemporaryFolder folder;
    ApplicationState state;
    state.FontSize = 8;
    readFontSettings(folder.path("nowhere.ini"), state);
    EXPECT_EQ(state.FontSize, 8);
}

} // namespace
} // namespace vantrel
