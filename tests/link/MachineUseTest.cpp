#include "link/MachineUse.h"

#include "SessionWorld.h"
#include "base/DateText.h"
#include "link/LinkTest.h"
#include "link/SessionErrorRecord.h"
#include "platform/Environment.h"
#include "platform/Files.h"

#include <filesystem>

namespace vantrel {
namespace {

using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using Answer = MachineUse::Answer;

/// Two programs in one folder.
struct MachineUseTest : testing::Test {
    tests::TemporaryFolder folder;
    MachineUse mine{folder.path(), "mine", "get", true};
    MachineUse others{folder.path(), "Vantrel", "", false};
    const ReachedMachine robot{TransferMode::HispeedLink, 1, "10.0.0.1"};

    std::vector<std::string> locks() const {
        std::vector<std::string> names;
        if (folder.has("locks"))
            for (const auto& entry : std::filesystem::directory_iterator(folder.path("locks")))
                names.push_back(entry.path().filename().string());
        return names;
    }
};

TEST_F(MachineUseTest, AMachineIsOneProgramsUntilItsCommandHasEnded) {
    const MachineUse::Command waiting(&others);
    {
        const MachineUse::Command command(&mine);
        {
            const MachineUse::Command operation(&mine);
            EXPECT_EQ(mine.take(robot).answer, Answer::Taken);
        }
        EXPECT_EQ(mine.take(robot).answer, Answer::Taken) << "again";
        EXPECT_EQ(others.take(robot).answer, Answer::InUse);
    }
    EXPECT_THAT(locks(), IsEmpty());
    EXPECT_EQ(others.take(robot).answer, Answer::Taken);
}

TEST_F(MachineUseTest, WhoHoldsItIsTold) {
    const MachineUse::Command command(&mine);
    mine.take(robot);
    const MachineUser holder = others.take(robot).holder;
    EXPECT_EQ(holder.program, "mine");
    EXPECT_EQ(holder.command, "get");
    EXPECT_EQ(holder.user, userName());
    EXPECT_EQ(holder.computer, computerName());
    EXPECT_EQ(holder.process, std::to_string(processNumber()));
    EXPECT_EQ(holder.since.size(), DateText::length);
}

TEST_F(MachineUseTest, MachinesAreToldApartByTheirWays) {
    const MachineUse::Command command(&mine), other(&others);
    mine.take(robot);
    EXPECT_EQ(others.take({TransferMode::HispeedLink, 1, "10.0.0.2"}).answer, Answer::Taken);
    EXPECT_EQ(others.take({TransferMode::Bsc, 1, "10.0.0.1"}).answer, Answer::Taken);
    EXPECT_EQ(mine.take({TransferMode::Bsc, 2, ""}).answer, Answer::Taken);
    EXPECT_EQ(mine.take({TransferMode::Bsc, 1, "other"}).answer, Answer::InUse);
    EXPECT_EQ(others.take({TransferMode::HispeedLink, 1, " 010.00.0.001"}).answer, Answer::InUse)
        << "the same address in other words";
}

// An address comes from a file.
TEST_F(MachineUseTest, NoAddressLeadsOutOfTheFolder) {
    const MachineUse::Command command(&mine);
    mine.take({TransferMode::HispeedLink, 1, "../../x"});
    mine.take({TransferMode::HispeedLink, 1, "a/b\\c:*"});
    mine.take({TransferMode::HispeedLink, 1, ""});
    EXPECT_THAT(locks(),
                testing::UnorderedElementsAre("hispeed-..%2f..%2fx.lock",
                                              "hispeed-a%2fb%5cc%3a%2a.lock", "hispeed-.lock"));
}

TEST_F(MachineUseTest, WhatACrashLeftBehindIsNobodys) {
    folder.write("locks/hispeed-10.0.0.1.lock", "program=gone\n");
    const MachineUse::Command command(&mine);
    EXPECT_EQ(mine.take(robot).answer, Answer::Taken);
    // As others read it: a stream would want it for itself on one system.
    const auto entry = readFile(folder.path("locks/hispeed-10.0.0.1.lock"));
    ASSERT_TRUE(entry) << entry.reason();
    EXPECT_THAT(*entry, HasSubstr("program=mine\n"));
}

TEST_F(MachineUseTest, ALockThatCannotBeMadeIsTold) {
    folder.write("locks", "no folder");
    const MachineUse::Command command(&mine);
    const auto taking = mine.take(robot);
    EXPECT_EQ(taking.answer, Answer::NotHeld);
    EXPECT_EQ(taking.file, folder.path("locks"));
    EXPECT_FALSE(taking.reason.empty());
}

TEST(ShownUserTest, LeavesOutWhatIsNotKnown) {
    MessageTable messages;
    messages.replace({{662, "process %", "process %"},
                      {663, "since %", "since %"},
                      {664, "another program", "another program"}});
    EXPECT_EQ(shownUser(messages, {}), "another program");
    EXPECT_EQ(shownUser(messages, {.program = "vantrelctl",
                                   .command = "get",
                                   .user = "who",
                                   .computer = "where",
                                   .process = "7",
                                   .since = "then"}),
              "vantrelctl get, who@where, process 7, since then");
}

/// A session of this program, and another program.
struct SessionInUseTest : MachineUseTest {
    tests::SessionWorld world;
    std::unique_ptr<Snappy> session;

