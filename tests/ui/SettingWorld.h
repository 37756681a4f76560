#pragma once

#include "DialogTest.h"
#include "app/robots/RobotFile.h"
#include "app/settings/SettingDraft.h"
#include "files/FolderScan.h"
#include "support/Choices.h"
#include "support/FakeMessageBoxes.h"
#include "support/TemporaryFolder.h"
#include "ui/dialogs/frmSetting.h"

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace vantrel::tests {

/// The settings dialog on two robots, the first one current, whose folders are on a disk of the
/// test's own: "weld" is there, "gone" is not.
class SettingWorld : public DialogInLanguage {
  public:
    SettingWorld() {
        disk.write("weld/A.JBI", "");
        disk.makeFolder("weld/old");
        disk.makeFolder("pallet");
        state.RobotList = emptyRobotList();
        state.RobotList.insert(
            state.RobotList.begin(),
            {{"LINE1 WELD", "192", "168", "0", "11", "192.168.0.11", disk.path("weld")},
             {"LINE2", "", "", "", "", "", disk.path("gone")}});
        state.CurrentRobot = state.RobotList[0];
    }
    ~SettingWorld() override {
        if (window_)
            window_->Destroy();
        runEvents();
    }

    /// Made at the first call, from the state as it is by then.
    frmSetting& dialog() {
        if (!window_) {
            draft_.emplace(state, messages, "/program");
            window_ = new frmSetting(
                nullptr, *draft_,
                {messages, state, boxes,
                 FolderChoiceSource{[this] { return drives; }, subfolders, folderFiles,
                                    [](const std::string&) { return false; }},
                 [this] { taken.push_back(draft_->take()); }});
        }
        return *window_;
    }
    /// What the dialog edits; only once there is a dialog.
    SettingDraft& edited() { return *draft_; }

    wxNotebook& pages() { return control<wxNotebook>(dialog(), "SSTab1"); }
    wxTextCtrl& box(const std::string& name) { return control<wxTextCtrl>(dialog(), name); }
    wxChoice& choice(const std::string& name) { return control<wxChoice>(dialog(), name); }
    std::string textOf(const std::string& name) { return box(name).GetValue().utf8_string(); }
    bool canApply() { return control<wxButton>(dialog(), "cmdRefresh").IsEnabled(); }
    bool hasFocus(const std::string& name) {
        auto& wanted = control<wxWindow>(dialog(), name);
        return waitFor([&] { return wxWindow::FindFocus() == &wanted; });
    }

    /// The control or a part of it has the focus.
    bool hasFocusIn(const std::string& name) {
        auto& wanted = control<wxWindow>(dialog(), name);
        return waitFor([&] { return wanted.IsDescendant(wxWindow::FindFocus()); });
    }

    wxListBox& robots() { return control<wxListBox>(dialog(), "lstRgstRbt"); }
    std::vector<std::string> robotNames() {
        std::vector<std::string> names;
        for (const auto& name : robots().GetStrings())
            names.push_back(name.utf8_string());
        return names;
    }

    /// Shows the dialog and leaves it by OK.
    void confirm() {
        whileModal(dialog(), [this] { click(dialog(), "cmdOK"); });
    }

    TemporaryFolder disk;
    const std::string root = std::filesystem::path(disk.path()).root_path().string();
    std::vector<Drive> drives{{root, root}, {disk.path("pallet"), "STICK"}};
    FakeMessageBoxes boxes;
    std::vector<SettingValues> taken;

  private:
    std::optional<SettingDraft> draft_;
    frmSetting* window_ = nullptr;
};

} // namespace vantrel::tests
