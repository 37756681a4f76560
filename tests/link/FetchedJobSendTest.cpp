#include "EndingFiles.h"
#include "JobSendFixture.h"
#include "link/FetchMark.h"
#include "link/JobSend.h"
#include "link/ReplacedFile.h"

#include <filesystem>

namespace vantrel {
namespace {

using testing::IsEmpty;

/// A file that another program is fetching is half of one.
struct FetchedJobSendTest : tests::JobSendFixture {
    const std::string mark = FetchMark::fileNameFor("WELD.JBI");
    tests::FailingFiles files;

    void expectRefused() {
        EXPECT_EQ(world.error(), " 21 0");
        EXPECT_EQ(world.controller().bytes("WELD.JBI"), older);
    }
};

TEST_F(FetchedJobSendTest, IsRefusedBeforeTheDirectoryIsRead) {
    world.controller().put("WELD.JBI", older);
    const ReplacedFile running(files, world.pc.path(), "WELD.JBI");
    world.pc.write("WELD.JBI", weld);
    EXPECT_FALSE(send("WELD.JBI", true));
    expectRefused();
    EXPECT_EQ(world.library.callCount(), 0);
}

TEST_F(FetchedJobSendTest, IsRefusedInAListToo) {
    world.controller().put("WELD.JBI", older);
    world.pc.write(mark, FetchMark{.name = "WELD.JBI"}.format());
    world.session->AddJobList("WELD.JBI");
    world.question.answers = {Answer::Yes};
    EXPECT_FALSE(world.session->JobListDownLoad());
    expectRefused();
    EXPECT_THAT(world.question.questions, IsEmpty());
}

TEST_F(FetchedJobSendTest, IsRefusedWhenTheFetchBeganDuringTheQuestion) {
    world.controller().put("WELD.JBI", older);
    world.question.answers = {Answer::Yes};
    world.question.whileOpen = [this] {
        world.pc.write(mark, FetchMark{.name = "WELD.JBI"}.format());
    };
    EXPECT_FALSE(send("WELD.JBI"));
    expectRefused();
}

TEST_F(FetchedJobSendTest, OneThatBeginsWhileTheSendConnectsKeepsADataFileBackToo) {
    const std::string data = FetchMark::fileNameFor("TOOL.CND");
    world.pc.write("TOOL.CND", "half");
    world.controller().put("TOOL.CND", "whole");
    world.library.onCall = [&](const std::string& function) {
        if (function == "BscConnect")
            world.pc.write(data, FetchMark{.name = "TOOL.CND"}.format());
    };
    EXPECT_FALSE(send("TOOL.CND", true));
    EXPECT_EQ(world.error(), " 21 0");
    EXPECT_EQ(world.controller().bytes("TOOL.CND"), "whole");
    EXPECT_EQ(world.library.openLinks(), 0);
}

TEST_F(FetchedJobSendTest, OneThatTheOperatorWasToldOfIsSent) {
    world.services.files = &files;
    world.session = std::make_unique<Snappy>(world.services);
    world.session->path = world.pc.path();
    files.failsRemoveMark = true;
    world.pc.write(mark, FetchMark{.name = "WELD.JBI"}.format());
    EXPECT_TRUE(world.session->settleInterruptedFetches(world.pc.path(), {mark}));
    EXPECT_TRUE(world.pc.has(mark));
    world.pc.write("WELD.JBI", weld);
    EXPECT_TRUE(send("WELD.JBI"));
}

TEST_F(FetchedJobSendTest, BesideADamagedMarkIsRefusedByACodeOfItsOwnThatNamesTheMark) {
    world.controller().put("WELD.JBI", older);
    world.pc.write(mark, "Vantrel fetch 2\nWELD.JBI\nend\n");
    const auto expectNamed = [this] {
        EXPECT_EQ(world.error(), " 47 0");
        EXPECT_EQ(world.session->errorText(), "mark unusable");
        EXPECT_EQ(world.session->unusableMark(), mark);
        EXPECT_EQ(world.controller().bytes("WELD.JBI"), older);
    };
    EXPECT_FALSE(send("WELD.JBI", true)) << "though nobody has looked at the folder";
    expectNamed();
    EXPECT_TRUE(world.session->settleInterruptedFetches(world.pc.path(), {mark, "WELD.JBI"}));
    EXPECT_FALSE(send("WELD.JBI", true)) << "though the operator was told";
    expectNamed();
    EXPECT_EQ(world.library.callCount(), 0);
    std::filesystem::remove(world.pc.path(mark));
    EXPECT_TRUE(send("WELD.JBI", true));
    EXPECT_EQ(world.controller().bytes("WELD.JBI"), weld);
}

TEST_F(FetchedJobSendTest, AnotherFailureNamesNoMark) {
    world.pc.write(mark, "?");
    EXPECT_FALSE(send("WELD.JBI", true));
    EXPECT_FALSE(send("NOWHERE.JBI", true));
    EXPECT_EQ(world.error(), " 21 0");
    EXPECT_EQ(world.session->unusableMark(), "");
}

TEST_F(FetchedJobSendTest, ATornMarkGoesAndTheFileIsSent) {
    world.pc.write(mark, "Vantrel fe");
    EXPECT_TRUE(send("WELD.JBI", true));
    EXPECT_FALSE(world.pc.has(mark));
}

} // namespace
} // namespace vantrel
