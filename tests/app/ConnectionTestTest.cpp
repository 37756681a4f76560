#include "app/robots/ConnectionTest.h"

#include "AppFakes.h"
#include "app/robots/RobotFile.h"
#include "app/robots/RobotListDraft.h"
#include "support/NamedRow.h"

#include <gmock/gmock.h>

namespace vantrel {
namespace {

using testing::Each;
using testing::ElementsAre;

constexpr const char* failed = "m405: ";
constexpr const char* untried = "m406";
constexpr const char* done = "m325";

RobotRecord robotAt(const std::string& address) {
    RobotRecord robot;
    robot.Name = "LINE1 WELD";
    setAddress(robot, address);
    return robot;
}

class ConnectionTestTest : public testing::Test {
  protected:
    ConnectionTestTest() {
        desk.session.path = desk.folder.path();
        desk.library.at("10.0.0.1");
        desk.library.at("COM1");
        desk.state.TransMode = TransferMode::HispeedLink;
        desk.state.CurrentRobot = robotAt("10.0.0.1");
    }

    ConnectionTest testOf(const TestedController& controller) {
        return ConnectionTest({.state = desk.state,
                               .messages = desk.messages,
                               .session = desk.session,
                               .window = desk.window,
                               .libraryProblem = [this] { return problem; }},
                              controller);
    }
    static std::vector<std::string> outcomes(const ConnectionTest& test) {
        std::vector<std::string> all;
        for (std::size_t step = 0; step < ConnectionTest::stepCount; ++step)
            all.push_back(test.outcome(step));
        return all;
    }
    std::vector<std::string> outcomesInForce() {
        ConnectionTest test = testOf(controllerInForce(desk.state));
        test.run([] {});
        return outcomes(test);
    }

