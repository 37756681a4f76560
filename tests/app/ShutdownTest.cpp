#include "app/start/Shutdown.h"

#include "AppFakes.h"

#include <filesystem>

#include <gtest/gtest.h>

namespace vantrel {
namespace {

class RecordingShutdownWindows final : public ShutdownWindows {
  public:
    explicit RecordingShutdownWindows(tests::Log& log) : log_(log) {}

    bool locked = false;

    bool isLocked() const override { return locked; }
    void unloadOtherWindows() override { log_.push_back("unload"); }
    WindowPlacement placement() const override {
        return {.isNormal = true, .left = 15, .top = 30, .width = 9000, .height = 6000};
    }

  private:
    tests::Log& log_;
};

class ShutdownTest : public testing::Test {
  protected:
    ShutdownTest() {
        registry_.read(box_);
        desk_.folder.write("robot.ini", "");
        desk_.state.StartupDone = true;
    }
    std::string settings() const { return desk_.folder.read("Vantrel.ini"); }
    std::string registryFile() const { return desk_.folder.read("robot.ini"); }
    void expectNothingWritten() const {
        EXPECT_FALSE(desk_.folder.has("Vantrel.ini"));
        EXPECT_EQ(registryFile(), "");
    }
    /// Makes the file one that cannot be written.
    void block(const std::string& name) {
        std::filesystem::remove(desk_.folder.path(name));
        desk_.folder.makeFolder(name + "/inner");
    }

