#include "ProgramWithoutWindows.h"
#include "app/robots/RobotFile.h"
#include "link/SimulatedWorld.h"

#include <filesystem>
#include <map>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace vantrel {
namespace {

using testing::ElementsAre;

/// The operator chooses between two robots in the window's box, and the session works on simulated
/// ones through the real binding.
class SimulatedRobotsTest : public testing::Test {
  protected:
    SimulatedRobotsTest() {
        for (const char* name : {"first", "second"}) {
            RobotRecord record;
            record.Name = name;
            record.IPaddr = record.Name == "first" ? "10.0.0.1" : "10.0.0.2";
            record.Path = pc_.path();
            state_.RobotList.push_back(record);
            simulated_.program.write(std::string(name) + "/OWN.JBI", job("OWN", name));
        }
        state_.RobotList.push_back(emptyRobotList().front());
        state_.CurrentRobotIndex = -1;
        state_.TransMode = TransferMode::HispeedLink;
        state_.StartupDone = true;
        state_.SyncroRobotDir = 0;
        session_.path = pc_.path();
        session_.DisplayMonitor = false;
        pc_.write("NEW.JBI", job("NEW", "pc"));
        pc_.write("LIST.JBI", job("LIST", "pc"));
    }

    static std::string job(const std::string& name, const std::string& body) {
        return "/JOB\r\n//NAME " + name + "\r\n" + body + "\r\n";
    }

    /// A robot's files with their bytes.
    std::map<std::string, std::string> filesOf(const std::string& robot) const {
        std::map<std::string, std::string> files;
        for (const auto& entry :
             std::filesystem::directory_iterator(simulated_.program.path(robot))) {
            const std::string name = entry.path().filename().string();
            files[name] = simulated_.program.read(robot + "/" + name);
        }
        return files;
    }

    /// Every operation that reaches a controller, on the robot of this name.
    void workOn(const std::string& robot) {
        std::vector<std::string> names;
        EXPECT_TRUE(session_.ReadDirectory(names));
        EXPECT_THAT(names, ElementsAre("OWN.JBI"));
        EXPECT_TRUE(session_.JobDownLoad("NEW.JBI"));
        EXPECT_TRUE(session_.JobUpLoad("OWN.JBI", true));
        EXPECT_EQ(pc_.read("OWN.JBI"), job("OWN", robot));
        EXPECT_TRUE(session_.JobDelete("OWN.JBI"));
        session_.JobListClear();
        session_.AddJobList("LIST.JBI");
        EXPECT_TRUE(session_.JobListDownLoad());
        std::filesystem::remove(pc_.path("LIST.JBI"));
        EXPECT_TRUE(session_.JobListUpLoad());
        EXPECT_TRUE(session_.VarDownLoad("B1=5"));
        std::string entry = "B1=0";
        EXPECT_TRUE(session_.VarUpLoad(entry));
        EXPECT_EQ(entry, "B001=5");
        session_.VarListClear();
        session_.AddVarList("B2=6");
        EXPECT_TRUE(session_.VarListDownLoad());
        EXPECT_TRUE(session_.VarListUpLoad());
    }

    tests::SimulatedWorld simulated_;
    tests::TemporaryFolder pc_;
    tests::ProgramWithoutWindows windowless_{simulated_.program.path("Vantrel")};
    ApplicationState& state_ = windowless_.state;
    Snappy& session_ = windowless_.engine.session;
    RobotSelection& selection_ = windowless_.program.robots;
};

TEST_F(SimulatedRobotsTest, EveryOperationGoesToTheChosenRobotAndToNoOther) {
    const auto untouched = filesOf("first");
    selection_.choose(1);
    EXPECT_EQ(session_.IPaddress, "10.0.0.2");
    workOn("second");
    EXPECT_EQ(filesOf("first"), untouched);

    const auto left = filesOf("second");
    EXPECT_EQ(left.count("NEW.JBI") + left.count("LIST.JBI") + left.count("OWN.JBI"), 2U);
    selection_.choose(0);
    EXPECT_EQ(session_.IPaddress, "10.0.0.1");
    workOn("first");
    EXPECT_EQ(filesOf("second"), left);
}

} // namespace
} // namespace vantrel
