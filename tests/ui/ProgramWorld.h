#pragma once

#include "platform/Environment.h"
#include "support/Choices.h"
#include "support/CurrentFolderKept.h"
#include "support/ModalScript.h"
#include "support/NamedCommands.h"
#include "support/ProjectFiles.h"
#include "support/TemporaryFolder.h"
#include "support/Windows.h"
#include "ui/Composition.h"
#include "ui/FileListControl.h"
#include "ui/FolderTreeDropDown.h"
#include "ui/MainWindowControls.h"
#include "ui/frmZuroVant.h"

#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

namespace vantrel::tests {

/// The whole program, started in a folder of its own with the simulator beside it: jobs in "jobs",
/// one controller in "robot" on COM1 and 10.0.0.1, another in "other" on 10.0.0.2.
class ProgramWorld {
  public:
    ProgramWorld() {
        for (const char* name : {"English.lng", "Japanese.lng", "System.lng", "FileTable.tbl"})
            std::filesystem::copy_file(std::filesystem::path(dataFolder()) / name,
                                       folder.path(name));
        std::filesystem::copy_file(simulatorFile(), folder.path(libraryFileName()));
        for (const char* name : {"jobs", "robot", "other"})
            folder.makeFolder(name);
        script("");
        settings("TransMode=1\r\n");
        folder.write("robot.ini", "[Boot]\r\nName=FIRST\r\n\r\n[Robot]\r\nName=FIRST\r\n"
                                  "IPaddr=10.0.0.1\r\nPath=jobs\r\n\r\n[Robot]\r\nName=SECOND\r\n"
                                  "IPaddr=10.0.0.2\r\nPath=jobs\r\n\r\n");
    }
    ~ProgramWorld() { endProgram(); }
    ProgramWorld(const ProgramWorld&) = delete;
    ProgramWorld& operator=(const ProgramWorld&) = delete;

    static std::string job(std::string_view name) {
        return "/JOB\r\n//NAME " + std::string(name) + "\r\nNOP\r\nEND\r\n";
    }
    void pcJob(const std::string& name) { folder.write("jobs/" + name + ".JBI", job(name)); }
    void robotJob(const std::string& name) { folder.write("robot/" + name + ".JBI", job(name)); }

    /// Lines of the simulator's script.
    void script(const std::string& lines) {
        folder.write("simulator.ini", "[Controller1]\nFolder=robot\nPort=1\nAddress=10.0.0.1\n"
                                      "[Controller2]\nFolder=other\nAddress=10.0.0.2\n[Script]\n" +
                                          lines);
    }
    /// Lines of the section [Vantrel].
    void settings(const std::string& lines, const std::string& language = "English") {
        folder.write("Vantrel.ini", "[Vantrel]\r\nPath=" + folder.path("jobs") + "\r\n" + lines +
                                        "[PCType]\r\nDispType=3\r\n[CtrlType]\r\nDispType=2\r\n"
                                        "[Language Info]\r\nLanguage=" +
                                        language + "\r\nLangSelect=0\r\n");
    }

    StartResult startProgram(const std::vector<std::string>& arguments = {},
                             const std::string& name = "Vantrel") {
        program = std::make_unique<Composition>(folder.path(name), arguments, library);
        return program->start();
    }
    /// The next dialog asks whether to read the controller's directory.
    void answerDirectoryQuestion(bool yes) {
        modal.answer([yes](wxDialog&) { return yes ? wxID_YES : wxID_NO; });
    }
    /// Starts the program and reads the controller's directory, or not, as the operator is asked.
    void start(bool readController) {
        answerDirectoryQuestion(readController);
        ASSERT_EQ(startProgram(), StartResult::Running);
        ASSERT_TRUE(waitFor([this] { return window().IsShownOnScreen(); }));
        for (wxWindow* const other : wxTopLevelWindows)
            if (other->IsShown() && other != &window())
                other->Close(); // the version window
        runEvents();
    }
    /// Without the operator's exit, and so without its questions.
    void endProgram() {
        program.reset();
        runEvents();
    }

    frmZuroVant& window() { return *program->mainWindow(); }
    const MainWindowControls& controls() { return window().controls(); }
    wxListView& pcList() { return controls().lsvPC->native(); }
    wxListView& controllerList() { return controls().lsvCtrl->native(); }
    static std::vector<std::string> namesIn(const wxListView& list) {
        std::vector<std::string> names;
        for (long item = 0; item < list.GetItemCount(); ++item)
            names.push_back(list.GetItemText(item).utf8_string());
        return names;
    }

    /// Selects these items of a list and no others, as clicks do.
    static void choose(FileListControl& list, const std::vector<std::size_t>& rows) {
        list.focus();
        if (list.onActivated)
            list.onActivated();
        list.select(rows);
        runEvents();
    }
    void menu(std::string_view item) {
        wxCommandEvent event(wxEVT_MENU, window().menus().idOf(item));
        event.SetEventObject(&window());
        window().HandleWindowEvent(event);
    }
    /// Gives a control the keyboard.
    static void focus(wxWindow& control) {
        control.SetFocus();
        ASSERT_TRUE(waitFor([&] { return control.HasFocus(); })) << control.GetName();
    }
    /// Presses the button beside the path, which shows the tree of folders.
    void dropFolderTree() {
        click(window(), "Command1");
        runEvents();
        ASSERT_TRUE(controls().trvFolderList->IsShownOnScreen());
    }
    /// The next dialog is that of the languages: `language` is chosen there, and it is left by
    /// `button`, OK or Cancel.
    void chooseLanguage(const std::string& language, const std::string& button = "Command1") {
        modal.act([language, button](wxDialog& dialog) {
            ASSERT_EQ(dialog.GetName(), "frmLanguage");
            auto& list = control<wxListBox>(dialog, "List1");
            const int index = list.FindString(wxString::FromUTF8(language), true);
            ASSERT_NE(index, wxNOT_FOUND) << language;
            pick(list, index);
            click(dialog, button);
        });
    }

    CurrentFolderKept currentFolder;
    TemporaryFolder folder;
    ModalScript modal;
    Zurolink* library = nullptr; ///< in place of the simulator
    std::unique_ptr<Composition> program;
};

} // namespace vantrel::tests
