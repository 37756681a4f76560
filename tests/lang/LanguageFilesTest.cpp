#include "lang/LanguageFiles.h"

#include "lang/MessageTable.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>

namespace vantrel {
namespace {

using testing::ElementsAre;

constexpr const char* simpleFile = "Start:\n1 \"one\" \"eins\"\n";

class LanguageFilesInAFolder : public testing::Test {
  protected:
    tests::TemporaryFolder folder_;
    LanguageFiles files_{folder_.path()};
    MessageTable table_;
};

TEST_F(LanguageFilesInAFolder, NamesAreSortedWithSystemLast) {
    for (const char* name : {"System.lng", "Zulu.lng", "english.lng", "Japanese.lng", "Dansk.lng"})
        folder_.write(name, "");
    EXPECT_THAT(files_.names(), ElementsAre("Dansk", "english", "Japanese", "Zulu", "System"));
}

TEST_F(LanguageFilesInAFolder, OnlyLanguageFilesAreListed) {
    for (const char* name : {"a.LNG", "b.lng.bak", "c.txt", ".lng", "lng", "SYSTEM.LNG"})
        folder_.write(name, "");
    folder_.makeFolder("Folder.lng");
    EXPECT_THAT(files_.names(), ElementsAre("a", "SYSTEM"));
}

TEST_F(LanguageFilesInAFolder, AMissingFolderHasNoLanguages) {
    EXPECT_TRUE(LanguageFiles(folder_.path("nowhere")).names().empty());
    EXPECT_FALSE(LanguageFiles(folder_.path("nowhere")).exists("System"));
}

TEST_F(LanguageFilesInAFolder, NamesAreFoundInAnyLetterCase) {
    folder_.write("JAPANESE.Lng", simpleFile);
    EXPECT_TRUE(files_.exists("Japanese"));
    EXPECT_EQ(files_.pathOf("japanese"), folder_.path("JAPANESE.Lng"));
    EXPECT_TRUE(files_.readInto("Japanese", table_));
    EXPECT_EQ(table_.getMessage(1), "eins");
}

TEST_F(LanguageFilesInAFolder, TheExactSpellingWins) {
    folder_.write("japanese.lng", "Start:\n1 \"\" \"lower\"\n");
    folder_.write("Japanese.lng", "Start:\n1 \"\" \"exact\"\n");
    ASSERT_TRUE(files_.readInto("Japanese", table_));
    EXPECT_EQ(table_.getMessage(1), "exact");
}

TEST_F(LanguageFilesInAFolder, AFolderIsNoLanguageFile) {
    folder_.makeFolder("Japanese.lng");
    EXPECT_FALSE(files_.exists("Japanese"));
    EXPECT_FALSE(files_.readInto("Japanese", table_));
}

TEST_F(LanguageFilesInAFolder, NamesNeverLeadOutOfTheFolder) {
    folder_.write("Outside.lng", simpleFile);
    folder_.makeFolder("inner");
    const LanguageFiles inner(folder_.path("inner"));
    for (const char* name : {"../Outside", "..\\Outside", "inner/../../Outside", ""})
        EXPECT_FALSE(inner.exists(name)) << name;
    EXPECT_FALSE(inner.exists(folder_.path("Outside")));
}

TEST_F(LanguageFilesInAFolder, DevicesStreamsAndPatternsAreNoLanguages) {
    folder_.write("a1b.lng", simpleFile);
    for (const char* name : {"a*b", "a?b", "a1b.lng:c", "c:d", "CON", "NUL"})
        EXPECT_FALSE(files_.exists(name)) << name;
}

TEST_F(LanguageFilesInAFolder, AnUnreadableFileKeepsTheOldTable) {
    table_.replace({{1, "old", "alt"}});
    const auto outcome = files_.readInto("Japanese", table_);
    ASSERT_FALSE(outcome);
    EXPECT_EQ(outcome.reason(), "Japanese.lng");
    EXPECT_EQ(table_.getMessage(1), "alt");
}

TEST_F(LanguageFilesInAFolder, ReadingReplacesTheWholeTable) {
    table_.replace({{1, "old", "alt"}, {2, "second", "zwei"}});
    folder_.write("Short.lng", simpleFile);
    ASSERT_TRUE(files_.readInto("Short", table_));
    EXPECT_EQ(table_.getMessage(1), "eins");
    EXPECT_EQ(table_.getMessage(2), "");
}

} // namespace
} // namespace vantrel
