#include "app/settings/SettingsFile.h"

#include "base/ApplicationState.h"
#include "support/TemporaryFolder.h"

#include <clocale>
#include <filesystem>

#include <gtest/gtest.h>

namespace vantrel {
namespace {

class SettingsFileTest : public testing::Test {
  protected:
    ApplicationState read(std::string_view content) {
        folder_.write("Vantrel.ini", content);
        return read();
    }
    ApplicationState read() const {
        ApplicationState state;
        file_.read(state);
        return state;
    }
    /// The file after a write of `state`.
    std::string written(const ApplicationState& state, const WindowPlacement& placement = {}) {
        EXPECT_TRUE(file_.write(state, placement));
        return folder_.read("Vantrel.ini");
    }

    tests::TemporaryFolder folder_;
    SettingsFile file_{folder_.path(), "Vantrel.ini"};
};

struct NameCase {
    const char* name;
    const char* executable;
    const char* settings;
};

class SettingsFileNameTest : public testing::TestWithParam<NameCase> {};

TEST_P(SettingsFileNameTest, FollowsTheExecutable) {
    EXPECT_EQ(settingsFileName(GetParam().executable), GetParam().settings);
}

INSTANTIATE_TEST_SUITE_P(
    , SettingsFileNameTest,
    testing::Values(NameCase{"Windows", "C:\\Vantrel\\Vantrel.exe", "Vantrel.ini"},
                    NameCase{"Renamed", "tool.exe", "tool.ini"},
                    NameCase{"UpperCaseEnding", "D:/x/TOOL.EXE", "TOOL.ini"},
                    NameCase{"Posix", "/opt/vantrel/Vantrel", "Vantrel.ini"},
                    NameCase{"PointInTheName", "/opt/tool-1.2", "tool-1.2.ini"},
                    NameCase{"EndingOnly", ".exe", ".exe.ini"}),
    [](const auto& test) { return test.param.name; });

TEST_F(SettingsFileTest, LiesInTheProgramFolder) {
    EXPECT_EQ(file_.path(), folder_.path("Vantrel.ini"));
    EXPECT_EQ(SettingsFile(folder_.path() + "/", "a.ini").path(), folder_.path("a.ini"));
}

TEST_F(SettingsFileTest, WithoutAFileEverythingTakesItsDefault) {
    const ApplicationState state = read();
    EXPECT_EQ(state.PCPath, folder_.path());
    EXPECT_EQ(state.CurrentRobot.Path, folder_.path());
    EXPECT_EQ(state.Port, 1);
    EXPECT_EQ(state.Baudrate, 9600);
    EXPECT_EQ(state.Parity, 2);
    EXPECT_EQ(state.DataLen, 8);
    EXPECT_EQ(state.StopBit, 0);
    EXPECT_EQ(state.Controler, 4);
    EXPECT_EQ(state.SyncroRobotDir, 1);
    EXPECT_FALSE(state.JBR);
    EXPECT_FALSE(state.Headder);
    EXPECT_EQ(static_cast<int>(state.TransMode), 0);
    EXPECT_EQ(state.JobListFile, "*.lst");
    EXPECT_EQ(state.VarListFile, "*.lst");
    EXPECT_EQ(state.WindowPos, (std::array<std::int32_t, 8>{0, 0, 9720, 7000, 1400, 700, 1500, 0}));
    for (const auto* listing : {&state.PCListing, &state.CtrlListing}) {
        EXPECT_EQ(listing->SortType, 0);
        EXPECT_EQ(listing->SortDir, 0);
    }
    EXPECT_EQ(state.PCDispType, 1);
    EXPECT_EQ(state.CtrlDispType, 1);
    EXPECT_FALSE(folder_.has("Vantrel.ini"));
}

TEST_F(SettingsFileTest, EveryKeyIsRead) {
    const ApplicationState state =
        read("[Vantrel]\r\nPath=/jobs\r\nPort=3\r\nBaudrate=38400\r\nParity=1\r\nDataLen=7\r\n"
             "StopBit=2\r\nControler=5\r\nSyncroRobotDir=0\r\nJBR=True\r\nHeadder=True\r\n"
             "Window=1,2,3,4,5,6,7\r\nTransMode=16\r\nJobListFile=a.lst\r\nVarListFile=b.lst\r\n"
             "[PCType]\r\nDispType=3\r\nSortType=2\r\nSortDir=1\r\n"
             "[CtrlType]\r\nDispType=2\r\nSortType=1\r\nSortDir=5\r\n");
    EXPECT_EQ(state.PCPath, "/jobs");
    EXPECT_EQ(state.CurrentRobot.Path, "/jobs");
    EXPECT_EQ(state.Port, 3);
    EXPECT_EQ(state.Baudrate, 38400);
    EXPECT_EQ(state.Parity, 1);
    EXPECT_EQ(state.DataLen, 7);
    EXPECT_EQ(state.StopBit, 2);
    EXPECT_EQ(state.Controler, 5);
    EXPECT_EQ(state.SyncroRobotDir, 0);
    EXPECT_TRUE(state.JBR);
    EXPECT_TRUE(state.Headder);
    EXPECT_EQ(state.WindowPos, (std::array<std::int32_t, 8>{1, 2, 3, 4, 5, 6, 7, 0}));
    EXPECT_EQ(state.TransMode, TransferMode::HispeedLink);
    EXPECT_EQ(state.JobListFile, "a.lst");
    EXPECT_EQ(state.VarListFile, "b.lst");
    EXPECT_EQ(state.PCDispType, 3);
    EXPECT_EQ(state.PCListing.SortType, 2);
    EXPECT_EQ(state.PCListing.SortDir, 1);
    EXPECT_EQ(state.CtrlDispType, 2);
    EXPECT_EQ(state.CtrlListing.SortType, 1);
    EXPECT_EQ(state.CtrlListing.SortDir, 5);
}

TEST_F(SettingsFileTest, AnEmptyPathStaysEmptyAsItStands) {
    const ApplicationState state = read("[Vantrel]\r\nPath=\r\n");
    EXPECT_EQ(state.PCPath, "");
    EXPECT_EQ(state.CurrentRobot.Path, "");
}

TEST_F(SettingsFileTest, WithoutAPathItIsTheProgramFolderInFull) {
    EXPECT_EQ(read("[Vantrel]\r\nPort=2\r\n").PCPath, folder_.path());
    // Longer than the buffer that values are read into.
    const std::string deep = folder_.makeFolder(std::string(150, 'd'));
    ApplicationState state;
    SettingsFile(deep, "Vantrel.ini").read(state);
    EXPECT_EQ(state.PCPath, deep);
}

TEST_F(SettingsFileTest, ATextIsCutToTheBuffer) {
    const std::string path = "/" + std::string(200, 'p');
    EXPECT_EQ(read("[Vantrel]\r\nPath=" + path + "\r\n").PCPath, path.substr(0, 127));
}

TEST_F(SettingsFileTest, NumbersOutOfRangeStayAsTheyStand) {
    const ApplicationState state = read("[Vantrel]\r\nPort=-1\r\nControler=99\r\nParity=17\r\n"
                                        "TransMode=2\r\n[PCType]\r\nDispType=9\r\nSortType=-4\r\n");
    EXPECT_EQ(state.Port, -1);
    EXPECT_EQ(state.Controler, 99);
    EXPECT_EQ(state.Parity, 17);
    EXPECT_EQ(static_cast<int>(state.TransMode), 2);
    EXPECT_EQ(state.PCDispType, 9);
    EXPECT_EQ(state.PCListing.SortType, -4);
}

TEST_F(SettingsFileTest, ANumberBeyondTheFieldBecomesItsLimit) {
    const ApplicationState state = read("[Vantrel]\r\nPort=70000\r\nControler=-70000\r\n");
    EXPECT_EQ(state.Port, 32767);
    EXPECT_EQ(state.Controler, -32768);
}

struct BooleanCase {
    const char* name;
    const char* text;
    bool expected;
};

class SettingsBooleanTest : public SettingsFileTest,
                            public testing::WithParamInterface<BooleanCase> {};

TEST_P(SettingsBooleanTest, IsRead) {
    EXPECT_EQ(read("[Vantrel]\r\nJBR=" + std::string(GetParam().text) + "\r\n").JBR,
              GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(
    , SettingsBooleanTest,
    testing::Values(BooleanCase{"True", "True", true}, BooleanCase{"TrueInCapitals", "TRUE", true},
                    BooleanCase{"MinusOne", "-1", true}, BooleanCase{"One", "1", true},
                    BooleanCase{"Fraction", "0.5", true}, BooleanCase{"False", "False", false},
                    BooleanCase{"Zero", "0", false}, BooleanCase{"Empty", "", false},
                    BooleanCase{"AnyOtherWord", "yes", false}),
    [](const auto& test) { return test.param.name; });

struct ModeCase {
    const char* name;
    const char* text;
    int expected;
};

class SettingsModeTest : public SettingsFileTest, public testing::WithParamInterface<ModeCase> {};

TEST_P(SettingsModeTest, IsTheLeadingNumber) {
    const ApplicationState state =
        read("[Vantrel]\r\nTransMode=" + std::string(GetParam().text) + "\r\n");
    EXPECT_EQ(static_cast<int>(state.TransMode), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(, SettingsModeTest,
                         testing::Values(ModeCase{"Plain", "16", 16},
                                         ModeCase{"WithATail", "1abc", 1}, ModeCase{"Empty", "", 0},
                                         ModeCase{"Word", "abc", 0}, ModeCase{"Negative", "-3", -3},
                                         ModeCase{"TooLarge", "99999", 32767}),
                         [](const auto& test) { return test.param.name; });

TEST_F(SettingsFileTest, KeysAreWrittenInTheirOrder) {
    ApplicationState state = read();
    state.PCPath = "/jobs";
    state.JBR = true;
    state.TransMode = TransferMode::HispeedLink;
    state.CtrlListing.SortDir = 1;
    const WindowPlacement placement{.isNormal = true,
                                    .left = 15,
                                    .top = -30,
                                    .width = 9720,
                                    .height = 7000,
                                    .columnWidths = {1400, 712.5, 1500}};
    EXPECT_EQ(written(state, placement),
              "[Vantrel]\r\nPath=/jobs\r\nPort=1\r\nBaudrate=9600\r\nParity=2\r\nDataLen=8\r\n"
              "StopBit=0\r\nControler=4\r\nSyncroRobotDir=1\r\nJBR=True\r\nHeadder=False\r\n"
              "Window=15,-30,9720,7000,1399.75,712.5,1500.09\r\nTransMode=16\r\n"
              "JobListFile=*.lst\r\nVarListFile=*.lst\r\n"
              "[PCType]\r\nDispType=1\r\nSortType=0\r\nSortDir=0\r\n"
              "[CtrlType]\r\nDispType=1\r\nSortType=0\r\nSortDir=1\r\n");
}

TEST_F(SettingsFileTest, WhatIsWrittenReadsBack) {
    ApplicationState state = read("[Vantrel]\r\nPort=-1\r\nControler=99\r\nTransMode=2\r\n");
    state.PCPath = "/作業/ﾛﾎﾞｯﾄ";
    written(state);
    const ApplicationState again = read();
    EXPECT_EQ(again.PCPath, state.PCPath);
    EXPECT_EQ(again.Port, -1);
    EXPECT_EQ(again.Controler, 99);
    EXPECT_EQ(static_cast<int>(again.TransMode), 2);
}

TEST_F(SettingsFileTest, AWindowOfThreeNumbersLeavesTheOthersZero) {
    EXPECT_EQ(read("[Vantrel]\r\nWindow=10,20,30\r\n").WindowPos,
              (std::array<std::int32_t, 8>{10, 20, 30, 0, 0, 0, 0, 0}));
}

// Every value differs from its default and from every other value.
TEST_F(SettingsFileTest, EveryKeyGoesRound) {
    const std::string all =
        "[Vantrel]\r\nPath=/jobs\r\nPort=3\r\nBaudrate=1200\r\nParity=1\r\nDataLen=7\r\n"
        "StopBit=11\r\nControler=5\r\nSyncroRobotDir=0\r\nJBR=True\r\nHeadder=True\r\n"
        "Window=15,-30,9000,6000,1300.5,800,1600.25\r\nTransMode=16\r\n"
        "JobListFile=jobs.lst\r\nVarListFile=variables.lst\r\n"
        "[PCType]\r\nDispType=31\r\nSortType=21\r\nSortDir=12\r\n"
        "[CtrlType]\r\nDispType=22\r\nSortType=13\r\nSortDir=14\r\n";
    const ApplicationState state = read(all);
    folder_.write("Vantrel.ini", "");
    WindowPlacement placement{.left = 15, .top = -30, .width = 9000, .height = 6000};
    placement.columnWidths = {1300.5, 800, 1600.25};
    EXPECT_EQ(written(state, placement), all);
}

TEST_F(SettingsFileTest, EachTruthValueIsItsOwn) {
    EXPECT_TRUE(read("[Vantrel]\r\nJBR=True\r\n").JBR);
    EXPECT_FALSE(read("[Vantrel]\r\nJBR=True\r\n").Headder);
    ApplicationState state;
    state.Headder = true;
    const std::string after = written(state);
    EXPECT_NE(after.find("JBR=False\r\n"), std::string::npos);
    EXPECT_NE(after.find("Headder=True\r\n"), std::string::npos);
}

TEST_F(SettingsFileTest, AMaximisedWindowKeepsThePlacementOfTheStart) {
    ApplicationState state = read("[Vantrel]\r\nWindow=10,20,9000,5000,1,2,3\r\n");
    WindowPlacement placement{.isNormal = false, .left = -60, .top = -60, .width = 30000};
    placement.columnWidths = {4.5, 5, 6};
    EXPECT_NE(written(state, placement).find("Window=10,20,9000,5000,4.5,5,6\r\n"),
              std::string::npos);
}

TEST_F(SettingsFileTest, ForeignSectionsAndCommentsStay) {
    const std::string foreign = "; mine\r\n[Font Info]\r\nFontSize=9\r\n";
    ApplicationState state = read(foreign + "[Vantrel]\r\nPort=2\r\n");
    const std::string after = written(state);
    EXPECT_EQ(after.substr(0, foreign.size()), foreign);
    EXPECT_NE(after.find("Port=2\r\n"), std::string::npos);
}

TEST_F(SettingsFileTest, ATextThatCannotBeExpressedKeepsItsOldValueAndTheRestIsWritten) {
    ApplicationState state = read("[Vantrel]\r\nPath=/old\r\nPort=1\r\n");
    state.PCPath = "/\xF0\x9F\xA4\x96"; // a robot's face, which no code page holds
    state.Port = 5;
    EXPECT_FALSE(file_.write(state, {}));
    const ApplicationState again = read();
    EXPECT_EQ(again.PCPath, "/old");
    EXPECT_EQ(again.Port, 5);
}

TEST_F(SettingsFileTest, AFailingWriteIsAFailureWithAReason) {
    const SettingsFile nowhere(folder_.path("missing"), "Vantrel.ini");
    const Outcome written = nowhere.write(ApplicationState(), {});
    ASSERT_FALSE(written);
    EXPECT_FALSE(written.reason().empty());
}

TEST_F(SettingsFileTest, AFileThatCannotBeReadGivesTheDefaults) {
    folder_.makeFolder("Vantrel.ini");
    EXPECT_EQ(read().Port, 1);
}

TEST_F(SettingsFileTest, NumbersDoNotFollowTheLocale) {
    const std::string before = std::setlocale(LC_ALL, nullptr);
    for (const char* locale : {"de_DE.UTF-8", "fr_FR.UTF-8", "C"}) {
        if (std::setlocale(LC_ALL, locale) == nullptr)
            continue;
        WindowPlacement placement;
        placement.columnWidths = {0.5, 1.25, 2};
        EXPECT_NE(written(read(), placement).find("Window=0,0,0,0,0.5,1.25,2"), std::string::npos);
    }
    std::setlocale(LC_ALL, before.c_str());
}

TEST_F(SettingsFileTest, GarbageGivesTheDefaults) {
    for (const std::string& garbage :
         {std::string("\0\0\0", 3), std::string("[[[[\r\n====\r\n]]]]"),
          std::string(10'000'000, 'x'), std::string("\xFF\xFE[V"), std::string("[Vantrel")}) {
        const ApplicationState state = read(garbage);
        EXPECT_EQ(state.Port, 1);
        EXPECT_EQ(state.PCPath, folder_.path());
    }
}

} // namespace
} // namespace vantrel
