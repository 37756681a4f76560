#include "link/JobLists.h"
#include "support/NamedRow.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace vantrel {
namespace {

using testing::ElementsAre;

struct LocalJobListTest : testing::Test {
    tests::TemporaryFolder folder;
    LocalJobList list;

    void read(std::string_view content) {
        folder.write("LocalJob.lst", content);
        list.read(folder.path());
    }
};

TEST_F(LocalJobListTest, BlankLinesAndOuterBlanksDoNotCount) {
    read("\r\n  WELD.JBI \r\n\t\r\n\nPICK\n   ");
    EXPECT_THAT(list.entries(), ElementsAre("WELD.JBI", "PICK"));
}

TEST_F(LocalJobListTest, AFolderMayEndInASeparator) {
    folder.write("LocalJob.lst", "WELD");
    list.read(folder.path() + "/");
    EXPECT_THAT(list.entries(), ElementsAre("WELD"));
}

TEST_F(LocalJobListTest, TheListIsFoundInAnyLetterCase) {
    folder.write("LOCALJOB.LST", "WELD");
    list.read(folder.path());
    EXPECT_TRUE(list.contains("WELD.JBI"));
}

TEST_F(LocalJobListTest, WithoutAReadableFileTheListStaysAsItWas) {
    read("WELD");
    const tests::TemporaryFolder empty;
    list.read(empty.path());
    list.read(empty.path("nowhere"));
    empty.makeFolder("LocalJob.lst");
    list.read(empty.path());
    EXPECT_THAT(list.entries(), ElementsAre("WELD"));
}

TEST_F(LocalJobListTest, ANewListReplacesTheOldOne) {
    read("WELD\nA*");
    read("PICK");
    EXPECT_FALSE(list.contains("WELD.JBI"));
    EXPECT_FALSE(list.contains("ANY.JBI"));
    EXPECT_TRUE(list.contains("PICK.JBI"));
}

TEST_F(LocalJobListTest, AnEmptyListContainsNothing) {
    EXPECT_FALSE(list.contains(""));
    EXPECT_FALSE(list.contains("WELD.JBI"));
}

struct MatchRow : tests::NamedRow {
    const char* line;
    const char* entry;
    bool local;
};

class LocalEntryTest : public LocalJobListTest, public testing::WithParamInterface<MatchRow> {};

TEST_P(LocalEntryTest, IsTestedByNormalisedNameAndPattern) {
    read(GetParam().line);
    EXPECT_EQ(list.contains(GetParam().entry), GetParam().local);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, LocalEntryTest,
    testing::Values(MatchRow{"SameName", "WELD.JBI", "WELD.JBI", true},
                    MatchRow{"LetterCase", "weld.jbi", "Weld.Jbi", true},
                    MatchRow{"ListWithoutExtension", "WELD", "WELD.JBI", true},
                    MatchRow{"EntryWithoutExtension", "WELD.JBI", "weld", true},
                    MatchRow{"OtherExtension", "WELD", "WELD.JBR", false},
                    MatchRow{"PartOfAName", "WELD", "WELD1.JBI", false},
                    MatchRow{"Run", "W*", "WELD.JBI", true},
                    MatchRow{"RunIsAJobsOnly", "W*", "WELD.CND", false},
                    MatchRow{"RunOfEverything", "*.*", "WELD.CND", true},
                    MatchRow{"OneCharacter", "WEL?", "WELD.JBI", true},
                    MatchRow{"OneCharacterNotNone", "WELD?", "WELD.JBI", false},
                    MatchRow{"Digit", "JOB#", "JOB7.JBI", true},
                    MatchRow{"DigitNotLetter", "JOB#", "JOBX.JBI", false},
                    MatchRow{"List", "JOB[abc]", "JOBB.JBI", true},
                    MatchRow{"ListMisses", "JOB[abc]", "JOBD.JBI", false},
                    MatchRow{"Range", "JOB[a-f]", "jobd.jbi", true},
                    MatchRow{"NotInList", "JOB[!a-c]", "JOBD.JBI", true},
                    MatchRow{"NotInListMisses", "JOB[!a-c]", "JOBA.JBI", false},
                    MatchRow{"UnclosedBracket", "JOB[A", "JOB[A.JBI", true},
                    MatchRow{"GreekStays", "\xCE\xB1", "\xCE\x91.JBI", false},
                    MatchRow{"GreekItself", "\xCE\xB1", "\xCE\xB1.JBI", true},
                    MatchRow{"CodePage", "\x83\x5C.JBI", "\xE3\x82\xBD.JBI", true}),
    tests::rowName);

TEST_F(LocalJobListTest, GarbageIsTakenWithoutHarm) {
    read(std::string("\0\xFF\xFE[[[***\n", 11) + std::string(1'000'000, '*') + "\nWELD");
    EXPECT_TRUE(list.contains("WELD.JBI") || !list.entries().empty());
}

// Without patterns read once for all entries these would not end.
TEST_F(LocalJobListTest, HostilePatternsCostNoTime) {
    std::string patterns =
        std::string(10'000'000, '*') + "Q\n*" + std::string(10'000'000, 'x') + "\n";
    for (int i = 0; i < 10'000; ++i)
        patterns += "J*" + std::to_string(i) + "\n*X" + std::to_string(i) + "\n";
    read(patterns);
    for (int i = 0; i < 1'000; ++i)
        EXPECT_FALSE(list.contains("ABCDEFGH" + std::to_string(i) + ".JBI"));
    EXPECT_TRUE(list.contains("J17"));
    EXPECT_TRUE(list.contains("Q"));
}

TEST_F(LocalJobListTest, AnEntryThatNoFileCouldHaveForItsNameMatchesNoPattern) {
    read("*A*B*\n*C*D*");
    EXPECT_TRUE(list.contains("xAxBx"));
    EXPECT_FALSE(list.contains(std::string(10'000'000, 'A') + "B"));
}

TEST_F(LocalJobListTest, ALineOfTenMegabytesIsOneEntry) {
    read(std::string(10'000'000, 'X') + "\nWELD");
    EXPECT_EQ(list.entries().size(), 2u);
    EXPECT_TRUE(list.contains("WELD"));
}

} // namespace
} // namespace vantrel
