#include "ProgramWorld.h"
#include "link/MachineUse.h"

#include <gmock/gmock.h>
#include <wx/msgdlg.h>

namespace vantrel::tests {
namespace {

using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

/// Another program beside the window.
struct MachineInUseInMainWindowTest : testing::Test, ProgramWorld {
    MachineUse other{folder.path(), "vantrelctl", "get", true};
    const ReachedMachine robot{TransferMode::Bsc, 1, ""};

    bool anythingIsLocked() const {
        return !std::filesystem::is_empty(std::filesystem::path(folder.path("locks")));
    }
};

TEST_F(MachineInUseInMainWindowTest, TheOperatorIsToldWhoWorksWithTheRobotAndNothingIsReached) {
    robotJob("A");
    start(false);
    std::string told;
    {
        const MachineUse::Command command(&other);
        other.take(robot);
        modal.answer([&told](wxDialog& box) {
            told = dynamic_cast<wxMessageDialogBase&>(box).GetMessage().utf8_string();
            return wxID_OK;
        });
        controls().lsvCtrl->focus();
        if (controls().lsvCtrl->onActivated)
            controls().lsvCtrl->onActivated();
        menu("mnuRefresh");
        runEvents();
    }
    EXPECT_THAT(told, AllOf(HasSubstr("COM1 is in use by vantrelctl get"), HasSubstr("(160)")));
    EXPECT_THAT(namesIn(controllerList()), IsEmpty());
    menu("mnuRefresh");
    runEvents();
    EXPECT_THAT(namesIn(controllerList()), testing::Contains("A.JBI")) << "it is free";
}

TEST_F(MachineInUseInMainWindowTest, ACommandThatHasEndedKeepsNobodyOff) {
    robotJob("A");
    start(true);
    choose(*controls().lsvCtrl, {0});
    menu("mnuFile(0)");
    runEvents();
    EXPECT_TRUE(folder.has("jobs/A.JBI"));
    EXPECT_FALSE(anythingIsLocked());
}

} // namespace
} // namespace vantrel::tests
