#include "link/LinkTest.h"

#include "SessionWorld.h"
#include "link/Snappy.h"
#include "support/NamedRow.h"

#include <gmock/gmock.h>

namespace vantrel {
namespace {

using testing::ElementsAre;
using Kind = LinkTestStep::Kind;

constexpr const char* address = "10.0.0.7";

struct LinkTestTest : testing::Test {
    LinkTestTest() { world.library.at(address); }

    std::vector<LinkTestStep> test(const LinkTarget& target) {
        std::vector<LinkTestStep> steps;
        world.session->testLink(target, [&](const LinkTestStep& step) { steps.push_back(step); });
        return steps;
    }
    std::vector<LinkTestStep> testAddress() {
        return test({.mode = TransferMode::HispeedLink, .address = address});
    }

    tests::SessionWorld world;
};

TEST_F(LinkTestTest, OpensAsksAndClosesAnAddressThatIsNotInForce) {
    world.session->IPaddress = "10.0.0.1";
    EXPECT_THAT(testAddress(), ElementsAre(LinkTestStep{Kind::Open}, LinkTestStep{Kind::Answer},
                                           LinkTestStep{Kind::Close}));
    EXPECT_THAT(world.library.trace(),
                ElementsAre("BscOpen(" + world.pc.path() + ", 16)",
                            "BscSetEther(1, 10.0.0.7, 0, 77)", "BscConnect(1)",
                            "BscFindFirst(1, 255)", "BscDisConnect(1)", "BscClose(1)"));
    EXPECT_EQ(world.mode, TransferMode::Bsc);
    EXPECT_EQ(world.session->IPaddress, "10.0.0.1");
}

TEST_F(LinkTestTest, TakesTheSerialLineOfTheTarget) {
    world.library.at("COM3");
    world.mode = TransferMode::HispeedLink;
    EXPECT_EQ(test({.mode = TransferMode::Bsc, .serial = {3, 19200, 1, 7, 2}}).size(), 3U);
    EXPECT_EQ(world.library.trace().at(1), "BscSetCom(1, 3, 19200, 1, 7, 2)");
    EXPECT_EQ(world.session->port, 1);
    EXPECT_EQ(world.mode, TransferMode::HispeedLink);
}

TEST_F(LinkTestTest, AControllerWithFilesAnswersAsWell) {
    world.library.at(address).put("A.JBI", "x");
    world.library.at(address).put("B.JBI", "x");
    EXPECT_EQ(testAddress().at(1), LinkTestStep{Kind::Answer});
    EXPECT_EQ(world.library.callCount("BscFindNext"), 0) << "one entry says it";
}

struct FaultRow : tests::NamedRow {
    const char* function;
    std::vector<LinkTestStep> steps;
    int openLinks;
};

class FaultyLinkTest : public LinkTestTest, public testing::WithParamInterface<FaultRow> {};

TEST_P(FaultyLinkTest, TellsTheStepAndTheReasonAndClosesTheLink) {
    world.library.disturb({.function = GetParam().function, .code = 1000});
    EXPECT_EQ(testAddress(), GetParam().steps);
    EXPECT_EQ(world.library.openLinks(), GetParam().openLinks);
}

LinkTestStep failed(Kind kind, const char* function) {
    return {kind, LinkFault{function, 1000, "first text"}};
}

INSTANTIATE_TEST_SUITE_P(
    At, FaultyLinkTest,
    testing::Values(FaultRow{{"SetUp"}, "BscSetEther", {failed(Kind::Open, "BscSetEther")}, 0},
                    FaultRow{{"Connect"}, "BscConnect", {failed(Kind::Open, "BscConnect")}, 0},
                    FaultRow{{"Answer"},
                             "BscFindFirst",
                             {{Kind::Open}, failed(Kind::Answer, "BscFind"), {Kind::Close}},
                             0},
                    FaultRow{{"Disconnect"},
                             "BscDisConnect",
                             {{Kind::Open}, {Kind::Answer}, failed(Kind::Close, "BscDisConnect")},
                             1},
                    FaultRow{{"Close"},
                             "BscClose",
                             {{Kind::Open}, {Kind::Answer}, failed(Kind::Close, "BscClose")},
                             1}),
    tests::rowName);

TEST_F(LinkTestTest, AnOpeningThatFailsEndsIt) {
    world.library.disturb({.function = "BscOpen", .code = -3});
    EXPECT_THAT(testAddress(),
                ElementsAre(LinkTestStep{Kind::Open, LinkFault{"BscOpen", -3, "-3"}}));
    EXPECT_EQ(world.library.callCount(), 1);
}

TEST_F(LinkTestTest, LeavesTheRecordOfTheLastOperation) {
    world.pc.write("A.JBI", tests::SessionWorld::job("A"));
    world.library.disturb({.function = "BscDownLoad", .code = 1000});
    EXPECT_FALSE(world.session->JobDownLoad("A.JBI"));
    const std::string before = world.error();
    const std::size_t pictures = world.view.pictures.size();
    world.library.disturb({.function = "BscConnect", .code = 5200});
    EXPECT_EQ(testAddress().at(0).fault->code, 5200);
    EXPECT_EQ(world.error(), before);
    EXPECT_EQ(world.session->errorText(), "first text");
    EXPECT_TRUE(world.session->triedAnEntry());
    EXPECT_EQ(world.view.pictures.size(), pictures) << "it has a window of its own";
}

TEST_F(LinkTestTest, NothingIsTriedWhileAnOperationRuns) {
    world.pc.write("A.JBI", tests::SessionWorld::job("A"));
    std::vector<LinkTestStep> steps;
    world.view.onYield = [&](int) {
        if (!steps.empty())
            return;
        const int calls = world.library.callCount();
        steps = testAddress();
        EXPECT_EQ(world.library.callCount(), calls);
    };
    EXPECT_TRUE(world.session->JobDownLoad("A.JBI"));
    ASSERT_EQ(steps.size(), 1U);
    EXPECT_EQ(steps.front().kind, Kind::Open);
    ASSERT_TRUE(steps.front().fault);
    EXPECT_EQ(steps.front().fault->code, session_code::operationRunning);
}

TEST_F(LinkTestTest, WhatIsBegunMeanwhileIsRefused) {
    int refusals = 0;
    world.session->testLink({.mode = TransferMode::HispeedLink, .address = address},
                            [&](const LinkTestStep&) {
                                std::vector<std::string> names;
                                refusals += !world.session->ReadDirectory(names);
                                refusals += bool(testAddress().at(0).fault);
                            });
    EXPECT_EQ(refusals, 6);
    EXPECT_EQ(world.library.callCount("BscOpen"), 1);
    std::vector<std::string> names;
    EXPECT_TRUE(world.session->ReadDirectory(names)) << "and not for longer";
}

TEST_F(LinkTestTest, APCFolderThatIsGoneDoesNotMatter) {
    world.session->path = world.pc.path("gone");
    EXPECT_EQ(testAddress().size(), 3U);
    EXPECT_EQ(world.library.trace().front(), "BscOpen(" + world.program.path() + ", 16)");
}

} // namespace
} // namespace vantrel
