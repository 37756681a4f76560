#include "link/LinkConnection.h"

#include "SessionWorld.h"
#include "link/SessionErrorRecord.h"
#include "platform/Files.h"
#include "support/NamedRow.h"

namespace vantrel {
namespace {

using testing::ElementsAre;

struct LinkConnectionTest : testing::Test {
    tests::SessionWorld world;
    SessionProperties properties;
    SessionErrorRecord error;
    LinkConnection link{world.services, properties, error};

    LinkConnectionTest() {
        properties.path = world.pc.path();
        error.set(0, "", 9);
    }

    void useEthernet(const std::string& address) {
        world.mode = TransferMode::HispeedLink;
        properties.IPaddress = address;
        world.library.at("10.0.0.1");
    }

    void expectError(std::int16_t code, const std::string& function, std::int32_t index) {
        EXPECT_EQ(error.ErrorCode, code);
        EXPECT_EQ(error.ErrorFunction, function);
        EXPECT_EQ(error.ErrorIndex, index);
    }
};

TEST_F(LinkConnectionTest, SerialLinkIsOpenedSetUpAndConnected) {
    properties.port = 1;
    properties.Baudrate = 19200;
    properties.parity = 1;
    properties.DataLen = 7;
    properties.StopBit = 2;
    EXPECT_EQ(link.connect(), 1);
    EXPECT_THAT(world.library.trace(),
                ElementsAre("BscOpen(" + world.pc.path() + ", 1)",
                            "BscSetCom(1, 1, 19200, 1, 7, 2)", "BscConnect(1)"));
    EXPECT_EQ(world.dummyWindowsAsked, 0);
}

TEST_F(LinkConnectionTest, EthernetLinkGetsAddressModeZeroAndTheWindowsHandle) {
    useEthernet("10.0.0.1");
    EXPECT_EQ(link.connect(), 1);
    EXPECT_THAT(world.library.trace(),
                ElementsAre("BscOpen(" + world.pc.path() + ", 16)",
                            "BscSetEther(1, 10.0.0.1, 0, 77)", "BscConnect(1)"));
    EXPECT_EQ(world.dummyWindowsAsked, 1);
}

TEST_F(LinkConnectionTest, WithoutWindowsTheHandleIsNull) {
    world.services.dummyWindow = nullptr;
    useEthernet("10.0.0.1");
    EXPECT_EQ(link.connect(), 1);
    EXPECT_EQ(world.library.trace()[1], "BscSetEther(1, 10.0.0.1, 0, 0)");
}

TEST_F(LinkConnectionTest, EveryModeButSerialIsEthernet) {
    useEthernet("10.0.0.1");
    world.mode = static_cast<TransferMode>(3);
    world.library.tolerateMisuse();
    link.connect();
    EXPECT_EQ(world.library.trace()[0], "BscOpen(" + world.pc.path() + ", 3)");
    EXPECT_EQ(world.library.calls()[1].function, "BscSetEther");
}

TEST_F(LinkConnectionTest, ConnectingMakesTheProgramsFolderCurrent) {
    ASSERT_TRUE(changeCurrentFolder(world.pc.path()));
    link.connect();
    EXPECT_EQ(currentFolder(), world.program.path());
}

TEST_F(LinkConnectionTest, RefusedOpenIsRecordedAndNothingIsClosed) {
    world.library.disturb({.function = "BscOpen", .code = -4});
    EXPECT_EQ(link.connect(), -1);
    expectError(-4, "BscOpen", 0);
    EXPECT_EQ(world.library.callCount(), 1);
}

struct RefusedStep : tests::NamedRow {
    const char* function;
    bool ethernet;
};

class RefusedStepTest : public LinkConnectionTest,
                        public testing::WithParamInterface<RefusedStep> {};

TEST_P(RefusedStepTest, ClosesTheHandleAndRecordsTheStepWithIndexZero) {
    if (GetParam().ethernet)
        useEthernet("10.0.0.1");
    for (const std::int16_t code : {std::int16_t{0}, std::int16_t{-2}, std::int16_t{2010}}) {
        world.library.forgetCalls();
        error.set(0, "", 9);
        world.library.disturb({.function = GetParam().function, .code = code});
        EXPECT_EQ(link.connect(), -1);
        expectError(code, GetParam().function, 0);
        EXPECT_EQ(world.library.calls().back().function, "BscClose");
        EXPECT_EQ(world.library.callCount("BscClose"), 1);
        EXPECT_EQ(world.library.callCount("BscDisConnect"), 0);
        EXPECT_EQ(world.library.openLinks(), 0);
    }
}

INSTANTIATE_TEST_SUITE_P(Steps, RefusedStepTest,
                         testing::Values(RefusedStep{"SerialSetup", "BscSetCom", false},
                                         RefusedStep{"EthernetSetup", "BscSetEther", true},
                                         RefusedStep{"SerialConnect", "BscConnect", false},
                                         RefusedStep{"EthernetConnect", "BscConnect", true}),
                         tests::rowName);

TEST_F(LinkConnectionTest, UnsetAddressClosesTellsAndLeavesTheRecordAlone) {
    useEthernet("0.0.0.0");
    error.set(12, "BscConnect", 9);
    EXPECT_EQ(link.connect(), -1);
    EXPECT_THAT(world.library.trace(),
                ElementsAre("BscOpen(" + world.pc.path() + ", 16)", "BscClose(1)"));
    EXPECT_THAT(world.boxes.shown,
                ElementsAre(tests::FakeMessageBoxes::Box{tests::FakeMessageBoxes::Kind::Tell,
                                                         "address unset", BoxIcon::Exclamation}));
    expectError(12, "BscConnect", 9);
    EXPECT_TRUE(link.endedByUnsetAddress());
    link.begin();
    EXPECT_FALSE(link.endedByUnsetAddress());
}

TEST_F(LinkConnectionTest, UnsetAddressIsToldEvenWhileTheMonitorIsOff) {
    useEthernet("0.0.0.0");
    properties.DisplayMonitor = false;
    link.connect();
    EXPECT_EQ(world.boxes.shown.size(), 1u);
}

TEST_F(LinkConnectionTest, UnsetAddressDoesNotConcernTheSerialLine) {
    properties.IPaddress = "0.0.0.0";
    EXPECT_EQ(link.connect(), 1);
    EXPECT_TRUE(world.boxes.shown.empty());
}

TEST_F(LinkConnectionTest, AFolderThatTheCodePageLacksReachesNoCall) {
    properties.path = "/tmp/\xED\x95\x9C";
    EXPECT_EQ(link.connect(), -1);
    expectError(session_code::folderNotExpressible, "BscOpen", 0);
    EXPECT_EQ(world.library.callCount(), 0);
}

TEST_F(LinkConnectionTest, AnAddressThatTheCodePageLacksClosesTheHandle) {
    useEthernet("\xED\x95\x9C");
    EXPECT_EQ(link.connect(), -1);
    expectError(session_code::nameNotExpressible, "BscSetEther", 0);
    EXPECT_EQ(world.library.openLinks(), 0);
}

TEST_F(LinkConnectionTest, DisconnectingDisconnectsAndCloses) {
    const auto handle = link.connect();
    EXPECT_TRUE(link.disconnect(handle));
    EXPECT_EQ(world.library.openLinks(), 0);
    expectError(0, "", 9);
}

TEST_F(LinkConnectionTest, ALinkThatWillNotDisconnectIsLeftOpen) {
    const auto handle = link.connect();
    world.library.disturb({.function = "BscDisConnect", .code = 0});
    EXPECT_FALSE(link.disconnect(handle));
    expectError(0, "BscDisConnect", 9);
    EXPECT_EQ(world.library.callCount("BscClose"), 0);
    EXPECT_EQ(world.library.openLinks(), 1);
}

TEST_F(LinkConnectionTest, ClosingSucceedsWithZeroAndNotWithOne) {
    const auto handle = link.connect();
    world.library.disturb({.function = "BscClose", .code = 1});
    EXPECT_FALSE(link.disconnect(handle));
    expectError(1, "BscClose", 9);
}

TEST_F(LinkConnectionTest, AFailedCallIsRecordedAfterTheClosing) {
    const auto handle = link.connect();
    world.library.disturb({.function = "BscDisConnect", .code = -3});
    EXPECT_FALSE(link.finish(handle, 1200, "BscUpLoad", 4));
    expectError(1200, "BscUpLoad", 4);
}

TEST_F(LinkConnectionTest, ASuccessfulCallFailsWithTheClosing) {
    auto handle = link.connect();
    EXPECT_TRUE(link.finish(handle, 0, "BscUpLoad", 4));
    handle = link.connect();
    world.library.disturb({.function = "BscDisConnect", .code = -3});
    EXPECT_FALSE(link.finish(handle, 0, "BscUpLoad", 4));
    expectError(-3, "BscDisConnect", 9);
}

TEST_F(LinkConnectionTest, TextsAreHandedOverInTheCodePage) {
    EXPECT_EQ(link.libraryText("\xE3\x82\xBD.JBI", "BscDownLoad"), "\x83\x5C.JBI");
    EXPECT_FALSE(link.libraryText("\xED\x95\x9C", "BscDownLoad", 3));
    expectError(session_code::nameNotExpressible, "BscDownLoad", 3);
}

TEST_F(LinkConnectionTest, FileNamesHaveToBePlain) {
    EXPECT_EQ(link.libraryFileName("A.JBI", "BscDownLoad"), "A.JBI");
    for (const char* name : {"../A.JBI", "..\\A.JBI", "C:A.JBI", "*.JBI", "", "..", "A\x01.JBI"}) {
        error = {};
        EXPECT_FALSE(link.libraryFileName(name, "BscDownLoad", 2)) << name;
        expectError(session_code::nameRefused, "", 2);
    }
}

} // namespace
} // namespace vantrel
