#include "SimulatorFixture.h"

#include <limits>

#include <gmock/gmock.h>

namespace vantrel::simulator {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const std::string job = "/JOB\r\n//NAME WELD1\r\n/STEPS\r\nbegin\r\nfinish\r\n";

class SimulatorTest : public SimulatorFixture {};

TEST_F(SimulatorTest, OpensConnectsAndClosesWithTheValuesOfTheInterface) {
    for (const auto type : {std::int16_t{1}, std::int16_t{16}}) {
        const auto handle = open(type);
        EXPECT_GT(handle, 0);
        EXPECT_EQ(type == 1 ? library.BscSetCom(handle, 1, 9600, 2, 8, 0)
                            : library.BscSetEther(handle, "10.0.0.1", 0),
                  1);
        EXPECT_EQ(library.BscConnect(handle), 1);
        EXPECT_EQ(library.BscDisConnect(handle), 1);
        EXPECT_EQ(library.BscClose(handle), 0);
    }
}

TEST_F(SimulatorTest, RefusesAnImpossibleOpenWithANegativeNumber) {
    EXPECT_EQ(library.BscOpen(nullptr, 1), -code::refused);
    EXPECT_EQ(library.BscOpen("", 1), -code::refused);
    EXPECT_EQ(open(2), -code::refused);
    EXPECT_EQ(open(0), -code::refused);
}

TEST_F(SimulatorTest, RefusesTooManyLinks) {
    for (std::size_t count = 0; count < Links::most; ++count)
        EXPECT_GT(open(), 0);
    EXPECT_EQ(open(), -code::refused);
}

TEST_F(SimulatorTest, UnknownPortsAndAddressesRefuseToConnect) {
    const auto serial = open(1);
    EXPECT_EQ(library.BscSetCom(serial, 2, 9600, 2, 8, 0), 1);
    EXPECT_EQ(library.BscConnect(serial), code::portUnavailable);

    const auto ethernet = open(16);
    EXPECT_EQ(library.BscSetEther(ethernet, "10.0.0.2", 0), 1);
    EXPECT_EQ(library.BscConnect(ethernet), code::addressUnreachable);
    EXPECT_EQ(library.BscClose(ethernet), 0);
}

TEST_F(SimulatorTest, AControllerWithoutItsFolderDoesNotAnswer) {
    std::filesystem::remove(folder.path("robot"));
    const auto handle = open();
    library.BscSetEther(handle, "10.0.0.1", 0);

    EXPECT_EQ(library.BscConnect(handle), code::noAnswer);
    EXPECT_EQ(library.BscDisConnect(handle), code::notConnected);
    EXPECT_EQ(library.BscClose(handle), 0);
}

TEST_F(SimulatorTest, RefusesImpossibleLineSettings) {
    const auto serial = open(1);
    EXPECT_EQ(library.BscSetCom(serial, 0, 9600, 2, 8, 0), code::portUnavailable);
    EXPECT_EQ(library.BscSetCom(serial, 1, 0, 2, 8, 0), code::portUnavailable);
    EXPECT_EQ(library.BscSetCom(serial, 1, 9600, 3, 8, 0), code::portUnavailable);
    EXPECT_EQ(library.BscSetCom(serial, 1, 9600, 2, 9, 0), code::portUnavailable);
    EXPECT_EQ(library.BscSetCom(serial, 1, 9600, 2, 8, 3), code::portUnavailable);
    EXPECT_EQ(library.BscSetEther(serial, "10.0.0.1", 0), code::refused) << "a serial link";

    const auto ethernet = open(16);
    EXPECT_EQ(library.BscSetEther(ethernet, nullptr, 0), code::refused);
    EXPECT_EQ(library.BscSetEther(ethernet, "10.0.0.1", 1), code::refused);
    EXPECT_EQ(library.BscSetCom(ethernet, 1, 9600, 2, 8, 0), code::refused);
    EXPECT_EQ(library.BscConnect(ethernet), code::refused) << "no line was set";
}

TEST_F(SimulatorTest, RefusesCallsOutOfOrder) {
    std::array<char, 255> buffer{};
    const auto handle = open();
    EXPECT_EQ(library.BscFindFirst(handle, buffer.data(), 255), code::notConnected);
    EXPECT_EQ(library.BscUpLoad(handle, "A.JBI"), code::notConnected);
    EXPECT_EQ(library.BscDisConnect(handle), code::notConnected);

    library.BscSetEther(handle, "10.0.0.1", 0);
    library.BscConnect(handle);
    EXPECT_EQ(library.BscConnect(handle), code::refused);
    EXPECT_EQ(library.BscSetEther(handle, "10.0.0.1", 0), code::refused);
    EXPECT_EQ(library.BscClose(handle), code::refused) << "to be disconnected first";
    EXPECT_EQ(library.BscFindNext(handle, buffer.data(), 255), code::refused);
    EXPECT_EQ(library.BscDeleteJob(handle), code::noJobSelected);
}

TEST_F(SimulatorTest, RefusesHandlesThatAreNotOpen) {
    const auto closed = open();
    library.BscClose(closed);
    std::array<char, 255> buffer{};
    std::array<double, 10> values{};
    for (const std::int16_t handle :
         {closed, std::int16_t{0}, std::int16_t{-1}, std::numeric_limits<std::int16_t>::max()}) {
        EXPECT_EQ(library.BscSetCom(handle, 1, 9600, 2, 8, 0), code::handleInvalid);
        EXPECT_EQ(library.BscSetEther(handle, "10.0.0.1", 0), code::handleInvalid);
        EXPECT_EQ(library.BscConnect(handle), code::handleInvalid);
        EXPECT_EQ(library.BscDisConnect(handle), code::handleInvalid);
        EXPECT_EQ(library.BscClose(handle), code::handleInvalid);
        EXPECT_EQ(library.BscFindFirst(handle, buffer.data(), 255), code::handleInvalid);
        EXPECT_EQ(library.BscFindNext(handle, buffer.data(), 255), code::handleInvalid);
        EXPECT_EQ(library.BscDownLoad(handle, "A.JBI"), code::handleInvalid);
        EXPECT_EQ(library.BscUpLoad(handle, "A.JBI"), code::handleInvalid);
        EXPECT_EQ(library.BscSelectJob(handle, "A"), code::handleInvalid);
        EXPECT_EQ(library.BscDeleteJob(handle), code::handleInvalid);
        EXPECT_EQ(library.BscGetVarData(handle, 0, 0, values.data()), code::handleInvalid);
        EXPECT_EQ(library.BscPutVarData(handle, 0, 0, values.data()), code::handleInvalid);
    }
}

TEST_F(SimulatorTest, RefusesMissingTextsAndBuffers) {
    std::array<char, 255> buffer{};
    const auto handle = connected();
    EXPECT_EQ(library.BscFindFirst(handle, nullptr, 255), code::refused);
    EXPECT_EQ(library.BscFindFirst(handle, buffer.data(), 0), code::refused);
    EXPECT_EQ(library.BscFindFirst(handle, buffer.data(), -1), code::refused);
    EXPECT_EQ(library.BscDownLoad(handle, nullptr), code::refused);
    EXPECT_EQ(library.BscUpLoad(handle, nullptr), code::refused);
    EXPECT_EQ(library.BscSelectJob(handle, nullptr), code::refused);
    EXPECT_EQ(library.BscGetVarData(handle, 0, 0, nullptr), code::refused);
    EXPECT_EQ(library.BscPutVarData(handle, 0, 0, nullptr), code::refused);
}

TEST_F(SimulatorTest, AnEmptyDirectoryEndsAtOnce) {
    std::array<char, 255> buffer{};
    const auto handle = connected();

    EXPECT_EQ(library.BscFindFirst(handle, buffer.data(), 255), -1);
    EXPECT_EQ(library.BscFindNext(handle, buffer.data(), 255), -1);
}

TEST_F(SimulatorTest, TellsTheDirectoryAsItWasAtFindFirst) {
    folder.write("robot/B.JBI", job);
    folder.write("robot/A.JBI", job);
    std::array<char, 255> buffer{};
    const auto handle = connected();
    ASSERT_EQ(library.BscFindFirst(handle, buffer.data(), 255), 0);
    EXPECT_STREQ(buffer.data(), "A.JBI");
    folder.write("robot/C.JBI", job);

    EXPECT_EQ(library.BscFindNext(handle, buffer.data(), 255), 0);
    EXPECT_STREQ(buffer.data(), "B.JBI");
    EXPECT_EQ(library.BscFindNext(handle, buffer.data(), 255), -1);
    EXPECT_THAT(directory(handle), ElementsAre("A.JBI", "B.JBI", "C.JBI"));
}

TEST_F(SimulatorTest, AnEntryThatFillsTheBufferHasNoNul) {
    const std::string name = std::string(251, 'A') + ".JBI";
    folder.write("robot/" + name, job);
    std::array<char, 256> buffer{};
    buffer.back() = '#';
    const auto handle = connected();

    EXPECT_EQ(library.BscFindFirst(handle, buffer.data(), 255), 0);
    EXPECT_EQ(std::string(buffer.data(), 256), name + '#');
    EXPECT_EQ(library.BscFindFirst(handle, buffer.data(), 254), code::refused);
}

TEST_F(SimulatorTest, TextsCrossTheInterfaceInTheCodePage) {
    constexpr const char* codePageName = "\x83\x5c\x95\x5c.JBI"; // ソ表
    folder.write("robot/ソ表.JBI", job);
    const auto handle = connected();

    EXPECT_THAT(directory(handle), ElementsAre(codePageName));
    EXPECT_EQ(library.BscUpLoad(handle, codePageName), 0);
    EXPECT_EQ(folder.read("pc/ソ表.JBI"), job);
    EXPECT_EQ(library.BscSelectJob(handle, "\x83\x5c\x95\x5c"), 0);
}

TEST_F(SimulatorTest, SentAndFetchedBytesAreTheSame) {
    folder.write("pc/WELD1.JBI", job);
    const auto handle = connected();

    EXPECT_EQ(library.BscDownLoad(handle, "WELD1.JBI"), 0);
    EXPECT_EQ(folder.read("robot/WELD1.JBI"), job);
    EXPECT_EQ(library.BscUpLoad(handle, "WELD1.JBR"), 0);
    EXPECT_EQ(folder.read("pc/WELD1.JBR"), job);
}

TEST_F(SimulatorTest, RefusedTransfersSayWhy) {
    folder.write("robot/WELD1.JBI", "old");
    folder.write("pc/WELD1.JBI", job);
    folder.makeFolder("pc/TAKEN.JBI");
    folder.write("robot/TAKEN.JBI", job);
    const auto handle = connected();

    EXPECT_EQ(library.BscDownLoad(handle, "WELD1.JBI"), code::jobExists);
    EXPECT_EQ(library.BscDownLoad(handle, "MISSING.JBI"), code::pcFileNotFound);
    EXPECT_EQ(library.BscUpLoad(handle, "MISSING.JBI"), code::notFound);
    EXPECT_EQ(library.BscUpLoad(handle, "TAKEN.JBI"), code::pcFolderNotAccessible);
    EXPECT_EQ(library.BscUpLoad(handle, "WELD1.TXT"), code::unknownFileKind);
    EXPECT_EQ(folder.read("robot/WELD1.JBI"), "old");
}

TEST_F(SimulatorTest, DeletesTheSelectedJobOnce) {
    folder.write("robot/WELD1.JBI", job);
    const auto handle = connected();

    EXPECT_EQ(library.BscSelectJob(handle, "MISSING"), code::notFound);
    EXPECT_EQ(library.BscDeleteJob(handle), code::noJobSelected);
    EXPECT_EQ(library.BscSelectJob(handle, "weld1.jbi"), 0);
    EXPECT_EQ(library.BscDeleteJob(handle), 0);
    EXPECT_EQ(library.BscDeleteJob(handle), code::noJobSelected);
    EXPECT_THAT(directory(handle), IsEmpty());
}

TEST_F(SimulatorTest, AFailedSelectionForgetsTheOneBefore) {
    folder.write("robot/WELD1.JBI", job);
    const auto handle = connected();
    ASSERT_EQ(library.BscSelectJob(handle, "WELD1"), 0);
    ASSERT_EQ(library.BscSelectJob(handle, "OTHER"), code::notFound);

    EXPECT_EQ(library.BscDeleteJob(handle), code::noJobSelected);
    EXPECT_TRUE(folder.has("robot/WELD1.JBI"));
}

TEST_F(SimulatorTest, ANewConnectionRemembersNoSelection) {
    folder.write("robot/WELD1.JBI", job);
    const auto handle = connected();
    library.BscSelectJob(handle, "WELD1");
    library.BscDisConnect(handle);
    ASSERT_EQ(library.BscConnect(handle), 1);

    EXPECT_EQ(library.BscDeleteJob(handle), code::noJobSelected);
}

TEST_F(SimulatorTest, VariablesOutliveTheLink) {
    std::array<double, 10> values{1, 2, 3, 4, 5, 6, 7, 8, 9, 10};
    auto handle = connected();
    EXPECT_EQ(library.BscPutVarData(handle, 4, 7, values.data()), 0);
    library.BscDisConnect(handle);
    library.BscClose(handle);

    handle = connected();
    std::array<double, 10> read{};
    read.fill(-1);
    EXPECT_EQ(library.BscGetVarData(handle, 4, 7, read.data()), 0);
    EXPECT_THAT(read, ElementsAre(1, 2, 3, 4, 5, 6, 7, 8, 9, 0));
}

TEST_F(SimulatorTest, TwoLinksLeadToTheirOwnControllers) {
    folder.makeFolder("second");
    folder.write("second/B.JBI", job);
    folder.write("robot/A.JBI", job);
    setUp("", "[Controller2]\r\nFolder=second\r\nAddress=10.0.0.2\r\n");
    const auto first = connected();
    const auto second = open();
    ASSERT_EQ(library.BscSetEther(second, "10.0.0.2", 0), 1);
    ASSERT_EQ(library.BscConnect(second), 1);

    EXPECT_THAT(directory(first), ElementsAre("A.JBI"));
    EXPECT_THAT(directory(second), ElementsAre("B.JBI"));
}

TEST_F(SimulatorTest, AChangedSetUpHoldsFromTheNextLinkOn) {
    folder.write("robot/A.JBI", job);
    const auto before = connected();
    setUp("HiddenFiles=A.JBI");

    EXPECT_THAT(directory(before), ElementsAre("A.JBI"));
    EXPECT_THAT(directory(connected()), IsEmpty());
}

struct SetUpCase {
    const char* name;
    std::string bytes;
};

void PrintTo(const SetUpCase& each, std::ostream* out) {
    *out << each.bytes.substr(0, 60);
}

class BadSetUp : public SimulatorFixture, public testing::WithParamInterface<SetUpCase> {};

TEST_P(BadSetUp, RefusesEveryLink) {
    folder.write("simulator.ini", GetParam().bytes);
    const auto ethernet = open(16);
    EXPECT_EQ(library.BscSetEther(ethernet, "10.0.0.1", 0), 1);
    EXPECT_EQ(library.BscConnect(ethernet), code::addressUnreachable);
    const auto serial = open(1);
    EXPECT_EQ(library.BscSetCom(serial, 1, 9600, 2, 8, 0), 1);
    EXPECT_EQ(library.BscConnect(serial), code::portUnavailable);
}

const SetUpCase setUpCases[] = {
    {"Empty", ""},
    {"NulBytes", std::string(1000, '\0')},
    {"LongLine", "[Controller1]" + std::string(10'000'000, 'x')},
    {"NoFolder", "[Controller1]\nPort=1\nAddress=10.0.0.1\n"},
    {"NoEnd", "[Controller1\nFolder"},
    {"Utf16", std::string("\xff\xfe[\0C\0", 6)},
    {"OtherSection", "[Robot1]\nFolder=robot\nPort=1\nAddress=10.0.0.1\n"},
};

INSTANTIATE_TEST_SUITE_P(SetUps, BadSetUp, testing::ValuesIn(setUpCases),
                         [](const auto& each) { return std::string(each.param.name); });

TEST_F(SimulatorTest, AMissingSetUpRefusesEveryLink) {
    ASSERT_GT(open(), 0);
    std::filesystem::remove(folder.path("simulator.ini"));
    const auto handle = open();
    library.BscSetEther(handle, "10.0.0.1", 0);

    EXPECT_EQ(library.BscConnect(handle), code::addressUnreachable);
}

TEST_F(SimulatorTest, ALinkNeedsNoWorkingFolderToReadTheDirectory) {
    folder.write("robot/A.JBI", job);
    std::filesystem::remove(folder.path("pc"));
    const auto handle = connected();

    EXPECT_THAT(directory(handle), ElementsAre("A.JBI"));
    EXPECT_EQ(library.BscUpLoad(handle, "A.JBI"), code::pcFolderNotAccessible);
}

TEST_F(SimulatorTest, AFolderThatGoesAwayBreaksTheLine) {
    std::array<char, 255> buffer{};
    const auto handle = connected();
    std::filesystem::remove(folder.path("robot"));

    EXPECT_EQ(library.BscFindFirst(handle, buffer.data(), 255), code::lineBroken);
    EXPECT_EQ(library.BscUpLoad(handle, "A.JBI"), code::lineBroken);
    EXPECT_EQ(library.BscDisConnect(handle), 1);
}

} // namespace
} // namespace vantrel::simulator
