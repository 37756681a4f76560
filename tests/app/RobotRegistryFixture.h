#pragma once

#include "AppFakes.h"
#include "app/robots/RobotRegistry.h"

#include <string>
#include <string_view>

#include <gtest/gtest.h>

namespace vantrel::tests {

/// A registry whose file lies in an empty folder, which is the current one.
class RobotRegistryTest : public testing::Test {
  protected:
    /// Reads the file `content`.
    void read(std::string_view content) {
        folder_.write("robot.ini", content);
        registry_.read(box_);
    }
    std::string file() const { return folder_.read("robot.ini"); }
    std::string blockOf(const std::string& name, const std::string& address,
                        const std::string& folder) const {
        return "[Robot]\r\nName=" + name + "\r\nIPaddr=" + address + "\r\nPath=" + folder +
               "\r\n\r\n";
    }
    static std::string boot(const std::string& name) {
        return "[Boot]\r\nName=" + name + "\r\n\r\n";
    }
    void expectNotRead() const {
        ASSERT_EQ(boxes_.shown.size(), 1U);
        EXPECT_EQ(boxes_.shown[0].text, "m33[robot.ini]");
        EXPECT_EQ(boxes_.shown[0].icon, BoxIcon::Exclamation);
    }
    /// Something that exists but is no file that can be read.
    void makeUnreadable() { folder_.makeFolder("robot.ini/inner"); }

    TemporaryFolder folder_;
    InFolder inFolder_{folder_.path()};
    ApplicationState state_;
    MessageTable messages_ = numberedMessages();
    FakeMessageBoxes boxes_;
    RecordingRobotBox box_;
    RobotRegistry registry_{state_, messages_, boxes_, folder_.path()};
};

} // namespace vantrel::tests
