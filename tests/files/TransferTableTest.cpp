#include "files/TransferTable.h"

#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace vantrel {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr bool download = true;
constexpr bool upload = false;
constexpr std::int16_t asterBit = 1;
constexpr std::int16_t borinBit = 2;
constexpr std::int16_t tellusBit = 32;

class TransferTableTest : public testing::Test {
  protected:
    bool load(std::string_view content) {
        folder.write("FileTable.tbl", content);
        return table.load(folder.path());
    }
    std::vector<std::string> names() const {
        std::vector<std::string> found;
        for (const TransferRow& row : table.rows())
            found.push_back(row.Name);
        return found;
    }

    tests::TemporaryFolder folder;
    TransferTable table;
};

TEST_F(TransferTableTest, CommentAndBlankLinesAddNoRow) {
    EXPECT_TRUE(load("; comment\r\n\r\n   \r\n*.JBI,1,1,1,1,1,1,1,1,1 ; jobs\r\n;\r\n"));
    EXPECT_THAT(names(), ElementsAre("*.JBI"));
}

TEST_F(TransferTableTest, ABrokenLineEndsTheLoadAndKeepsTheRowsBeforeIt) {
    EXPECT_FALSE(load("A.DAT,1,1,1,1,1,1,1,1,1\n*.JBI,1,1\n*.DAT,1,1,1,1,1,1,1,1,1\n"));
    EXPECT_THAT(names(), ElementsAre("A.DAT"));
}

TEST_F(TransferTableTest, WithBothFilesOnlyTheFullOneIsRead) {
    folder.write("FileTable.dat", "*.DAT,1,1,1,1,1,1\n");
    EXPECT_TRUE(load("*.JBI,1,1,1,1,1,1,1,1,1\n"));
    EXPECT_THAT(names(), ElementsAre("*.JBI"));
}

TEST_F(TransferTableTest, ABrokenFullTableDoesNotBringInTheShortOne) {
    folder.write("FileTable.dat", "*.DAT,1,1,1,1,1,1\n");
    EXPECT_FALSE(load("broken\n"));
    EXPECT_THAT(names(), IsEmpty());
}

TEST_F(TransferTableTest, TheShortOneIsReadWhenTheFullOneIsMissing) {
    folder.write("FileTable.dat", "*.DAT,1,0,1,0,1,1\n");
    EXPECT_TRUE(table.load(folder.path()));
    ASSERT_THAT(names(), ElementsAre("*.DAT"));
    EXPECT_EQ(table.rows()[0].downloadMask, 5);
    EXPECT_EQ(table.rows()[0].uploadMask, 6);
}

TEST_F(TransferTableTest, TheFilesAreFoundInAnyLetterCase) {
    folder.write("FILETABLE.TBL", "*.JBI,1,1,1,1,1,1,1,1,1\n");
    EXPECT_TRUE(table.load(folder.path()));
    EXPECT_THAT(names(), ElementsAre("*.JBI"));
}

TEST_F(TransferTableTest, AFolderOfThatNameIsNoTable) {
    folder.makeFolder("FileTable.tbl");
    folder.write("FileTable.dat", "*.DAT,1,1,1,1,1,1\n");
    EXPECT_TRUE(table.load(folder.path()));
    EXPECT_THAT(names(), ElementsAre("*.DAT"));
}

TEST_F(TransferTableTest, WithoutAnyFileNothingIsTransferable) {
    EXPECT_FALSE(table.load(folder.path()));
    EXPECT_THAT(names(), IsEmpty());
    EXPECT_FALSE(table.isTransferable("A.JBI", download, asterBit));
}

TEST_F(TransferTableTest, ASecondLoadReplacesTheRows) {
    ASSERT_TRUE(load("*.JBI,1,1,1,1,1,1,1,1,1\n"));
    EXPECT_TRUE(load("*.DAT,1,1,1,1,1,1,1,1,1\n"));
    EXPECT_THAT(names(), ElementsAre("*.DAT"));
}

TEST_F(TransferTableTest, GarbageIsReadWithoutAHarm) {
    EXPECT_FALSE(load(std::string("\xFF\xFE\0\x80garbage", 11)));
    EXPECT_FALSE(load(std::string(10'000'000, 'x')));
    EXPECT_TRUE(load(std::string(10'000'000, ';')));
    EXPECT_TRUE(load("A.DAT,1,1,1,1,1,1,1,1,1" + std::string(10'000'000, ',')));
    EXPECT_THAT(names(), ElementsAre("A.DAT"));
}