    tests::Desk desk;
    std::string problem;
};

TEST_F(ConnectionTestTest, NamesTheControllerAndItsSteps) {
    ConnectionTest test = testOf(controllerInForce(desk.state));
    EXPECT_EQ(test.heading(), "LINE1 WELD (10.0.0.1)");
    EXPECT_THAT(outcomes(test), Each(std::string()));
    test.run([] {});
    EXPECT_THAT(outcomes(test), Each(done));
    EXPECT_EQ(test.text(), "LINE1 WELD (10.0.0.1)\nm6493\tm325\nm6494\tm325\nm6495\tm325\n"
                           "m6496\tm325\nm6497\tm325\n");
}

TEST_F(ConnectionTestTest, TellsOfEachStepAsItBeginsAndEnds) {
    std::vector<std::string> seen;
    ConnectionTest test = testOf(controllerInForce(desk.state));
    test.run([&] {
        std::string line;
        for (const std::string& outcome : outcomes(test))
            line += outcome.empty() ? "-" : outcome == done ? "+" : outcome;
        seen.push_back(line);
        EXPECT_EQ(desk.window.lockDepth, seen.size() < 6 ? 1 : 0);
    });
    EXPECT_THAT(seen, ElementsAre("...----", "+...---", "++...--", "+++...-", "++++...", "+++++"));
    EXPECT_EQ(desk.window.lockDepth, 0);
}

TEST_F(ConnectionTestTest, ALibraryThatCannotBeUsedIsAllThatIsTold) {
    problem = "cannot be used: x.so\nno such file";
    EXPECT_THAT(outcomesInForce(), ElementsAre(failed + std::string("cannot be used: x.so no such "
                                                                    "file"),
                                               untried, untried, untried, untried));
    EXPECT_EQ(desk.library.callCount(), 0);
    EXPECT_TRUE(desk.boxes.shown.empty());
}

struct AddressRow : tests::NamedRow {
    const char* address;
    const char* reason;
};

class RefusedAddressTest : public ConnectionTestTest,
                           public testing::WithParamInterface<AddressRow> {};

TEST_P(RefusedAddressTest, IsToldBeforeALinkIsOpened) {
    desk.state.CurrentRobot = robotAt(GetParam().address);
    EXPECT_THAT(outcomesInForce(), ElementsAre(done, failed + std::string(GetParam().reason),
                                               untried, untried, untried));
    EXPECT_EQ(desk.library.callCount(), 0);
    EXPECT_TRUE(desk.boxes.shown.empty());
}

INSTANTIATE_TEST_SUITE_P(At, RefusedAddressTest,
                         testing::Values(AddressRow{{"Empty"}, "", "m34"},
                                         AddressRow{{"Zeros"}, "0.0.0.0", "m34"},
                                         AddressRow{{"TooLarge"}, "10.0.0.256", "m6498"},
                                         AddressRow{{"Short"}, "10.0.0", "m6498"},
                                         AddressRow{{"Long"}, "10.0.0.1.2", "m6498"},
                                         AddressRow{{"Word"}, "robot", "m6498"}),
                         tests::rowName);

struct FaultRow : tests::NamedRow {
    const char* function;
    std::vector<std::string> outcomes;
};

class FaultyStepTest : public ConnectionTestTest, public testing::WithParamInterface<FaultRow> {};

TEST_P(FaultyStepTest, HasFunctionTextAndCode) {
    desk.library.disturb({.function = GetParam().function, .code = -2040});
    EXPECT_EQ(outcomesInForce(), GetParam().outcomes);
    EXPECT_EQ(desk.window.lockDepth, 0);
}

INSTANTIATE_TEST_SUITE_P(
    At, FaultyStepTest,
    testing::Values(
        FaultRow{{"Open"}, "BscOpen", {done, done, "m405: BscOpen ( -2040 )", untried, untried}},
        FaultRow{{"Connect"},
                 "BscConnect",
                 {done, done, "m405: BscConnect ( -2040 )", untried, untried}},
        FaultRow{{"Answer"}, "BscFindFirst", {done, done, done, "m405: BscFind ( -2040 )", done}},
        FaultRow{{"Close"}, "BscClose", {done, done, done, done, "m405: BscClose ( -2040 )"}}),
    tests::rowName);

TEST_F(ConnectionTestTest, ASerialLineIsTestedByItsPortWhateverTheAddress) {
    desk.state.TransMode = TransferMode::Bsc;
    desk.state.CurrentRobot = {};
    ConnectionTest test = testOf(controllerInForce(desk.state));
    EXPECT_EQ(test.heading().substr(0, 5), "COM1:");
    test.run([] {});
    EXPECT_THAT(outcomes(test), Each(done));
    desk.state.Port = 0;
    EXPECT_EQ(outcomesInForce().at(1), "m405: m6508");
}

TEST_F(ConnectionTestTest, ARobotThatIsEditedIsTriedAsItWouldBeStored) {
    RobotListDraft draft({robotAt("10.0.0.1"), emptyRobotList().front()}, 0, {});
    const auto tested = [&] {
        return controllerOf(draft.entries().front(), {}, TransferMode::HispeedLink).robot.IPaddr;
    };
    EXPECT_EQ(tested(), "10.0.0.1");
    draft.setAddressPart(3, "009");
    EXPECT_EQ(tested(), "10.0.0.9");
    desk.library.at("10.0.0.9");
    ConnectionTest test =
        testOf(controllerOf(draft.entries().front(), {}, TransferMode::HispeedLink));
    test.run([] {});
    EXPECT_THAT(outcomes(test), Each(done));
    EXPECT_EQ(desk.library.trace().at(1), "BscSetEther(1, 10.0.0.9, 0, 0)");
    EXPECT_EQ(desk.session.IPaddress, "");
}

TEST_F(ConnectionTestTest, AMissingPartIsNoZero) {
    RobotListDraft draft({robotAt("10.0.0.1"), emptyRobotList().front()}, 0, {});
    draft.setAddressPart(2, "");
    ConnectionTest test =
        testOf(controllerOf(draft.entries().front(), {}, TransferMode::HispeedLink));
    test.run([] {});
    EXPECT_EQ(test.outcome(ConnectionTest::Place), "m405: m6498");
}

TEST_F(ConnectionTestTest, NothingIsDoneWhileACommandRuns) {
    desk.state.Busy = true;
    ConnectionTest test = testOf(controllerInForce(desk.state));
    test.run([] { ADD_FAILURE(); });
    EXPECT_EQ(desk.library.callCount(), 0);
}

TEST_F(ConnectionTestTest, CanBeRunAgain) {
    ConnectionTest test = testOf(controllerInForce(desk.state));
    desk.library.disturb({.function = "BscConnect", .code = -2040});
    test.run([] {});
    desk.library.disturb({.function = "none"});
    test.run([] {});
    EXPECT_THAT(outcomes(test), Each(done));
}

} // namespace
} // namespace vantrel
