#pragma once

#include "DialogTest.h"
#include "PaneWorld.h"
#include "app/commands/ModeCommands.h"
#include "support/NamedCommands.h"
#include "ui/FileListControl.h"
#include "ui/OperationGuard.h"
#include "ui/frmZuroVant.h"

#include <wx/menu.h>

namespace vantrel::tests {

/// The main window with three rows on the PC's side, shown, in each language.
class MainWindowTest : public DialogInLanguage {
  protected:
    MainWindowTest() {
        state.WindowPos = {0, 0, 9720, 7000, 1400, 700, 1500, 0};
        state.StartupDone = true;
        window.applyFont();
        window.applyCaptions();
        window.showMode(modeLook(TransferMode::Bsc, messages));
        window.showActiveSide(ActiveSide::PC);
        window.showStates({});
        window.place(state.WindowPos);
        window.list(ActiveSide::PC).show(world.rows);
        window.Show();
        waitFor([this] { return window.IsShownOnScreen(); });
        runEvents();
    }
    ~MainWindowTest() override {
        window.Destroy();
        runEvents();
    }

    wxString menuLabel(const std::string& item) {
        return window.menus().find(item)->GetItemLabel();
    }

    OperationGuard guard{state.Busy};
    PaneWorld world{{"B.JBI", "A.JBI", "FOLDER/"}};
    frmZuroVant& window = *new frmZuroVant(state, messages, guard);
    const MainWindowControls& controls = window.controls();
};

} // namespace vantrel::tests
