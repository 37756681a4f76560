#include "ProgramWorld.h"
#include "support/ReadOnlyFolder.h"

#include <wx/msgdlg.h>

namespace vantrel::tests {
namespace {

/// The whole program in a folder that its user may only read.
TEST(ProgramInAReadOnlyFolder, WorksAndTellsOfTheRobotsOnce) {
    ProgramWorld world;
    auto& folder = world.folder;
    const auto expectBox = [&](const char* start) {
        world.modal.answer([start](wxDialog& dialog) {
            EXPECT_TRUE(dynamic_cast<wxMessageDialogBase&>(dialog).GetMessage().StartsWith(start));
            return wxID_OK;
        });
    };
    world.pcJob("A");
    world.robotJob("X");
    const auto settingsBefore = folder.read("Vantrel.ini");
    const auto robotsBefore = folder.read("robot.ini");
    {
        const ReadOnlyFolder readOnly(folder.path());
        world.answerDirectoryQuestion(true);
        ASSERT_EQ(world.startProgram(), StartResult::Running);
        runEvents();
        ProgramWorld::choose(*world.controls().lsvPC, {0});
        world.menu("mnuFile(0)");
        EXPECT_EQ(folder.read("robot/A.JBI"), ProgramWorld::job("A"));
        expectBox("Exit Vantrel?");
        expectBox("The robot list could not be saved: ");
        world.menu("mnuEnd");
        ASSERT_TRUE(waitFor([&] { return !world.program->mainWindow(); }));
    }
    EXPECT_EQ(folder.read("Vantrel.ini"), settingsBefore);
    EXPECT_EQ(folder.read("robot.ini"), robotsBefore);
}

} // namespace
} // namespace vantrel::tests
