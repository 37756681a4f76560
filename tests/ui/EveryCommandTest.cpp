#include "DialogTest.h"
#include "HelpWorld.h"
#include "ui/CommandToolBar.h"
#include "ui/PathDisplay.h"
#include "ui/QuickFilter.h"

#include <algorithm>

#include <wx/menu.h>
#include <wx/statusbr.h>

namespace vantrel::tests {
namespace {

/// A walk through every menu entry and every tool button of the whole program: each has a text, is
/// enabled where it can do its work, and does something that can be seen. Each dialog that opens is
/// looked at and left by Esc.
class EveryCommandTest : public testing::TestWithParam<const char*>, public HelpWorld {
  protected:
    EveryCommandTest() {
        settings("TransMode=1\r\n", GetParam());
        for (const char* name : {"A", "B"})
            pcJob(name);
        for (const char* name : {"X", "Y"})
            robotJob(name);
        start(true);
        modal.actOnOthers([this](wxDialog& dialog) { lookAt(dialog); });
    }
    /// While what looks at the dialogs is still there.
    ~EveryCommandTest() override { endProgram(); }

    /// Makes things so that the entry has something to do.
    void prepare(const CommandRow& command);
    void prepareTool(const CommandToolBar& bar, const std::string& key);
    /// Runs an action, which has to change what can be seen, heard of or found on the disk.
    void expectEffect(const std::string& what, const std::function<void()>& action) {
        runEvents();
        const auto before = picture();
        action();
        EXPECT_TRUE(waitFor([&] { return picture() != before; })) << what << " does nothing";
        runEvents();
    }

    void returnToJobs() {
        auto& list = *controls().lsvPC;
        const long row = list.native().FindItem(-1, "jobs");
        ASSERT_GE(row, 0);
        list.onOpen(row);
    }

  private:
    void lookAt(wxDialog& dialog);
    static void expectTexts(const wxWindow& window);
    void hideViewer() {
        if (controls().fraFile.panel->IsShown())
            menu("mnuFile(5)");
    }
    std::string picture();
    std::string files() const;
    std::string shown(FileListControl& list);

