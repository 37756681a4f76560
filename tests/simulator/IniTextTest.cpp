#include "simulator/SimulatorSettings.h"

#include <gtest/gtest.h>

namespace vantrel::simulator {
namespace {

TEST(IniText, ReadsSectionsAndKeysInFileOrder) {
    const auto sections = parseIni("[B]\r\ny=2\r\nx=1\r\n[A]\n");

    ASSERT_EQ(sections.size(), 2u);
    EXPECT_EQ(sections[0].name, "B");
    ASSERT_EQ(sections[0].keys.size(), 2u);
    EXPECT_EQ(sections[0].keys[0].first, "y");
    EXPECT_EQ(sections[0].keys[1].second, "1");
    EXPECT_EQ(sections[1].name, "A");
}

TEST(IniText, OuterBlanksDoNotCountAndInnerOnesDo) {
    const auto sections = parseIni("  [ Controller1 ]  \n \tName =  Line 1  \n");

    ASSERT_EQ(sections.size(), 1u);
    EXPECT_EQ(sections[0].name, "Controller1");
    EXPECT_EQ(sections[0].value("Name"), "Line 1");
}

TEST(IniText, KeysAreFoundInAnyLetterCaseAndTheFirstWins) {
    const auto sections = parseIni("[S]\nFOLDER=a\nfolder=b\n");

    EXPECT_EQ(sections[0].value("Folder"), "a");
    EXPECT_EQ(sections[0].value("Port"), "");
}

TEST(IniText, PassesOverCommentsLooseLinesAndKeysBeforeTheFirstSection) {
    const auto sections = parseIni("x=1\n[S]\n;x=2\nloose\n\nx=3;4\n");

    ASSERT_EQ(sections.size(), 1u);
    ASSERT_EQ(sections[0].keys.size(), 1u);
    EXPECT_EQ(sections[0].value("x"), "3;4");
}

TEST(IniText, TakesAHeaderWithoutEndAndAnEmptyOne) {
    const auto sections = parseIni("[open\nx=1\n[]\n[\n");

    ASSERT_EQ(sections.size(), 3u);
    EXPECT_EQ(sections[0].name, "open");
    EXPECT_EQ(sections[1].name, "");
    EXPECT_EQ(sections[2].name, "");
}

TEST(IniText, TakesGarbage) {
    EXPECT_TRUE(parseIni("").empty());
    EXPECT_TRUE(parseIni(std::string(3, '\0')).empty());
    const std::string longLine(10'000'000, '=');
    EXPECT_EQ(parseIni("[S]\n" + longLine)[0].keys.size(), 1u);
    EXPECT_EQ(parseIni(std::string(100'000, '[')).size(), 1u);
}

} // namespace
} // namespace vantrel::simulator