    SessionInUseTest() { use(mine); }

    void use(MachineUse& with) {
        world.services.use = &with;
        session = std::make_unique<Snappy>(world.services);
        session->path = world.pc.path();
        world.messages.replace({{660, "% in use by %", "% in use by %"},
                                {661, "% not held: %", "% not held: %"},
                                {663, "since %", "since %"}});
    }
};

TEST_F(SessionInUseTest, NothingReachesAMachineThatAnotherProgramWorksWith) {
    world.controller().put("A.JBI", tests::SessionWorld::job("A"));
    world.pc.write("B.JBI", tests::SessionWorld::job("B"));
    const MachineUse::Command command(&others);
    others.take({TransferMode::Bsc, 1, ""});
    std::vector<std::string> names;
    std::string variable = "B000";
    EXPECT_FALSE(session->ReadDirectory(names));
    EXPECT_EQ(session->ErrorCode(), session_code::machineInUse);
    EXPECT_EQ(session->ErrorFunction(), "");
    EXPECT_THAT(session->errorText(), AllOf(HasSubstr("COM1 in use by Vantrel, "),
                                            HasSubstr(userName() + "@" + computerName())));
    EXPECT_FALSE(session->JobDownLoad("B.JBI"));
    EXPECT_FALSE(session->JobUpLoad("A.JBI"));
    EXPECT_FALSE(session->JobDelete("A.JBI"));
    EXPECT_FALSE(session->VarUpLoad(variable));
    EXPECT_FALSE(session->VarDownLoad("B000=1"));
    std::string fault;
    session->testLink({}, [&fault](const LinkTestStep& step) { fault = step.fault->text; });
    EXPECT_THAT(fault, HasSubstr("COM1 in use by Vantrel"));
    EXPECT_THAT(world.library.trace(), IsEmpty());
}

TEST_F(SessionInUseTest, BetweenTwoFilesOfACommandNobodyGetsIn) {
    const MachineUse::Command other(&others);
    std::vector<std::string> names;
    {
        const MachineUse::Command command(&mine);
        EXPECT_TRUE(session->ReadDirectory(names));
        EXPECT_EQ(others.take({TransferMode::Bsc, 1, ""}).answer, Answer::InUse);
        EXPECT_TRUE(session->ReadDirectory(names));
    }
    EXPECT_EQ(others.take({TransferMode::Bsc, 1, ""}).answer, Answer::Taken);
}

TEST_F(SessionInUseTest, AnOperationByItselfKeepsItsMachineNoLonger) {
    std::vector<std::string> names;
    EXPECT_TRUE(session->ReadDirectory(names));
    session->testLink({}, [](const LinkTestStep&) {});
    EXPECT_THAT(locks(), IsEmpty());
}

TEST_F(SessionInUseTest, WithoutALockOnlyTheStrictProgramStops) {
    folder.write("locks", "no folder");
    std::vector<std::string> names;
    EXPECT_FALSE(session->ReadDirectory(names));
    EXPECT_EQ(session->ErrorCode(), session_code::machineNotHeld);
    EXPECT_THAT(session->errorText(), HasSubstr("locks not held: "));
    use(others);
    EXPECT_TRUE(session->ReadDirectory(names));
}

TEST_F(SessionInUseTest, AnUnsetAddressIsNoMachine) {
    world.mode = TransferMode::HispeedLink;
    session->IPaddress = "0.0.0.0";
    std::vector<std::string> names;
    EXPECT_FALSE(session->ReadDirectory(names));
    EXPECT_TRUE(session->operatorIsTold());
    EXPECT_FALSE(folder.has("locks"));
}

} // namespace
} // namespace vantrel
