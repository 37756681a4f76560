#include "link/ZurolinkGate.h"

#include <cstring>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace vantrel {
namespace {

/// A library that notes each call with its arguments, and answers it with a number of its own.
class NotingZurolink final : public Zurolink {
  public:
    explicit NotingZurolink(std::vector<std::string>& log) : log_(log) {}

    std::int16_t BscOpen(const char* path, std::int16_t type) override {
        return note("BscOpen", 101, path, type);
    }
    std::int16_t BscSetCom(std::int16_t handle, std::int16_t port, std::int32_t baudrate,
                           std::int16_t parity, std::int16_t dataLen,
                           std::int16_t stopBit) override {
        return note("BscSetCom", 102, handle, port, baudrate, parity, dataLen, stopBit);
    }
    std::int16_t BscSetEther(std::int16_t handle, const char* ip, std::int16_t mode,
                             void* window) override {
        return note("BscSetEther", 103, handle, ip, mode, *static_cast<int*>(window));
    }
    std::int16_t BscConnect(std::int16_t handle) override {
        return note("BscConnect", 104, handle);
    }
    std::int16_t BscDisConnect(std::int16_t handle) override {
        return note("BscDisConnect", 105, handle);
    }
    std::int16_t BscClose(std::int16_t handle) override { return note("BscClose", 106, handle); }
    std::int16_t BscFindFirst(std::int16_t handle, char* buffer, std::int16_t length) override {
        std::strcpy(buffer, "first");
        return note("BscFindFirst", 107, handle, length);
    }
    std::int16_t BscFindNext(std::int16_t handle, char* buffer, std::int16_t length) override {
        std::strcpy(buffer, "next");
        return note("BscFindNext", 108, handle, length);
    }
    std::int16_t BscDownLoad(std::int16_t handle, const char* file) override {
        return note("BscDownLoad", 109, handle, file);
    }
    std::int16_t BscUpLoad(std::int16_t handle, const char* file) override {
        return note("BscUpLoad", 110, handle, file);
    }
    std::int16_t BscSelectJob(std::int16_t handle, const char* job) override {
        return note("BscSelectJob", 111, handle, job);
    }
    std::int16_t BscDeleteJob(std::int16_t handle) override {
        return note("BscDeleteJob", 112, handle);
    }
    std::int16_t BscGetVarData(std::int16_t handle, std::int16_t kind, std::int16_t number,
                               double* values) override {
        values[9] = 9;
        return note("BscGetVarData", 113, handle, kind, number);
    }
    std::int16_t BscPutVarData(std::int16_t handle, std::int16_t kind, std::int16_t number,
                               const double* values) override {
        return note("BscPutVarData", 114, handle, kind, number, int(values[9]));
    }

  private:
    static std::string text(const char* value) { return value; }
    static std::string text(int value) { return std::to_string(value); }
    template <typename... Arguments>
    std::int16_t note(const char* function, std::int16_t result, Arguments... arguments) {
        std::string line = function;
        ((line += ' ' + text(arguments)), ...);
        log_.push_back(line);
        return result;
    }

    std::vector<std::string>& log_;
};

struct ZurolinkGateTest : testing::Test {
    std::vector<std::string> log;
    NotingZurolink library{log};
    ZurolinkGate gate{library, [this] { log.emplace_back("screen"); }};
    char buffer[255] = {};
    double values[10] = {};

    /// The call went in with these arguments, after the screen, and its answer came back.
    void expectCall(const std::string& call, std::int16_t answer, std::int16_t expected) {
        EXPECT_EQ(log, (std::vector<std::string>{"screen", call}));
        EXPECT_EQ(answer, expected) << call;
        log.clear();
    }
};

TEST_F(ZurolinkGateTest, TheScreenIsUpToDateBeforeAnyCallOfALink) {
    int window = 77;
    expectCall("BscOpen /jobs 16", gate.BscOpen("/jobs", 16), 101);
    expectCall("BscSetCom 1 2 9600 3 8 4", gate.BscSetCom(1, 2, 9600, 3, 8, 4), 102);
    expectCall("BscSetEther 1 10.0.0.1 5 77", gate.BscSetEther(1, "10.0.0.1", 5, &window), 103);
    expectCall("BscConnect 6", gate.BscConnect(6), 104);
    expectCall("BscDisConnect 7", gate.BscDisConnect(7), 105);
    expectCall("BscClose 8", gate.BscClose(8), 106);
}

TEST_F(ZurolinkGateTest, TheScreenIsUpToDateBeforeEachEntryOfADirectory) {
    expectCall("BscFindFirst 1 255", gate.BscFindFirst(1, buffer, 255), 107);
    EXPECT_STREQ(buffer, "first");
    expectCall("BscFindNext 2 254", gate.BscFindNext(2, buffer, 254), 108);
    EXPECT_STREQ(buffer, "next");
}

TEST_F(ZurolinkGateTest, TheScreenIsUpToDateBeforeJobsAndVariables) {
    expectCall("BscDownLoad 1 A.JBI", gate.BscDownLoad(1, "A.JBI"), 109);
    expectCall("BscUpLoad 2 B.JBI", gate.BscUpLoad(2, "B.JBI"), 110);
    expectCall("BscSelectJob 3 C", gate.BscSelectJob(3, "C"), 111);
    expectCall("BscDeleteJob 4", gate.BscDeleteJob(4), 112);
    expectCall("BscGetVarData 5 6 7", gate.BscGetVarData(5, 6, 7, values), 113);
    EXPECT_EQ(values[9], 9);
    expectCall("BscPutVarData 8 9 10 9", gate.BscPutVarData(8, 9, 10, values), 114);
}

} // namespace
} // namespace vantrel