TEST_F(TransferTableTest, ACodePageTableIsUnderstood) {
    ASSERT_TRUE(load("\x97\x6E\x90\xDA.DAT,1,0,0,0,0,0,0,0,0\n")); // code page 932
    EXPECT_THAT(names(), ElementsAre("溶接.DAT"));
}

struct PermissionCase {
    const char* title;
    std::string_view name;
    bool download;
    std::int16_t bit;
    bool transferable;
};

class Permission : public testing::TestWithParam<PermissionCase> {};

TEST_P(Permission, FollowsTheFirstRowThatHits) {
    const tests::TemporaryFolder folder;
    folder.write("FileTable.tbl", "*.*,1,1,1,1,1,1,1,1,1\n"       // never hits
                                  "OLD.*,1,1,1,1,1,1,1,1,1\n"     // never hits
                                  "FIXED.JBI,0,0,0,0,0,0,1,1,1\n" // before *.JBI
                                  "*.JBI,1,0,0,0,0,1,0,1,0\n"
                                  "*.B.JBI,0,1,0,0,0,0,0,0,0\n"
                                  "X*.CND,1,1,1,1,1,1,1,1,1\n"
                                  "PLAIN,1,1,1,1,1,1,1,1,1\n"
                                  "*.JBI,1,1,1,1,1,1,1,1,1\n"); // too late
    TransferTable table;
    ASSERT_TRUE(table.load(folder.path()));
    EXPECT_EQ(table.isTransferable(GetParam().name, GetParam().download, GetParam().bit),
              GetParam().transferable);
}

INSTANTIATE_TEST_SUITE_P(
    Names, Permission,
    testing::Values(
        PermissionCase{"SendAllowed", "A.JBI", download, asterBit, true},
        PermissionCase{"SendToAnotherModel", "A.JBI", download, borinBit, false},
        PermissionCase{"SendToTheLastColumn", "A.JBI", download, tellusBit, true},
        PermissionCase{"ReceiveUsesTheOtherMask", "A.JBI", upload, borinBit, true},
        PermissionCase{"ReceiveRefused", "A.JBI", upload, asterBit, false},
        PermissionCase{"LowerCaseName", "a.jbi", download, asterBit, true},
        PermissionCase{"WholeNameFirst", "FIXED.JBI", download, asterBit, false},
        PermissionCase{"WholeNameInLowerCase", "fixed.jbi", upload, asterBit, true},
        PermissionCase{"ExtensionFromTheFirstPoint", "A.B.JBI", download, asterBit, false},
        PermissionCase{"PatternFromItsFirstPoint", "A.B.JBI", download, borinBit, true},
        PermissionCase{"TextBeforeThePointIsNotCompared", "A.CND", download, asterBit, true},
        PermissionCase{"NameWithoutPoint", "PLAIN", download, asterBit, true},
        PermissionCase{"UnknownWithoutPoint", "OTHER", download, asterBit, false},
        PermissionCase{"PointAtTheEnd", "OTHER.", download, asterBit, false},
        PermissionCase{"PatternWithPointStarNeverHits", "OLD.TXT", download, asterBit, false},
        PermissionCase{"NorANameThatEqualsIt", "OLD.*", download, asterBit, false},
        PermissionCase{"NorAnExtensionThatEqualsIt", "A.*", download, asterBit, false},
        PermissionCase{"NoRow", "A.TXT", download, asterBit, false},
        PermissionCase{"Empty", "", download, asterBit, false},
        PermissionCase{"ModelWithoutBit", "A.JBI", download, 0, false}),
    [](const auto& row) { return std::string(row.param.title); });

TEST(TransferTableFixedNames, AreTheWholeNamesThatTheModelMaySend) {
    const tests::TemporaryFolder folder;
    folder.write("FileTable.tbl", "*.JBI,1,1,1,1,1,1,1,1,1\r\nTOOL.CND,1,1,1,1,1,1,1,0,0\r\n"
                                  "ALL*.PRM,1,1,1,1,1,1,1,1,1\r\nPANEL.DAT,1,1,1,1,1,1,0,1,0\r\n");
    TransferTable table;
    ASSERT_TRUE(table.load(folder.path()));
    EXPECT_EQ(table.fixedNames(1), (std::vector<std::string>{"TOOL.CND"}));
    EXPECT_EQ(table.fixedNames(2), (std::vector<std::string>{"PANEL.DAT"}));
    EXPECT_TRUE(table.fixedNames(8).empty());
}

} // namespace
} // namespace vantrel
