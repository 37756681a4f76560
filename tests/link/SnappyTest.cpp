#include "link/Snappy.h"

#include "SessionWorld.h"
#include "platform/Files.h"
#include "support/NamedRow.h"

#include <functional>

namespace vantrel {
namespace {

struct SnappyTest : testing::Test {
    tests::SessionWorld world;
};

TEST_F(SnappyTest, StartsWithItsDefaultsAndHiddenProgress) {
    ASSERT_TRUE(changeCurrentFolder(world.pc.path()));
    const Snappy session(world.services);
    EXPECT_EQ(session.port, 1);
    EXPECT_EQ(session.Baudrate, 9600);
    EXPECT_EQ(session.parity, 2);
    EXPECT_EQ(session.DataLen, 8);
    EXPECT_EQ(session.StopBit, 0);
    EXPECT_EQ(session.path, world.pc.path());
    EXPECT_TRUE(session.DisplayMonitor);
    EXPECT_EQ(session.MonitorTitle, "Snappy");
    EXPECT_EQ(session.IPaddress, "");
    EXPECT_EQ(session.JobListCount(), 0);
    EXPECT_EQ(session.VarListCount(), 0);
    EXPECT_EQ(session.ErrorCode(), 0);
    EXPECT_EQ(session.ErrorFunction(), "");
    EXPECT_EQ(session.ErrorIndex(), 0);
    EXPECT_FALSE(session.operatorIsTold());
    EXPECT_FALSE(world.panel.isVisible());
    EXPECT_EQ(world.panel.title(), "Snappy");
    EXPECT_EQ(world.library.callCount(), 0);
}

struct ModeRow : tests::NamedRow {
    std::int16_t mode;
    bool result;
    TransferMode set;
};

class TransferModeTest : public SnappyTest, public testing::WithParamInterface<ModeRow> {};

TEST_P(TransferModeTest, IsSetByTheCallersNumber) {
    world.mode = TransferMode::HispeedLink;
    EXPECT_EQ(world.session->SetTansMode(GetParam().mode), GetParam().result);
    EXPECT_EQ(world.mode, GetParam().set);
    EXPECT_EQ(world.modeChanges, 1);
}

INSTANTIATE_TEST_SUITE_P(Modes, TransferModeTest,
                         testing::Values(ModeRow{"Serial", 0, true, TransferMode::Bsc},
                                         ModeRow{"Ethernet", 1, true, TransferMode::HispeedLink},
                                         ModeRow{"Two", 2, false, TransferMode::Bsc},
                                         ModeRow{"Sixteen", 16, false, TransferMode::Bsc},
                                         ModeRow{"Negative", -1, false, TransferMode::Bsc}),
                         tests::rowName);

TEST_F(SnappyTest, ControllerErrorTextsHaveTheirRange) {
    EXPECT_EQ(world.session->GetCTRLError(999), "");
    EXPECT_EQ(world.session->GetCTRLError(1000), "first text");
    EXPECT_EQ(world.session->GetCTRLError(5200), "last text");
    EXPECT_EQ(world.session->GetCTRLError(5201), "");
    EXPECT_EQ(world.session->GetCTRLError(-1), "");
    EXPECT_EQ(world.session->GetCTRLError(502), "");
}

TEST_F(SnappyTest, TheLanguageIsLoadedBySelector) {
    world.program.write("Japanese.lng", "Start:\n34 \"one\" \"japanese\"\n");
    world.program.write("english.lng", "Start:\n34 \"one\" \"english\"\n");
    const auto textAfter = [this](std::int16_t selector) {
        world.session->SetLangageMode(selector);
        return world.messages.getMessage(34);
    };
    EXPECT_EQ(textAfter(2), "address unset");
    EXPECT_EQ(textAfter(-1), "address unset");
    EXPECT_EQ(textAfter(0), "japanese");
    EXPECT_EQ(textAfter(1), "english");
}

TEST_F(SnappyTest, AMissingLanguageFileKeepsTheTexts) {
    world.session->SetLangageMode(0);
    world.session->SetLangageMode(1);
    EXPECT_EQ(world.messages.getMessage(34), "address unset");
}

TEST_F(SnappyTest, QuittingUnloadsTheWindowsOnce) {
    world.session->Quit();
    world.session->Quit();
    EXPECT_EQ(world.view.unloads, 1);
    EXPECT_EQ(world.windowsUnloaded, 1);
}

TEST_F(SnappyTest, TheModeIsReadAtEveryConnect) {
    world.library.at("10.0.0.1");
    world.session->IPaddress = "10.0.0.1";
    std::vector<std::string> list;
    EXPECT_TRUE(world.session->ReadDirectory(list));
    world.mode = TransferMode::HispeedLink;
    EXPECT_TRUE(world.session->ReadDirectory(list));
    EXPECT_EQ(world.library.callCount("BscSetCom"), 1);
    EXPECT_EQ(world.library.callCount("BscSetEther"), 1);
}

TEST_F(SnappyTest, AnUnsetAddressIsToldOnceAndForgottenByTheNextOperation) {
    world.mode = TransferMode::HispeedLink;
    world.session->IPaddress = "0.0.0.0";
    std::vector<std::string> list;
    EXPECT_FALSE(world.session->ReadDirectory(list));
    EXPECT_TRUE(world.session->operatorIsTold());
    EXPECT_EQ(world.boxes.shown.size(), 1u);
    EXPECT_EQ(world.error(), " 0 0");
    world.mode = TransferMode::Bsc;
    EXPECT_TRUE(world.session->ReadDirectory(list));
    EXPECT_FALSE(world.session->operatorIsTold());
}

TEST_F(SnappyTest, AnUnsetAddressIsForgottenByTheListFilesToo) {
    world.pc.write("list.lst", "B1=1\n");
    world.session->SetVarListFile("list.lst");
    const std::function<bool(Snappy&)> operations[] = {
        [](Snappy& session) { return session.SetJobListFile("list.lst", true); },
        [](Snappy& session) { return session.ReadVarListFile(); },
        [](Snappy& session) { return session.WriteVarListFile("list.lst"); }};
    for (const auto& operation : operations) {
        std::vector<std::string> list;
        world.mode = TransferMode::HispeedLink;
        world.session->IPaddress = "0.0.0.0";
        EXPECT_FALSE(world.session->ReadDirectory(list));
        EXPECT_TRUE(operation(*world.session));
        EXPECT_FALSE(world.session->operatorIsTold());
    }
}

TEST_F(SnappyTest, EveryOperationThatIsRefusedAtOnceHidesTheProgressToo) {
    const std::function<bool(Snappy&)> operations[] = {
        [](Snappy& session) { return session.JobDownLoad("../A.JBI"); },
        [](Snappy& session) { return session.JobUpLoad("../A.JBI"); },
        [](Snappy& session) { return session.JobDelete("../A.JBI"); },
        [](Snappy& session) { return session.VarDownLoad("no entry"); },
        [](Snappy& session) {
            session.AddJobList("../A.JBI");
            return session.JobListUpLoad() || session.JobListDownLoad();
        },
        [](Snappy& session) {
            session.AddVarList("no entry");
            return session.VarListUpLoad() || session.VarListDownLoad();
        },
        [](Snappy& session) {
            session.path += "/nowhere";
            return session.JobUpLoad("A.JBI") || session.JobListUpLoad();
        }};
    for (const auto& operation : operations) {
        world.panel.show("command");
        EXPECT_FALSE(operation(*world.session));
        EXPECT_FALSE(world.panel.isVisible()) << world.error();
    }
}

struct OtherControllerRow : tests::NamedRow {
    void (*change)(tests::SessionWorld&);
};

class ChangedControllerTest : public SnappyTest,
                              public testing::WithParamInterface<OtherControllerRow> {};

/// The operator, or a script, changes the robot while a list is under way.
TEST_P(ChangedControllerTest, EndsTheOperationAtItsNextConnect) {
    for (const char* line : {"COM2", "10.0.0.1", "10.0.0.2"})
        world.library.at(line);
    world.session->IPaddress = "10.0.0.1";
    for (const char* name : {"A", "B"}) {
        world.pc.write(std::string(name) + ".JBI", tests::SessionWorld::job(name));
        world.session->AddJobList(std::string(name) + ".JBI");
    }
    world.library.onCall = [this](const std::string& function) {
        if (function == "BscDownLoad")
            GetParam().change(world);
    };
    EXPECT_FALSE(world.session->JobListDownLoad());
    EXPECT_EQ(world.error(), " 29 1");
    EXPECT_EQ(world.library.callCount("BscDownLoad"), 1);
    EXPECT_EQ(world.library.callCount("BscOpen"), 2);
    EXPECT_EQ(world.library.openLinks(), 0);
    world.library.onCall = nullptr;
    std::vector<std::string> list;
    EXPECT_TRUE(world.session->ReadDirectory(list)) << "the next operation takes it as it is";
}

INSTANTIATE_TEST_SUITE_P(
    Parts, ChangedControllerTest,
    testing::Values(
        OtherControllerRow{
            {"Address"}, [](tests::SessionWorld& world) { world.session->IPaddress = "10.0.0.2"; }},
        OtherControllerRow{{"Port"}, [](tests::SessionWorld& world) { world.session->port = 2; }},
        OtherControllerRow{
            {"Folder"},
            [](tests::SessionWorld& world) { world.session->path = world.program.path(); }},
        OtherControllerRow{{"Mode"},
                           [](tests::SessionWorld& world) { world.session->SetTansMode(1); }}),
    tests::rowName);

TEST_F(SnappyTest, AFolderThatChangesBetweenTwoFetchedFilesEndsItBeforeAQuestionAboutTheOther) {
    const tests::TemporaryFolder other;
    other.write("B.JBI", "mine");
    for (const char* name : {"A.JBI", "B.JBI"}) {
        world.controller().put(name, tests::SessionWorld::job(name));
        world.session->AddJobList(name);
    }
    world.view.onYield = [this, &other](int) {
        if (world.pc.has("A.JBI"))
            world.session->path = other.path();
    };
    EXPECT_FALSE(world.session->JobListUpLoad());
    EXPECT_EQ(world.error(), " 29 1");
    EXPECT_TRUE(world.pc.has("A.JBI"));
    EXPECT_EQ(other.read("B.JBI"), "mine");
    EXPECT_TRUE(world.question.questions.empty());
}

/// After a change of the address every operation goes to that robot and to no other.
TEST_F(SnappyTest, OfTwoRobotsOnlyTheOneOfTheAddressIsReached) {
    world.mode = TransferMode::HispeedLink;
    auto& first = world.library.at("10.0.0.1");
    auto& second = world.library.at("10.0.0.2");
    first.put("FIRST.JBI", "1");
    second.put("SECOND.JBI", "2");
    world.pc.write("NEW.JBI", tests::SessionWorld::job("NEW"));
    Snappy& session = *world.session;
    session.AddJobList("NEW.JBI");
    session.AddVarList("B1=5");
    session.IPaddress = "10.0.0.1";
    std::vector<std::string> list;
    EXPECT_TRUE(session.ReadDirectory(list));
    EXPECT_EQ(list, (std::vector<std::string>{"FIRST.JBI"}));

    const auto untouched = first;
    session.IPaddress = "10.0.0.2";
    world.library.forgetCalls();
    std::string entry = "B1=0";
    EXPECT_TRUE(session.ReadDirectory(list));
    EXPECT_EQ(list, (std::vector<std::string>{"SECOND.JBI"}));
    EXPECT_TRUE(session.JobListDownLoad());
    EXPECT_TRUE(session.JobDelete("NEW.JBI"));
    EXPECT_TRUE(session.JobDownLoad("NEW.JBI"));
    EXPECT_TRUE(session.JobUpLoad("SECOND.JBI"));
    EXPECT_FALSE(session.JobUpLoad("FIRST.JBI"));
    EXPECT_TRUE(session.VarListDownLoad());
    EXPECT_TRUE(session.VarUpLoad(entry));
    EXPECT_TRUE(session.VarListUpLoad());
    EXPECT_EQ(entry, "B001=5");
    EXPECT_TRUE(first == untouched);
    EXPECT_TRUE(second.has("NEW.JBI"));
    int connected = 0;
    for (const auto& call : world.library.calls())
        if (call.function == "BscSetEther") {
            ++connected;
            EXPECT_THAT(call.text, testing::HasSubstr(", 10.0.0.2, 0, 77)"));
        }
    EXPECT_EQ(connected, world.library.callCount("BscOpen"));
}

/// Folders that no library can work in: one that the code page cannot tell, one that is gone.
class UnusableFolderTest : public testing::TestWithParam<const char*> {
  protected:
    UnusableFolderTest() { world.session->path = world.pc.path(GetParam()); }
    std::string opened() const { return world.library.trace().at(0); }
    std::string programFolder() const { return "BscOpen(" + world.program.path() + ", 1)"; }

