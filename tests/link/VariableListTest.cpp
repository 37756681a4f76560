#include "link/VariableList.h"

#include "SessionWorld.h"
#include "support/NamedRow.h"
#include "support/SystemReasons.h"

namespace vantrel {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct VariableListTest : testing::Test {
    tests::SessionWorld world;

    bool read(std::string_view content) {
        world.pc.write("vars.lst", content);
        world.session->SetVarListFile("vars.lst");
        return world.session->ReadVarListFile();
    }
    std::vector<std::string> list() const {
        std::vector<std::string> all;
        for (std::int32_t i = 0; i < world.session->VarListCount(); ++i)
            all.push_back(world.session->VarList(i));
        return all;
    }
};

TEST_F(VariableListTest, EntriesAreAddedRemovedAndCleared) {
    world.session->AddVarList("B1=1");
    world.session->AddVarList("B2=2");
    world.session->RemoveVarList(0);
    world.session->RemoveVarList(5);
    EXPECT_THAT(list(), ElementsAre("B2=2"));
    EXPECT_EQ(world.session->VarList(-1), "");
    EXPECT_EQ(world.session->VarList(1), "");
    world.session->VarListClear();
    EXPECT_EQ(world.session->VarListCount(), 0);
}

TEST_F(VariableListTest, EveryLineIsAnEntryBlankOnesToo) {
    world.session->AddVarList("old");
    EXPECT_TRUE(read("B1=1\r\n\r\n  \r\nnonsense\r\n"));
    EXPECT_THAT(list(), ElementsAre("B1=1", "", "  ", "nonsense"));
}

// In the code page the last line alone would be taken for UTF-8.
TEST_F(VariableListTest, ACodePageListThatWouldBeReadOtherwiseGoesOnInUtf8) {
    EXPECT_TRUE(read("\x83\x7B\r\n\xD3\xB0\r\n"));
    const std::string kept = world.session->VarList(1);
    world.session->RemoveVarList(0);
    EXPECT_TRUE(world.session->WriteVarListFile("vars.lst"));
    EXPECT_TRUE(world.session->ReadVarListFile());
    EXPECT_THAT(list(), ElementsAre(kept));
}

TEST_F(VariableListTest, AListThatCannotBeOpenedIsEmptyAndRecorded) {
    world.session->AddVarList("old");
    world.session->SetVarListFile("none.lst");
    EXPECT_FALSE(world.session->ReadVarListFile());
    EXPECT_EQ(world.error(), " 6 0");
    EXPECT_THAT(list(), IsEmpty());
}

TEST_F(VariableListTest, NamesThatAreNotPlainAreNeitherReadNorWritten) {
    world.pc.write("sub/vars.lst", "B1=1\n");
    const std::string absolute = world.pc.write("vars.lst", "B1=1\n");
    for (const std::string& name :
         {std::string(), std::string("sub/vars.lst"), std::string("../vars.lst"), absolute}) {
        world.session->VarListClear();
        world.session->SetVarListFile(name);
        EXPECT_FALSE(world.session->ReadVarListFile());
        EXPECT_EQ(world.error(), " 23 0");
        EXPECT_THAT(list(), IsEmpty());
        world.session->AddVarList("B2=2");
        EXPECT_FALSE(world.session->WriteVarListFile(name));
        EXPECT_EQ(world.error(), " 23 0");
    }
    EXPECT_EQ(world.pc.read("sub/vars.lst"), "B1=1\n");
    EXPECT_EQ(world.pc.read("vars.lst"), "B1=1\n");
}

TEST_F(VariableListTest, AListThatCouldNotBeReadIsNotWrittenOverAFile) {
    world.pc.write("good.lst", "B1=1\r\n");
    world.session->SetVarListFile("none.lst");
    ASSERT_FALSE(world.session->ReadVarListFile());
    EXPECT_FALSE(world.session->WriteVarListFile("good.lst"));
    EXPECT_EQ(world.error(), " 35 0");
    EXPECT_EQ(world.pc.read("good.lst"), "B1=1\r\n");
    world.session->AddVarList("B2=2");
    EXPECT_TRUE(world.session->WriteVarListFile("good.lst"));
    EXPECT_EQ(world.pc.read("good.lst"), "B2=2\r\n");
}

TEST_F(VariableListTest, AnEmptyListThatWasReadIsWritten) {
    world.session->SetVarListFile("none.lst");
    ASSERT_FALSE(world.session->ReadVarListFile());
    ASSERT_TRUE(read(""));
    EXPECT_TRUE(world.session->WriteVarListFile("copy.lst"));
    EXPECT_TRUE(world.pc.has("copy.lst"));
}

TEST_F(VariableListTest, WhatTheSystemSaidIsKeptUntilTheNextFailure) {
    world.pc.makeFolder("folder.lst");
    world.session->SetVarListFile("none.lst");
    EXPECT_FALSE(world.session->ReadVarListFile());
    EXPECT_THAT(world.session->systemReason(), testing::HasSubstr(tests::noSuchFile()));
    EXPECT_FALSE(world.session->WriteVarListFile("good.lst"));
    EXPECT_EQ(world.session->systemReason(), "");
    world.session->AddVarList("B1=1");
    EXPECT_FALSE(world.session->WriteVarListFile("folder.lst"));
    EXPECT_NE(world.session->systemReason(), "");
    EXPECT_FALSE(world.session->WriteVarListFile("../good.lst"));
    EXPECT_EQ(world.session->systemReason(), "");
}

TEST_F(VariableListTest, ReadingAndWritingAreOperationsThatHideTheProgress) {
    world.pc.write("vars.lst", "B1=1\n");
    for (const char* name : {"vars.lst", "none.lst", "../vars.lst"}) {
        world.session->SetVarListFile(name);
        world.panel.show("command");
        world.session->ReadVarListFile();
        EXPECT_FALSE(world.panel.isVisible()) << name;
        world.panel.show("command");
        world.session->WriteVarListFile(name);
        EXPECT_FALSE(world.panel.isVisible()) << name;
    }
}

struct RoundTripRow : tests::NamedRow {
    std::string bytes;
};

class VariableListRoundTripTest : public VariableListTest,
                                  public testing::WithParamInterface<RoundTripRow> {};

TEST_P(VariableListRoundTripTest, KeepsEncodingLineEndsAndBlankLines) {
    ASSERT_TRUE(read(GetParam().bytes));
    EXPECT_TRUE(world.session->WriteVarListFile("copy.lst"));
    EXPECT_EQ(world.pc.read("copy.lst"), GetParam().bytes);
}

INSTANTIATE_TEST_SUITE_P(Files, VariableListRoundTripTest,
                         testing::Values(RoundTripRow{"Plain", "B001=1\r\nB002=2\r\n"},
                                         RoundTripRow{"LineFeeds", "B001=1\nB002=2\n"},
                                         RoundTripRow{"CarriageReturns", "B001=1\rB002=2\r"},
                                         RoundTripRow{"BlankLines", "\r\nB001=1\r\n\r\n"},
                                         RoundTripRow{"CodePage", "\x83\x5C\r\n"},
                                         RoundTripRow{"Utf8", "\xE3\x82\xBD\r\n"},
                                         RoundTripRow{"WithMark", "\xEF\xBB\xBF"
                                                                  "B001=1\r\n"},
                                         RoundTripRow{"Utf16", std::string("\xFF\xFE"
                                                                           "B\0\r\0\n\0",
                                                                           8)},
                                         RoundTripRow{"Empty", ""}),
                         tests::rowName);

TEST_F(VariableListTest, AListThatWasNeverReadIsWrittenWithWindowsLineEnds) {
    world.session->AddVarList("B001=1");
    world.session->AddVarList("B002=2");
    EXPECT_TRUE(world.session->WriteVarListFile("new.lst"));
    EXPECT_EQ(world.pc.read("new.lst"), "B001=1\r\nB002=2\r\n");
}

TEST_F(VariableListTest, ALineThatTheCodePageLacksTurnsTheFileIntoUtf8) {
    ASSERT_TRUE(read("\x83\x5C\r\n"));
    world.session->AddVarList("\xED\x95\x9C");
    EXPECT_TRUE(world.session->WriteVarListFile("vars.lst"));
    EXPECT_EQ(world.pc.read("vars.lst"), "\xE3\x82\xBD\r\n\xED\x95\x9C\r\n");
}

TEST_F(VariableListTest, AFileThatCannotBeWrittenIsRecorded) {
    world.pc.makeFolder("vars.lst");
    EXPECT_FALSE(world.session->WriteVarListFile("vars.lst"));
    EXPECT_EQ(world.error(), " 6 0");
}

TEST_F(VariableListTest, FilesStandInTheSessionsFolderOnly) {
    world.program.write("vars.lst", "B1=1");
    std::string entry = "B1=1";
    ASSERT_TRUE(world.session->VarUpLoad(entry)); // makes the program's folder current
    world.session->SetVarListFile("vars.lst");
    EXPECT_FALSE(world.session->ReadVarListFile());
}

TEST_F(VariableListTest, GarbageIsTakenWithoutHarm) {
    EXPECT_TRUE(read(std::string("\0\xFF\x80=\n", 5) + std::string(10'000'000, 'B')));
    EXPECT_EQ(list().size(), 2u);
    EXPECT_FALSE(world.session->VarListDownLoad());
    EXPECT_EQ(world.error(), " 22 0");
}

} // namespace
} // namespace vantrel
