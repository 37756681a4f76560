#include "SessionWorld.h"
#include "SimulatedWorld.h"

namespace vantrel {
namespace {

using testing::ElementsAre;

/// The session on the simulator through the real binding.
struct SimulatedSessionTest : testing::Test {
    tests::SimulatedWorld simulated;
    tests::SessionWorld world{&simulated.library};
    const std::string weld = tests::SessionWorld::job("WELD");

    std::vector<std::string> directory() {
        std::vector<std::string> list;
        EXPECT_TRUE(world.session->ReadDirectory(list));
        return list;
    }
};

TEST_F(SimulatedSessionTest, TheSimulatorTellsThatItIsOne) {
    const auto name = simulated.library.simulation();
    ASSERT_TRUE(name);
    EXPECT_FALSE(name->empty());
}

TEST_F(SimulatedSessionTest, AJobGoesThereReplacesAnOlderOneAndComesBack) {
    world.pc.write("WELD.JBI", weld);
    simulated.program.write("first/WELD.JBI", tests::SessionWorld::job("WELD", "OLD"));
    world.session->AddJobList("WELD.JBI");
    world.question.answers = {Answer::Yes, Answer::Yes};
    EXPECT_TRUE(world.session->JobListDownLoad()) << world.error();
    EXPECT_EQ(simulated.program.read("first/WELD.JBI"), weld);
    world.pc.write("WELD.JBI", "mine");
    EXPECT_TRUE(world.session->JobListUpLoad()) << world.error();
    EXPECT_EQ(world.pc.read("WELD.JBI"), weld);
    EXPECT_TRUE(world.session->JobDelete("WELD.JBI"));
    EXPECT_TRUE(directory().empty());
}

TEST_F(SimulatedSessionTest, VariablesGoThereAndComeBack) {
    EXPECT_TRUE(world.session->VarDownLoad("P1=412.5,0,930,180,0,-90")) << world.error();
    std::string entry = "p1=";
    EXPECT_TRUE(world.session->VarUpLoad(entry));
    EXPECT_EQ(entry, "P001=412.5,0,930,180,0,-90,0,0,0");
}

TEST_F(SimulatedSessionTest, ATransferThatIsCutShortLeavesTheOldFile) {
    simulated.program.write("first/WELD.JBI", weld);
    world.pc.write("WELD.JBI", "mine");
    simulated.script("1=BscUpLoad 1 cut 5\n");
    EXPECT_FALSE(world.session->JobUpLoad("WELD.JBI", true));
    EXPECT_EQ(world.error(), "BscUpLoad 3010 0");
    EXPECT_EQ(world.pc.read("WELD.JBI"), "mine");
}

TEST_F(SimulatedSessionTest, ATransferThatDoesNothingIsFoundOut) {
    simulated.program.write("first/WELD.JBI", weld);
    simulated.script("1=BscUpLoad 1 nothing\n");
    EXPECT_FALSE(world.session->JobUpLoad("WELD.JBI"));
    EXPECT_EQ(world.error(), "BscUpLoad 25 0");
}

TEST_F(SimulatedSessionTest, AfterAChangeOfAddressEveryOperationReachesThatRobotOnly) {
    world.mode = TransferMode::HispeedLink;
    simulated.program.write("first/FIRST.JBI", tests::SessionWorld::job("FIRST"));
    simulated.program.write("second/SECOND.JBI", tests::SessionWorld::job("SECOND"));
    world.pc.write("WELD.JBI", weld);
    Snappy& session = *world.session;
    session.IPaddress = "10.0.0.1";
    EXPECT_THAT(directory(), ElementsAre("FIRST.JBI"));
    session.IPaddress = "10.0.0.2";
    EXPECT_THAT(directory(), ElementsAre("SECOND.JBI"));
    EXPECT_TRUE(session.JobDownLoad("WELD.JBI"));
    EXPECT_FALSE(simulated.program.has("first/WELD.JBI"));
    EXPECT_TRUE(simulated.program.has("second/WELD.JBI"));
    EXPECT_FALSE(session.JobUpLoad("FIRST.JBI"));
    EXPECT_TRUE(session.JobUpLoad("SECOND.JBI"));
    EXPECT_FALSE(session.JobDelete("FIRST.JBI"));
    EXPECT_TRUE(session.JobDelete("SECOND.JBI"));
    EXPECT_TRUE(session.VarDownLoad("B1=5"));
    EXPECT_FALSE(simulated.program.has("first/variables.txt"));
    session.IPaddress = "10.0.0.1";
    std::string entry = "B1=";
    EXPECT_TRUE(session.VarUpLoad(entry));
    EXPECT_EQ(entry, "B001=0");
    EXPECT_THAT(directory(), ElementsAre("FIRST.JBI"));
}

} // namespace
} // namespace vantrel
