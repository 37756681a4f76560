#include "SimulatorFixture.h"

#include <algorithm>
#include <functional>

#include <gmock/gmock.h>

namespace vantrel::simulator {
namespace {

using std::chrono::milliseconds;
using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;

const std::string job = "/JOB\r\n//NAME WELD1\r\n/STEPS\r\nbegin\r\nfinish\r\n";

class SimulatorScript : public SimulatorFixture {
  protected:
    SimulatorScript() {
        folder.write("robot/A.JBI", "the controller's");
        folder.write("pc/WELD1.JBI", job);
    }
};

/// What the functions write into.
struct Buffers {
    std::array<char, 255> entry{};
    std::array<double, 10> numbers{};
};

/// How one function is called, and what it says when it did its work.
struct FunctionCase {
    const char* name;
    std::int16_t success;
    std::function<std::int16_t(Simulator&, std::int16_t, Buffers&)> call;
};

void PrintTo(const FunctionCase& each, std::ostream* out) {
    *out << each.name;
}

const FunctionCase functionCases[] = {
    {"BscSetCom", 1, [](auto& it, auto h, auto&) { return it.BscSetCom(h, 1, 9600, 2, 8, 0); }},
    {"BscSetEther", 1, [](auto& it, auto h, auto&) { return it.BscSetEther(h, "10.0.0.1", 0); }},
    {"BscConnect", 1, [](auto& it, auto h, auto&) { return it.BscConnect(h); }},
    {"BscDisConnect", 1, [](auto& it, auto h, auto&) { return it.BscDisConnect(h); }},
    {"BscClose", 0, [](auto& it, auto h, auto&) { return it.BscClose(h); }},
    {"BscFindFirst", 0,
     [](auto& it, auto h, auto& to) { return it.BscFindFirst(h, to.entry.data(), 255); }},
    {"BscFindNext", 0,
     [](auto& it, auto h, auto& to) { return it.BscFindNext(h, to.entry.data(), 255); }},
    {"BscDownLoad", 0, [](auto& it, auto h, auto&) { return it.BscDownLoad(h, "WELD1.JBI"); }},
    {"BscUpLoad", 0, [](auto& it, auto h, auto&) { return it.BscUpLoad(h, "A.JBI"); }},
    {"BscSelectJob", 0, [](auto& it, auto h, auto&) { return it.BscSelectJob(h, "A"); }},
    {"BscDeleteJob", 0, [](auto& it, auto h, auto&) { return it.BscDeleteJob(h); }},
    {"BscGetVarData", 0,
     [](auto& it, auto h, auto& to) { return it.BscGetVarData(h, 0, 1, to.numbers.data()); }},
    {"BscPutVarData", 0,
     [](auto& it, auto h, auto& to) { return it.BscPutVarData(h, 0, 1, to.numbers.data()); }},
};

/// Every function can be disturbed, by its own name and on its own count.
class DisturbedFunction : public SimulatorFixture,
                          public testing::WithParamInterface<FunctionCase> {};

TEST_P(DisturbedFunction, FailsAtTheNamedCall) {
    script("1=" + std::string(GetParam().name) + " 1 fail 1234\r\n");
    Buffers buffers;
    EXPECT_EQ(GetParam().call(library, open(), buffers), 1234);
    EXPECT_NE(GetParam().call(library, open(), buffers), 1234);
}

TEST_P(DisturbedFunction, ReportsSuccessWithoutDoingAnything) {
    script("1=" + std::string(GetParam().name) + " 1+ nothing\r\n");
    open();
    Buffers buffers;
    buffers.entry.fill('#');
    buffers.numbers.fill(77);
    EXPECT_EQ(GetParam().call(library, 0, buffers), GetParam().success)
        << "not even the handle counts";

    EXPECT_THAT(buffers.entry, Each('#'));
    EXPECT_THAT(buffers.numbers, Each(77));
    EXPECT_TRUE(std::filesystem::is_empty(folder.path("robot")));
}

INSTANTIATE_TEST_SUITE_P(Functions, DisturbedFunction, testing::ValuesIn(functionCases),
                         [](const auto& each) { return std::string(each.param.name); });

TEST_F(SimulatorScript, AFailureDoesNotDoTheWork) {
    script("1=BscDownLoad 1 fail 2020\r\n2=BscDisConnect 1 fail 2020\r\n");
    const auto handle = connected();

    EXPECT_EQ(library.BscDownLoad(handle, "WELD1.JBI"), 2020);
    EXPECT_FALSE(folder.has("robot/WELD1.JBI"));
    EXPECT_EQ(library.BscDisConnect(handle), 2020);
    EXPECT_THAT(directory(handle), ElementsAre("A.JBI")) << "still connected";
    EXPECT_EQ(library.BscDisConnect(handle), 1);
}

TEST_F(SimulatorScript, OpenFailsWithANegativeNumber) {
    script("1=BscOpen 1 fail 4010\r\n2=BscOpen 2 fail -3\r\n3=BscOpen 3 nothing\r\n");

    EXPECT_EQ(open(), -4010);
    EXPECT_EQ(open(), -3);
    EXPECT_EQ(open(), 0);
    EXPECT_EQ(library.BscConnect(0), code::handleInvalid);
    EXPECT_GT(open(), 0);
}

TEST_F(SimulatorScript, AFailedOpenIsNotTakenForAnOpenHandle) {
    const auto handle = open();
    script("1=BscOpen 1 fail " + std::to_string(handle) + "\r\n");

    EXPECT_EQ(open(), -handle);
}

TEST_F(SimulatorScript, ASlowCallWaitsAndThenDoesItsWork) {
    script("1=BscDownLoad 1 slow 500\r\n");
    const auto handle = connected();

    EXPECT_EQ(library.BscDownLoad(handle, "WELD1.JBI"), 0);
    EXPECT_THAT(pauses, ElementsAre(milliseconds(500)));
    EXPECT_TRUE(folder.has("robot/WELD1.JBI"));
}

TEST_F(SimulatorScript, ASlowCallMayFailAfterwards) {
    script("1=BscConnect 1 slow 20\r\n2=BscConnect 1 fail 2010\r\n");
    const auto handle = open();
    library.BscSetEther(handle, "10.0.0.1", 0);

    EXPECT_EQ(library.BscConnect(handle), 2010);
    EXPECT_THAT(pauses, ElementsAre(milliseconds(20)));
}

TEST_F(SimulatorScript, ACutSendLeavesTheFirstBytesOnTheController) {
    script("1=BscDownLoad 1 cut 10\r\n");
    const auto handle = connected();

    EXPECT_EQ(library.BscDownLoad(handle, "WELD1.JBI"), code::transferCut);
    EXPECT_EQ(folder.read("robot/WELD1.JBI"), job.substr(0, 10));
    EXPECT_EQ(folder.read("pc/WELD1.JBI"), job);
}

TEST_F(SimulatorScript, ACutFetchMayBeReportedAsASuccess) {
    script("1=BscUpLoad 1 cut 3 0\r\n");
    const auto handle = connected();

    EXPECT_EQ(library.BscUpLoad(handle, "A.JBI"), 0);
    EXPECT_EQ(folder.read("pc/A.JBI"), "the");
}

TEST_F(SimulatorScript, ARefusedTransferIsNotCut) {
    script("1=BscUpLoad 1+ cut 3 0\r\n2=BscDownLoad 1+ cut 3 0\r\n");
    const auto handle = connected();

    EXPECT_EQ(library.BscUpLoad(handle, "MISSING.JBI"), code::notFound);
    EXPECT_EQ(library.BscDownLoad(handle, "MISSING.JBI"), code::pcFileNotFound);
}

TEST_F(SimulatorScript, ACutBeyondTheEndSendsEverythingAndStillEndsWithItsCode) {
    script("1=BscDownLoad 1 cut 100000\r\n");

    EXPECT_EQ(library.BscDownLoad(connected(), "WELD1.JBI"), code::transferCut);
    EXPECT_EQ(folder.read("robot/WELD1.JBI"), job);
}

TEST_F(SimulatorScript, CountsOnOverLinksAndStartsAnewWhenTheSetUpChanges) {
    script("1=BscConnect 3 fail 2010\r\n");
    connected();
    connected();
    const auto third = open();
    library.BscSetEther(third, "10.0.0.1", 0);
    EXPECT_EQ(library.BscConnect(third), 2010);
    connected();

    script("1=BscConnect 1 fail 2040\r\n");
    EXPECT_NE(library.BscConnect(third), 2040) << "the change holds from the next open on";
    const auto next = open();
    library.BscSetEther(next, "10.0.0.1", 0);
    EXPECT_EQ(library.BscConnect(next), 2040);
}

TEST_F(SimulatorScript, LinesThatAreNotUnderstoodDoNothing) {
    script("1=BscConnect first fail 2010\r\n2=garbage\r\n3=\r\n");

    EXPECT_THAT(directory(connected()), ElementsAre("A.JBI"));
    EXPECT_THAT(pauses, IsEmpty());
}

} // namespace
} // namespace vantrel::simulator
