#include "ProgramWorld.h"
#include "ui/dialogs/frmVers.h"

namespace vantrel::tests {
namespace {

/// The program as it stands after the start: with the version window that nobody has closed yet.
class VersionWindowAtStart : public testing::Test {
  public:
    VersionWindowAtStart() {
        world.pcJob("A");
        world.robotJob("A");
        world.answerDirectoryQuestion(true);
        EXPECT_EQ(world.startProgram(), StartResult::Running);
        EXPECT_TRUE(waitFor([this] { return world.window().IsShownOnScreen(); }));
    }

    static bool isShown() {
        for (const wxWindow* const window : wxTopLevelWindows)
            if (dynamic_cast<const frmVers*>(window) && window->IsShown())
                return true;
        return false;
    }

    ProgramWorld world;
};

TEST_F(VersionWindowAtStart, StaysWhileTheOperatorOnlyLooks) {
    EXPECT_TRUE(isShown());
    world.menu("mnuDisp(0)");
    EXPECT_TRUE(isShown());
}

TEST_F(VersionWindowAtStart, StaysBeforeTheMainWindow) {
    auto* const version = wxWindow::FindWindowByName("frmVers");
    ASSERT_NE(version, nullptr);
    EXPECT_TRUE(waitFor([&] { return staysBefore(*version, world.window()); }));
    EXPECT_TRUE(isShown());
}

TEST_F(VersionWindowAtStart, MakesWayForADialog) {
    world.modal.act([](wxDialog& dialog) {
        EXPECT_TRUE(waitFor([] { return !isShown(); }));
        click(dialog, "cmdCancel");
    });
    world.menu("mnuOpt(0)");
}

TEST_F(VersionWindowAtStart, MakesWayForAQuestion) {
    ProgramWorld::choose(*world.controls().lsvPC, {0});
    world.modal.act([](wxDialog& question) {
        EXPECT_TRUE(waitFor([] { return !isShown(); }));
        question.EndModal(wxID_CANCEL);
    });
    world.menu("mnuFile(0)");
}

TEST_F(VersionWindowAtStart, StaysWhenItIsOpenedFromTheMenu) {
    world.modal.act([](wxDialog& dialog) {
        EXPECT_EQ(dialog.GetName(), "frmVers");
        EXPECT_TRUE(isShown());
        click(dialog, "Command1");
    });
    world.menu("mnuVer");
    EXPECT_FALSE(isShown());
}

} // namespace
} // namespace vantrel::tests
