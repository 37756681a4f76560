#pragma once

#include "simulator/ResultCodes.h"
#include "simulator/Simulator.h"
#include "support/TemporaryFolder.h"

#include <array>
#include <chrono>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace vantrel::simulator {

/// A simulator with one controller at port 1 and at 10.0.0.1, a PC folder "pc", and a pause that
/// is noted instead of waited.
class SimulatorFixture : public testing::Test {
  protected:
    SimulatorFixture() {
        folder.makeFolder("robot");
        folder.makeFolder("pc");
        setUp();
    }

    /// Writes simulator.ini anew, with more keys of the controller and with sections after it.
    void setUp(const std::string& keys = "", const std::string& sections = "") {
        folder.write("simulator.ini", "[Controller1]\r\nFolder=robot\r\nPort=1\r\n"
                                      "Address=10.0.0.1\r\n" +
                                          keys + "\r\n" + sections + "\r\n");
    }
    void script(const std::string& rows) { setUp("", "[Script]\r\n" + rows); }

    std::int16_t open(std::int16_t type = 16) {
        return library.BscOpen(folder.path("pc").c_str(), type);
    }
    std::int16_t connected() {
        const auto handle = open();
        EXPECT_GT(handle, 0);
        EXPECT_EQ(library.BscSetEther(handle, "10.0.0.1", 0), 1);
        EXPECT_EQ(library.BscConnect(handle), 1);
        return handle;
    }
    std::vector<std::string> directory(std::int16_t handle) {
        std::vector<std::string> names;
        std::array<char, 255> buffer{};
        auto result = library.BscFindFirst(handle, buffer.data(), 255);
        for (; result == 0; result = library.BscFindNext(handle, buffer.data(), 255))
            names.emplace_back(buffer.data());
        EXPECT_EQ(result, -1);
        return names;
    }

    tests::TemporaryFolder folder;
    std::vector<std::chrono::milliseconds> pauses;
    Simulator library{folder.path(), [this](auto time) { pauses.push_back(time); }};
};

} // namespace vantrel::simulator
