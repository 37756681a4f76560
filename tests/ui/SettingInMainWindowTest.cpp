#include "ProgramWorld.h"

#include <wx/menu.h>

namespace vantrel::tests {
namespace {

/// The whole program in high-speed mode, with X on the first robot's controller and Y on the other.
class SettingInMainWindowTest : public testing::Test, public ProgramWorld {
  protected:
    SettingInMainWindowTest() {
        settings("TransMode=16\r\n");
        robotJob("X");
        folder.write("other/Y.JBI", job("Y"));
        pcJob("MINE");
    }

    void openSettings(const std::function<void(wxDialog&)>& action) {
        modal.act(action);
        menu("mnuOpt(0)");
        runEvents();
    }
    void refreshController() {
        choose(*controls().lsvCtrl, {});
        menu("mnuRefresh");
    }
    std::vector<std::string> onController() { return namesIn(controllerList()); }
    bool showsJob(const std::string& name) {
        const auto names = onController();
        return std::find(names.begin(), names.end(), name) != names.end();
    }
    wxChoice& robots() { return *controls().cmbRbtName; }
    static void select(wxDialog& dialog, int index) {
        pick(control<wxListBox>(dialog, "lstRgstRbt"), index);
    }
    static void model(wxDialog& dialog, int index) {
        pick(control<wxRadioButton>(dialog, "optCtrl" + std::to_string(index)));
    }
};

TEST_F(SettingInMainWindowTest, AnotherAddressEmptiesThePaneAndTheNextRefreshGoesThere) {
    start(true);
    ASSERT_TRUE(showsJob("X.JBI"));
    openSettings([](wxDialog& dialog) {
        type(dialog, "txtIP4", "2");
        click(dialog, "cmdOK");
    });
    EXPECT_TRUE(onController().empty());
    EXPECT_EQ(controls().lblIPAddr2->GetLabel(), "10.0.0.2");
    refreshController();
    EXPECT_TRUE(showsJob("Y.JBI"));
    EXPECT_FALSE(showsJob("X.JBI"));
}

TEST_F(SettingInMainWindowTest, CancelChangesNothing) {
    start(true);
    openSettings([](wxDialog& dialog) {
        type(dialog, "txtIP4", "2");
        click(dialog, "cmdDel");
        click(dialog, "cmdCancel");
    });
    EXPECT_TRUE(showsJob("X.JBI"));
    EXPECT_EQ(controls().lblIPAddr2->GetLabel(), "10.0.0.1");
    EXPECT_EQ(robots().GetCount(), 2U);
    refreshController();
    EXPECT_TRUE(showsJob("X.JBI"));
}

TEST_F(SettingInMainWindowTest, ADeletedCurrentRobotIsFollowedByItsNeighbour) {
    start(true);
    openSettings([](wxDialog& dialog) {
        click(dialog, "cmdDel");
        click(dialog, "cmdOK");
    });
    EXPECT_EQ(robots().GetCount(), 1U);
    EXPECT_EQ(robots().GetStringSelection(), "SECOND");
    EXPECT_EQ(controls().lblIPAddr2->GetLabel(), "10.0.0.2");
    EXPECT_TRUE(onController().empty());
    refreshController();
    EXPECT_TRUE(showsJob("Y.JBI"));
}

TEST_F(SettingInMainWindowTest, ARenamedRobotStaysTheCurrentOneAndIsWrittenAtTheEnd) {
    start(true);
    openSettings([](wxDialog& dialog) {
        type(dialog, "txtRbtName", "WELD");
        select(dialog, 1);
        click(dialog, "cmdAdd1");
        type(dialog, "txtRbtName", "BETWEEN");
        click(dialog, "cmdOK");
    });
    EXPECT_EQ(robots().GetStringSelection(), "WELD");
    EXPECT_EQ(robots().GetString(1), "BETWEEN");
    EXPECT_TRUE(showsJob("X.JBI")) << "the machine is the same";
    modal.answer([](wxDialog&) { return wxID_OK; });
    menu("mnuEnd");
    ASSERT_TRUE(waitFor([this] { return !program->mainWindow(); }));
    const auto registry = folder.read("robot.ini");
    EXPECT_TRUE(registry.starts_with("[Boot]\r\nName=WELD\r\n")) << registry;
    EXPECT_NE(registry.find("Name=BETWEEN\r\nIPaddr=0.0.0.0\r\n"), registry.npos) << registry;
}

TEST_F(SettingInMainWindowTest, AModelWithoutTheHighSpeedLinkForcesTheSerialLine) {
    start(true);
    openSettings([](wxDialog& dialog) {
        model(dialog, 1);
        click(dialog, "cmdOK");
    });
    EXPECT_TRUE(window().GetTitle().Contains("BSC")) << window().GetTitle();
    EXPECT_FALSE(window().menus().find("mnuModeHiSpeed")->IsEnabled());
    EXPECT_TRUE(onController().empty());
    EXPECT_FALSE(robots().IsShown());
    EXPECT_EQ(controls().cmbCtrlFileType->GetCount(), 2U);
    refreshController();
    EXPECT_TRUE(showsJob("X.JBI")) << "COM1 is the first robot too";
}

TEST_F(SettingInMainWindowTest, AnotherPortIsOnTheLabelAndEmptiesThePaneInBscMode) {
    settings("TransMode=1\r\n");
    start(true);
    ASSERT_TRUE(showsJob("X.JBI"));
    openSettings([](wxDialog& dialog) {
        swallows(control<wxWindow>(dialog, "txtPort"), WXK_UP);
        click(dialog, "cmdRefresh");
        click(dialog, "cmdCancel");
    });
    EXPECT_TRUE(onController().empty());
    EXPECT_TRUE(controls().lbl232CParam->GetLabel().Contains("COM2"))
        << controls().lbl232CParam->GetLabel();
}

TEST_F(SettingInMainWindowTest, WithoutSavingThisRunNothingIsWrittenAtTheEnd) {
    start(false);
    const auto before = folder.read("robot.ini");
    openSettings([](wxDialog& dialog) {
        type(dialog, "txtRbtName", "WELD");
        tick(dialog, "chkIniFile", true);
        click(dialog, "cmdOK");
    });
    modal.answer([](wxDialog&) { return wxID_OK; });
    menu("mnuEnd");
    ASSERT_TRUE(waitFor([this] { return !program->mainWindow(); }));
    EXPECT_EQ(folder.read("robot.ini"), before);
}

} // namespace
} // namespace vantrel::tests
