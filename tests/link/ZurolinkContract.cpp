#include "ZurolinkContract.h"

#include <algorithm>
#include <array>
#include <set>

namespace vantrel::tests {
namespace {

using Buffer = std::array<char, 255>;

std::string textOf(const Buffer& buffer) {
    return {buffer.begin(), std::find(buffer.begin(), buffer.end(), '\0')};
}

} // namespace

TEST_P(ZurolinkContract, SerialLinksSucceedStepByStep) {
    const std::int16_t handle = library.BscOpen(world->pc.path().c_str(), 1);
    ASSERT_GE(handle, 0);
    EXPECT_EQ(library.BscSetCom(handle, ContractWorld::port, 9600, 2, 8, 0), 1);
    EXPECT_EQ(library.BscConnect(handle), 1);
    disconnect(handle);
}

TEST_P(ZurolinkContract, AnUnknownAddressRefusesToConnect) {
    const std::int16_t handle = library.BscOpen(world->pc.path().c_str(), 16);
    ASSERT_GE(handle, 0);
    EXPECT_EQ(library.BscSetEther(handle, "10.9.9.9", 0, nullptr), 1);
    EXPECT_NE(library.BscConnect(handle), 1);
    EXPECT_EQ(library.BscClose(handle), 0);
}

TEST_P(ZurolinkContract, AnEmptyDirectoryEndsAtOnce) {
    const auto handle = connect();
    Buffer buffer{};
    EXPECT_EQ(library.BscFindFirst(handle, buffer.data(), 255), -1);
    disconnect(handle);
}

TEST_P(ZurolinkContract, TheDirectoryNamesEveryFileOnceAndThenEnds) {
    world->put("WELD.JBI", job("WELD"));
    world->put("PICK.JBI", job("PICK"));
    world->put("TOOL.CND", "x");
    const auto handle = connect();
    std::multiset<std::string> names;
    Buffer buffer{};
    std::int16_t found = library.BscFindFirst(handle, buffer.data(), 255);
    while (found == 0 && names.size() < 10) {
        names.insert(textOf(buffer));
        buffer.fill('\0');
        found = library.BscFindNext(handle, buffer.data(), 255);
    }
    EXPECT_EQ(found, -1);
    EXPECT_EQ(names, (std::multiset<std::string>{"WELD.JBI", "PICK.JBI", "TOOL.CND"}));
    disconnect(handle);
}

TEST_P(ZurolinkContract, ASentJobArrivesByteForByteUnderItsInnerName) {
    world->pc.write("COPY.JBI", job("WELD"));
    const auto handle = connect();
    EXPECT_EQ(library.BscDownLoad(handle, "COPY.JBI"), 0);
    disconnect(handle);
    EXPECT_EQ(world->bytes("WELD.JBI"), job("WELD"));
    EXPECT_FALSE(world->has("COPY.JBI"));
}

TEST_P(ZurolinkContract, AnExistingJobHasToBeDeletedBeforeItIsSent) {
    world->put("WELD.JBI", job("WELD") + "OLD\r\n");
    world->pc.write("WELD.JBI", job("WELD"));
    const auto handle = connect();
    EXPECT_NE(library.BscDownLoad(handle, "WELD.JBI"), 0);
    EXPECT_EQ(world->bytes("WELD.JBI"), job("WELD") + "OLD\r\n");
    EXPECT_EQ(library.BscSelectJob(handle, "WELD.JBI"), 0);
    EXPECT_EQ(library.BscDeleteJob(handle), 0);
    EXPECT_EQ(library.BscDownLoad(handle, "WELD.JBI"), 0);
    disconnect(handle);
    EXPECT_EQ(world->bytes("WELD.JBI"), job("WELD"));
}

struct RefusedJob {
    const char* text;
    std::int16_t code;
};

TEST_P(ZurolinkContract, AJobWithoutAUsableNameLineIsRefusedAndChangesNothing) {
    const RefusedJob refused[] = {{"", 1300},
                                  {"/JOB\r\nNOP\r\n", 1310},
                                  {"/JOB\r\n//NAME \r\nNOP\r\n", 1310},
                                  {"/JOB\r\n//NAME A/B\r\n", 1230},
                                  {"/JOB\r\n//NAME A*\r\n", 1230}};
    for (const RefusedJob& job : refused)
        for (const char* file : {"WELD.JBI", "WELD.JBR"}) {
            world->pc.write(file, job.text);
            const auto handle = connect();
            EXPECT_EQ(library.BscDownLoad(handle, file), job.code) << job.text;
            disconnect(handle);
            EXPECT_FALSE(world->has("WELD.JBI"));
        }
}

TEST_P(ZurolinkContract, AFileThatCannotBeWrittenOnThePCIsAnError) {
    world->put("WELD.JBI", job("WELD"));
    world->pc.makeFolder("WELD.JBI");
    const auto handle = connect();
    EXPECT_GT(library.BscUpLoad(handle, "WELD.JBI"), 0);
    disconnect(handle);
}

TEST_P(ZurolinkContract, ARelatedJobFileReplacesTheJob) {
    world->put("WELD.JBI", job("WELD") + "OLD\r\n");
    world->pc.write("WELD.JBR", job("WELD"));
    const auto handle = connect();
    EXPECT_EQ(library.BscDownLoad(handle, "WELD.JBR"), 0);
    disconnect(handle);
    EXPECT_EQ(world->bytes("WELD.JBI"), job("WELD"));
}

TEST_P(ZurolinkContract, AFetchedFileArrivesByteForByteUnderTheNameAskedFor) {
    world->put("WELD.JBI", job("WELD"));
    const auto handle = connect();
    EXPECT_EQ(library.BscUpLoad(handle, "WELD.JBI"), 0);
    EXPECT_EQ(library.BscUpLoad(handle, "WELD.JBR"), 0);
    disconnect(handle);
    EXPECT_EQ(world->pc.read("WELD.JBI"), job("WELD"));
    EXPECT_EQ(world->pc.read("WELD.JBR"), job("WELD"));
}

TEST_P(ZurolinkContract, WhatIsNotThereIsAnErrorOfItsOwn) {
    const auto handle = connect();
    EXPECT_GT(library.BscUpLoad(handle, "GONE.JBI"), 0);
    EXPECT_GT(library.BscDownLoad(handle, "GONE.JBI"), 0);
    EXPECT_GT(library.BscSelectJob(handle, "GONE.JBI"), 0);
    EXPECT_GT(library.BscDeleteJob(handle), 0);
    disconnect(handle);
    EXPECT_FALSE(world->pc.has("GONE.JBI"));
}

TEST_P(ZurolinkContract, NamesAreInTheCodePage) {
    world->put("\xE3\x82\xBD.JBI", job("X"));
    const auto handle = connect();
    Buffer buffer{};
    EXPECT_EQ(library.BscFindFirst(handle, buffer.data(), 255), 0);
    EXPECT_EQ(textOf(buffer), "\x83\x5C.JBI");
    EXPECT_EQ(library.BscUpLoad(handle, "\x83\x5C.JBI"), 0);
    disconnect(handle);
    EXPECT_EQ(world->pc.read("\xE3\x82\xBD.JBI"), job("X"));
}

TEST_P(ZurolinkContract, VariablesComeBackAsTheyWereWritten) {
    const std::array<double, 10> position{412.5, 0, 930, 180, 0.25, -90, 1, 2, 3};
    const std::array<double, 10> number{42};
    auto handle = connect();
    EXPECT_EQ(library.BscPutVarData(handle, 4, 7, position.data()), 0);
    EXPECT_EQ(library.BscPutVarData(handle, 0, 5, number.data()), 0);
    disconnect(handle);
    handle = connect();
    std::array<double, 10> values{};
    EXPECT_EQ(library.BscGetVarData(handle, 4, 7, values.data()), 0);
    EXPECT_EQ(values, position);
    values.fill(0);
    EXPECT_EQ(library.BscGetVarData(handle, 0, 5, values.data()), 0);
    EXPECT_EQ(values, number);
    disconnect(handle);
}

TEST_P(ZurolinkContract, ControllersOfDifferentAddressesAreDifferent) {
    world->put("WELD.JBI", job("WELD"));
    auto handle = connect(ContractWorld::otherAddress);
    EXPECT_GT(library.BscUpLoad(handle, "WELD.JBI"), 0);
    disconnect(handle);
    handle = connect();
    EXPECT_EQ(library.BscUpLoad(handle, "WELD.JBI"), 0);
    disconnect(handle);
}

} // namespace vantrel::tests