    tests::Desk desk_;
    tests::InFolder inFolder_{desk_.folder.path()};
    tests::RecordingRobotBox box_;
    SettingsFile settings_{desk_.folder.path(), "Vantrel.ini"};
    RobotRegistry registry_{desk_.state, desk_.messages, desk_.boxes, desk_.folder.path()};
    RecordingShutdownWindows windows_{desk_.log};
    Shutdown shutdown_{{.state = desk_.state,
                        .settings = settings_,
                        .registry = registry_,
                        .session = desk_.session,
                        .messages = desk_.messages,
                        .boxes = desk_.boxes,
                        .windows = windows_}};
};

TEST_F(ShutdownTest, TheEndOfTheOperatorsSessionSavesWithoutAQuestion) {
    EXPECT_TRUE(shutdown_.closeUnasked());
    EXPECT_TRUE(desk_.boxes.shown.empty());
    EXPECT_NE(settings(), "");
    EXPECT_NE(registryFile(), "");
    EXPECT_TRUE(shutdown_.close()) << "it is closed already";
}

TEST_F(ShutdownTest, TheEndOfTheOperatorsSessionWaitsForWhatRuns) {
    windows_.locked = true;
    EXPECT_FALSE(shutdown_.closeUnasked());
    expectNothingWritten();
    windows_.locked = false;
    EXPECT_TRUE(shutdown_.closeUnasked());
}

TEST_F(ShutdownTest, OkSavesEverythingAndQuitsTheSession) {
    desk_.boxes.answers = {true};
    EXPECT_TRUE(shutdown_.close());
    EXPECT_EQ(desk_.log, (tests::Log{"unload", "askOkCancel m13", "session quit"}));
    EXPECT_EQ(desk_.boxes.shown[0].icon, BoxIcon::Question);
    EXPECT_NE(settings().find("Window=15,30,9000,6000,0,0,0\r\n"), std::string::npos);
    EXPECT_NE(registryFile().find("[Boot]\r\nName=DEFAULT\r\n"), std::string::npos);
}

TEST_F(ShutdownTest, CancelKeepsTheProgramRunning) {
    desk_.boxes.answers = {false};
    EXPECT_FALSE(shutdown_.close());
    EXPECT_EQ(desk_.log, (tests::Log{"unload", "askOkCancel m13"}));
    expectNothingWritten();
}

TEST_F(ShutdownTest, WithNoSaveNothingIsWritten) {
    desk_.state.NoSave = true;
    desk_.boxes.answers = {true};
    EXPECT_TRUE(shutdown_.close());
    EXPECT_EQ(desk_.log.back(), "session quit");
    expectNothingWritten();
}

TEST_F(ShutdownTest, WhileLockedTheCloseIsRefusedWithoutAWord) {
    windows_.locked = true;
    EXPECT_FALSE(shutdown_.close());
    EXPECT_TRUE(desk_.log.empty());
    expectNothingWritten();
}

TEST_F(ShutdownTest, WhileTheProgramStartsTheCloseIsRefusedWithoutAWord) {
    desk_.state.StartupDone = false;
    EXPECT_FALSE(shutdown_.close());
    EXPECT_TRUE(desk_.log.empty());
}

TEST_F(ShutdownTest, ASettingsFileThatCannotBeWrittenIsNotReported) {
    block("Vantrel.ini");
    desk_.boxes.answers = {true};
    EXPECT_TRUE(shutdown_.close());
    EXPECT_EQ(desk_.boxes.shown.size(), 1U);
    EXPECT_NE(registryFile().find("[Boot]"), std::string::npos);
}

TEST_F(ShutdownTest, ARegistryThatCannotBeWrittenIsToldOnce) {
    block("robot.ini");
    desk_.boxes.answers = {true};
    EXPECT_TRUE(shutdown_.close());
    ASSERT_EQ(desk_.boxes.shown.size(), 2U);
    EXPECT_TRUE(desk_.boxes.shown[1].text.starts_with("m46"));
    EXPECT_GT(desk_.boxes.shown[1].text.size(), std::string("m46").size());
    EXPECT_EQ(desk_.boxes.shown[1].icon, BoxIcon::Exclamation);
    EXPECT_EQ(desk_.log.back(), "session quit");
    EXPECT_NE(settings().find("[Vantrel]"), std::string::npos);
}

TEST_F(ShutdownTest, RobotsThatCannotBeKeptAreLostOnlyWithConsent) {
    block("robot.ini");
    registry_.noteEdit();
    desk_.boxes.answers = {true, false};
    EXPECT_FALSE(shutdown_.close());
    ASSERT_EQ(desk_.boxes.shown.size(), 2U);
    EXPECT_EQ(desk_.boxes.shown[1].kind, tests::FakeMessageBoxes::Kind::OkCancel);
    EXPECT_TRUE(desk_.boxes.shown[1].text.starts_with("m46"));
    EXPECT_TRUE(desk_.boxes.shown[1].text.ends_with("\nm85"));
    EXPECT_EQ(std::ranges::count(desk_.log, "session quit"), 0) << "the program goes on";

    std::filesystem::remove_all(desk_.folder.path("robot.ini"));
    desk_.boxes.answers = {true};
    EXPECT_TRUE(shutdown_.close());
    EXPECT_NE(registryFile().find("[Robot]"), std::string::npos) << "what was edited is kept";
}

TEST_F(ShutdownTest, RobotsThatCannotBeKeptMayBeGivenUp) {
    block("robot.ini");
    registry_.noteEdit();
    desk_.boxes.answers = {true, true};
    EXPECT_TRUE(shutdown_.close());
    EXPECT_EQ(desk_.log.back(), "session quit");
}

TEST_F(ShutdownTest, TheEndOfTheOperatorsSessionAsksBeforeRobotsAreLost) {
    block("robot.ini");
    registry_.noteEdit();
    desk_.boxes.answers = {false};
    EXPECT_FALSE(shutdown_.closeUnasked());
    EXPECT_EQ(desk_.boxes.shown.size(), 1U);
}

TEST_F(ShutdownTest, TheSettingsAreWrittenBeforeTheRobots) {
    // What stands on the disk when the robots' file cannot be written is the settings.
    block("robot.ini");
    std::string settingsThen;
    desk_.boxes.whenAsked = [&] {
        settingsThen = desk_.folder.has("Vantrel.ini") ? settings() : "";
    };
    registry_.noteEdit();
    desk_.boxes.answers = {true};
    EXPECT_TRUE(shutdown_.closeUnasked());
    EXPECT_NE(settingsThen, "");
}

TEST_F(ShutdownTest, ASecondCloseAsksNothing) {
    desk_.boxes.answers = {true};
    EXPECT_TRUE(shutdown_.close());
    const tests::Log before = desk_.log;
    EXPECT_TRUE(shutdown_.close());
    EXPECT_EQ(desk_.log, before);
}

} // namespace
} // namespace vantrel
