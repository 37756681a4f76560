#include "DialogTest.h"
#include "HelpWorld.h"
#include "ui/KeyedToolBar.h"
#include "ui/PathDisplay.h"

#include <algorithm>
#include <map>

#include <wx/menu.h>
#include <wx/statusbr.h>

namespace vantrel::tests {
namespace {

/// A walk through every menu entry and every tool button of the whole program: each has a text, is
/// enabled where it can do its work, and does something that can be seen. Each dialog that opens is
/// looked at and closed with Esc.
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
    void prepare(MenuItem item);
    void prepareTool(const KeyedToolBar& bar, const std::string& key);
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
    static MenuItem commandOf(const std::string& key);
    void lookAt(wxDialog& dialog);
    static void expectTexts(const wxWindow& window);
    void hideViewer() {
        if (controls().fraFile.panel->IsShown())
            menu({Menu::mnuFile, 5});
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
    EXPECT_TRUE(swallows(dialog, WXK_ESCAPE)) << dialog.GetName();
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
                                 static_cast<wxWindow*>(controls().pcHighlight)})
        all += part->IsShown() ? '+' : '-';
    for (int index = 0; index < 3; ++index)
        all += window().menus().find({Menu::mnuSort, index})->IsChecked() ? '+' : '-';
    return all;
}

void EveryCommandTest::prepare(MenuItem item) {
    hideViewer();
    pcJob("A");
    std::filesystem::remove(folder.path("robot/A.JBI"));
    choose(*controls().lsvPC, {});
    menu({Menu::mnuRefresh, 0});
    choose(*controls().lsvPC, {0});
    if (item == MenuItem{Menu::mnuFile, 6})
        menu({Menu::mnuFile, 5});
    if (item.menu == Menu::mnuDisp || item.menu == Menu::mnuFileDisp)
        menu({Menu::mnuDisp, (item.index + 1) % 4});
    if (item.menu == Menu::mnuSort || item.menu == Menu::mnuSortIcon)
        menu({Menu::mnuSort, (item.index + 1) % 3});
    if (item.menu == Menu::mnuModeBsc)
        menu({Menu::mnuModeHiSpeed, 0});
    if (item.menu == Menu::mnuModeHiSpeed)
        menu({Menu::mnuModeBsc, 0});
    if (item.menu == Menu::mnuRefresh || item.menu == Menu::mnuRightRefresh)
        pcJob("NEW" + std::to_string(++newFiles_));
}

/// What a button of the main tool bar or of the PC pane does, as a menu entry.
MenuItem EveryCommandTest::commandOf(const std::string& key) {
    static const std::map<std::string, MenuItem> commands{
        {"FileCopy", {Menu::mnuFile, 0}},   {"FileMove", {Menu::mnuFile, 1}},
        {"FileDelete", {Menu::mnuFile, 2}}, {"AllSelect", {Menu::mnuFile, 3}},
        {"FileDisp", {Menu::mnuFile, 5}},   {"Print", {Menu::mnuFile, 6}},
        {"DispBig", {Menu::mnuDisp, 0}},    {"DispSmall", {Menu::mnuDisp, 1}},
        {"DispList", {Menu::mnuDisp, 2}},   {"DispDetail", {Menu::mnuDisp, 3}},
        {"modeBsc", {Menu::mnuModeBsc}},    {"modeHiSpeed", {Menu::mnuModeHiSpeed}},
        {"Refresh", {Menu::mnuRefresh}}};
    const auto found = commands.find(key);
    return found == commands.end() ? MenuItem{Menu::mnuVer} : found->second;
}

void EveryCommandTest::prepareTool(const KeyedToolBar& bar, const std::string& key) {
    prepare(commandOf(key));
    if (key != "PCButton" && &bar != controls().tlbFile)
        return;
    for (const char* name : {"X", "Y"}) {
        std::filesystem::remove(folder.path("jobs/" + std::string(name) + ".JBI"));
        robotJob(name);
    }
    menu({Menu::mnuRefresh, 0});
    choose(*controls().lsvCtrl, {});
    menu({Menu::mnuRefresh, 0});
    choose(*controls().lsvCtrl, {0});
}

TEST_P(EveryCommandTest, OfTheMenusDoesWhatCanBeSeen) {
    int walked = 0;
    for (const auto& caption : menuCaptions()) {
        const auto* const entry = window().menus().find(caption.item);
        if (!entry || entry->IsSubMenu())
            continue;
        const auto text = entry->GetItemLabelText().utf8_string();
        EXPECT_FALSE(text.empty()) << caption.message;
        prepare(caption.item);
        EXPECT_TRUE(entry->IsEnabled()) << text;
        expectEffect(text, [&] { menu(caption.item); });
        ++walked;
    }
    const int withoutOwnEntry = 7 + 2; // what stands in the menu bar, and heads of two sub-menus
    EXPECT_EQ(walked, int(menuCaptions().size()) - withoutOwnEntry);
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
            expectEffect(what, [&] { bar->onPressed(key); });
            if (key == "UpFolder")
                returnToJobs();
        }
    }
}

} // namespace
} // namespace vantrel::tests