    tests::SessionWorld world;
};

TEST_P(UnusableFolderTest, TheDirectoryIsReadInTheProgramsFolder) {
    world.controller().put("A.JBI", tests::SessionWorld::job("A"));
    std::vector<std::string> names;
    ASSERT_TRUE(world.session->ReadDirectory(names)) << world.error();
    EXPECT_EQ(names, (std::vector<std::string>{"A.JBI"}));
    EXPECT_EQ(opened(), programFolder());
}

TEST_P(UnusableFolderTest, AJobIsDeletedInTheProgramsFolder) {
    world.controller().put("A.JBI", tests::SessionWorld::job("A"));
    ASSERT_TRUE(world.session->JobDelete("A.JBI")) << world.error();
    EXPECT_FALSE(world.controller().has("A.JBI"));
    EXPECT_EQ(opened(), programFolder());
}

TEST_P(UnusableFolderTest, NothingIsFetchedIntoAnotherFolder) {
    world.controller().put("A.JBI", tests::SessionWorld::job("A"));
    EXPECT_FALSE(world.session->JobUpLoad("A.JBI"));
    EXPECT_FALSE(world.program.has("A.JBI"));
}

TEST_P(UnusableFolderTest, NothingIsSentFromAnotherFolder) {
    world.program.write("A.JBI", tests::SessionWorld::job("A"));
    EXPECT_FALSE(world.session->JobDownLoad("A.JBI"));
    EXPECT_EQ(world.library.callCount("BscDownLoad"), 0);
}

INSTANTIATE_TEST_SUITE_P(Folders, UnusableFolderTest, testing::Values("\xED\x95\x9C", "gone"));

} // namespace
} // namespace vantrel