    std::string dialogs_; ///< the names of those that opened
    int newFiles_ = 0;
};

INSTANTIATE_TEST_SUITE_P(In, EveryCommandTest, bothLanguages, languageName);

void EveryCommandTest::lookAt(wxDialog& dialog) {
    dialogs_ += dialog.GetName().utf8_string() + '\n';
    EXPECT_FALSE(dialog.GetTitle().empty()) << dialog.GetName();
    std::vector<wxNotebook*> books;
    for (wxWindow* const child : dialog.GetChildren())
        if (auto* const book = dynamic_cast<wxNotebook*>(child))
            books.push_back(book);
    for (auto* const book : books) {
        for (std::size_t page = 0; page < book->GetPageCount(); ++page) {
            book->SetSelection(page);
            EXPECT_FALSE(book->GetPageText(page).empty()) << dialog.GetName();
            expectNothingCutOff(dialog);
        }
    }
    expectTexts(dialog);
    expectNothingCutOff(dialog);
    EXPECT_TRUE(leave(dialog)) << dialog.GetName();
}

void EveryCommandTest::expectTexts(const wxWindow& window) {
    for (const wxWindow* const child : window.GetChildren()) {
        const bool hasCaption =
            dynamic_cast<const wxButton*>(child) || dynamic_cast<const wxCheckBox*>(child) ||
            dynamic_cast<const wxStaticText*>(child) || dynamic_cast<const wxRadioButton*>(child);
        EXPECT_FALSE(hasCaption && child->IsShown() && child->GetLabel().empty())
            << window.GetName() << ": " << child->GetName();
        expectTexts(*child);
    }
}

std::string EveryCommandTest::shown(FileListControl& list) {
    std::string all = "view " + std::to_string(int(list.view())) + ":";
    for (long item = 0; item < list.native().GetItemCount(); ++item)
        all += list.native().GetItemText(item).utf8_string() + ' ';
    all += "selected";
    for (const auto row : list.selectedRows())
        all += ' ' + std::to_string(row);
    return all + '\n';
}

std::string EveryCommandTest::files() const {
    std::vector<std::string> names;
    for (const char* folderName : {"jobs", "robot"})
        for (const auto& entry : std::filesystem::directory_iterator(folder.path(folderName)))
            names.push_back(entry.path().string());
    std::sort(names.begin(), names.end());
    std::string all;
    for (const auto& name : names)
        all += name + '\n';
    return all;
}

std::string EveryCommandTest::picture() {
    std::string all = window().GetTitle().utf8_string() + '\n' + files() + dialogs_ + opened() +
                      shown(*controls().lsvPC) + shown(*controls().lsvCtrl) +
                      controls().trvFolderName->GetToolTipText().utf8_string();
    for (const wxWindow* part : {static_cast<wxWindow*>(controls().fraFile.panel),
                                 static_cast<wxWindow*>(controls().pcQuickFilter),
                                 static_cast<wxWindow*>(controls().pcHighlight)})
        all += part->IsShown() ? '+' : '-';
    all += window().menus().find("mnuLineNumbers")->IsChecked() ? '+' : '-';
    for (int index = 0; index < 3; ++index)
        all += window().menus().find("mnuSort(" + std::to_string(index) + ")")->IsChecked() ? '+'
                                                                                            : '-';
    return all;
}

void EveryCommandTest::prepare(const CommandRow& command) {
    hideViewer();
    controls().pcQuickFilter->close();
    pcJob("A");
    std::filesystem::remove(folder.path("robot/A.JBI"));
    choose(*controls().lsvPC, {});
    menu("mnuRefresh");
    choose(*controls().lsvPC, {0});
    const auto is = [&command](const char* name) { return commandNamed(name).first == &command; };
    if (is("mnuFile(6)") || is("mnuLineNumbers"))
        menu("mnuFile(5)");
    for (const std::string of : {"mnuDisp", "mnuSort"})
        for (int index = 0; index < 3; ++index)
            if (is((of + "(" + std::to_string(index) + ")").c_str()))
                menu(of + "(" + std::to_string((index + 1) % 3) + ")");
    if (is("mnuDisp(3)"))
        menu("mnuDisp(0)");
    if (is("mnuModeBsc"))
        menu("mnuModeHiSpeed");
    if (is("mnuModeHiSpeed"))
        menu("mnuModeBsc");
    if (is("mnuTools(2)")) // no robot is in force on a serial line
        menu("mnuModeHiSpeed");
    if (is("mnuTools(0)"))
        menu("mnuFile(0)");
    if (is("mnuBack")) { // the way forward is there afterwards
        controls().tlbPC->press("UpFolder");
        returnToJobs();
    }
    if (is("mnuViewOnController")) {
        robotJob("X");
        choose(*controls().lsvCtrl, {});
        menu("mnuRefresh");
        choose(*controls().lsvCtrl, {0});
    }
    if (is("mnuTools(3)")) // the system's own window, which knows no Esc here
        modal.answer([this](wxDialog&) {
            dialogs_ += "file dialog\n";
            return wxID_CANCEL;
        });
    if (is("mnuRefresh"))
        pcJob("NEW" + std::to_string(++newFiles_));
}

void EveryCommandTest::prepareTool(const CommandToolBar& bar, const std::string& key) {
    prepare(*commandNamed(bar.GetName().utf8_string() + " " + key).first);
    if (key != "PCButton" && &bar != controls().tlbFile)
        return;
    for (const char* name : {"X", "Y"}) {
        std::filesystem::remove(folder.path("jobs/" + std::string(name) + ".JBI"));
        robotJob(name);
    }
    menu("mnuRefresh");
    choose(*controls().lsvCtrl, {});
    menu("mnuRefresh");
    choose(*controls().lsvCtrl, {0});
}

TEST_P(EveryCommandTest, OfTheMenusDoesWhatCanBeSeen) {
    int walked = 0;
    for (const auto& row : menuEntries()) {
        const auto& name = row.first;
        const auto* const entry = window().menus().find(name);
        if (!entry)
            continue; // in the menu bar itself
        const auto text = entry->GetItemLabelText().utf8_string();
        EXPECT_FALSE(text.empty()) << name;
        prepare(*commandNamed(name).first);
        EXPECT_TRUE(entry->IsEnabled()) << text;
        expectEffect(text, [&] { menu(name); });
        ++walked;
    }
    EXPECT_EQ(walked, int(menuEntries().size()) - 1);
    EXPECT_TRUE(program->mainWindow()) << "Esc keeps the program running";
}

TEST_P(EveryCommandTest, OfTheToolBarsDoesWhatCanBeSeen) {
    const auto& all = controls();
    for (auto* bar : {all.tlbMain, all.tlbPC, all.tlbPCButton, all.tlbCtrlButton, all.tlbFile}) {
        for (const auto& key : bar->keys()) {
            const auto what = bar->GetName().utf8_string() + ' ' + key;
            EXPECT_FALSE(bar->toolTip(key).empty()) << what;
            prepareTool(*bar, key);
            EXPECT_TRUE(bar->isEnabled(key)) << what;
            expectEffect(what, [&] { bar->press(key); });
            if (key == "UpFolder")
                returnToJobs();
        }
    }
}

} // namespace
} // namespace vantrel::tests
