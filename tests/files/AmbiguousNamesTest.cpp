#include "files/AmbiguousNames.h"

#include <gtest/gtest.h>

namespace vantrel {
namespace {

TEST(AmbiguousNamesTest, AreThoseThatDifferInLetterCaseOnly) {
    const AmbiguousNames names({"foo.JBI", "OTHER.JBI", "FOO.JBI", "foo.JBR"});
    EXPECT_TRUE(names.contains("foo.JBI"));
    EXPECT_TRUE(names.contains("FOO.JBI"));
    EXPECT_TRUE(names.contains("Foo.Jbi"));
    EXPECT_FALSE(names.contains("OTHER.JBI"));
    EXPECT_FALSE(names.contains("foo.JBR"));
    EXPECT_FALSE(names.contains("gone.JBI"));
}

TEST(AmbiguousNamesTest, ANameThatIsListedTwiceIsOne) {
    EXPECT_FALSE(AmbiguousNames({"TOOL.CND", "TOOL.CND"}).contains("TOOL.CND"));
}

TEST(AmbiguousNamesTest, AFixedNameThatTheDirectorySpellsOtherwiseIsTheSameFile) {
    const AmbiguousNames names({"tool.cnd", "TOOL.CND"}, {"TOOL.CND"});
    EXPECT_FALSE(names.contains("tool.cnd"));
    EXPECT_FALSE(names.contains("TOOL.CND"));
}

TEST(AmbiguousNamesTest, AFixedNameStandsInTheListOnceMore) {
    EXPECT_TRUE(
        AmbiguousNames({"tool.cnd", "TOOL.CND", "TOOL.CND"}, {"TOOL.CND"}).contains("tool.cnd"))
        << "the directory names two files";
}

TEST(AmbiguousNamesTest, SmallGreekLettersAreOthersThanCapitalOnes) {
    EXPECT_FALSE(AmbiguousNames({"\u03B1.JBI", "\u0391.JBI"}).contains("\u0391.JBI"));
    EXPECT_TRUE(AmbiguousNames({"\u0430.JBI", "\u0410.JBI"}).contains("\u0410.JBI"));
}

TEST(AmbiguousNamesTest, AnEmptyListingHasNone) {
    EXPECT_FALSE(AmbiguousNames({}).contains("A"));
}

} // namespace
} // namespace vantrel
