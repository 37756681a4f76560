#include "ProgramWorld.h"
#include "ui/CommandToolBar.h"
#include "ui/FileViewer.h"
#include "ui/PathDisplay.h"

#include <algorithm>

#include <wx/bmpbuttn.h>
#include <wx/menu.h>
#include <wx/statbox.h>
#include <wx/stattext.h>
#include <wx/statusbr.h>

namespace vantrel::tests {
namespace {

class LanguageInMainWindowTest : public testing::Test, public ProgramWorld {
  protected:
    LanguageInMainWindowTest() {
        pcJob("A");
        robotJob("X");
    }

    void startIn(const std::string& language) {
        settings("TransMode=16\r\n", language);
        start(true);
        choose(*controls().lsvPC, {0});
        ASSERT_TRUE(waitFor([this] { return !window().GetStatusBar()->GetStatusText(2).empty(); }))
            << "the notice of the simulation";
    }
    /// Chooses a language in the dialog of the menu and leaves it by a button.
    void changeLanguage(const std::string& language, const std::string& button = "Command1") {
        chooseLanguage(language, button);
        menu("mnuOpt(7)");
        runEvents();
    }

    /// What `texts` gives now and did not give before.
    std::string changes(const std::vector<std::string>& before) {
        std::string lines;
        for (const auto& text : texts())
            if (std::find(before.begin(), before.end(), text) == before.end())
                lines += text + '\n';
        return lines;
    }
    /// Everything that the window shows in words, a line each.
    std::vector<std::string> texts() {
        std::vector<std::string> all{"title " + window().GetTitle().utf8_string()};
        auto& bar = *window().GetMenuBar();
        for (std::size_t top = 0; top < bar.GetMenuCount(); ++top)
            all.push_back("menu " + bar.GetMenuLabel(top).utf8_string());
        for (const auto& [name, caption] : menuEntries())
            if (const auto* entry = window().menus().find(name))
                all.push_back("entry " + entry->GetItemLabel().utf8_string());
        for (int panel = 0; panel < window().GetStatusBar()->GetFieldsCount(); ++panel)
            all.push_back("panel " + window().GetStatusBar()->GetStatusText(panel).utf8_string());
        addTexts(window(), all);
        return all;
    }

  private:
    static void addTexts(wxWindow& parent, std::vector<std::string>& all) {
        for (wxWindow* const child : parent.GetChildren()) {
            if (child->IsTopLevel())
                continue;
            const auto name = child->GetName().utf8_string() + ' ';
            all.push_back(name + child->GetLabel().utf8_string() + " tip " +
                          child->GetToolTipText().utf8_string() + " font " +
                          child->GetFont().GetNativeFontInfoDesc().utf8_string());
            if (auto* const bar = dynamic_cast<CommandToolBar*>(child))
                for (const auto& key : bar->keys())
                    all.push_back(name + key + ' ' + bar->toolTip(key).utf8_string());
            if (auto* const list = dynamic_cast<wxListView*>(child); list && list->InReportView())
                addColumns(*list, all);
            addTexts(*child, all);
        }
    }
    static void addColumns(wxListView& list, std::vector<std::string>& all) {
        for (int column = 0; column < list.GetColumnCount(); ++column) {
            wxListItem item;
            item.SetMask(wxLIST_MASK_TEXT);
            list.GetColumn(column, item);
            all.push_back("column " + item.GetText().utf8_string());
        }
    }
};

TEST_F(LanguageInMainWindowTest, AnotherLanguageLooksAsIfTheProgramHadStartedInIt) {
    startIn("Japanese");
    const auto japanese = texts();
    endProgram();
    startIn("English");
    ASSERT_NE(changes(japanese), "");
    changeLanguage("Japanese");
    EXPECT_EQ(changes(japanese), "");
}

TEST_F(LanguageInMainWindowTest, TheViewersHeadingFollows) {
    startIn("English");
    menu("mnuFile(5)");
    const auto heading = controls().lblFile->GetLabel();
    const auto frame = controls().fraFile.box->GetLabel();
    changeLanguage("Japanese");
    EXPECT_NE(controls().lblFile->GetLabel(), heading);
    EXPECT_NE(controls().fraFile.box->GetLabel(), frame);
    EXPECT_TRUE(controls().fraFile.panel->IsShown());
}

TEST_F(LanguageInMainWindowTest, IsChangedAlsoWithoutAProgressWindow) {
    startIn("English");
    wxWindow::FindWindowByName("frmMsgStat")->Destroy();
    runEvents();
    changeLanguage("Japanese");
    EXPECT_EQ(window().GetMenuBar()->GetMenuLabelText(0), wxString::FromUTF8("ファイル"));
}

TEST_F(LanguageInMainWindowTest, WindowsThatOpenLaterSpeakIt) {
    startIn("English");
    changeLanguage("Japanese");
    for (const auto& [item, title] : {std::pair{"mnuOpt(0)", "設定"},
                                      {"mnuOpt(2)", "ジョブの一括セーブ"},
                                      {"mnuVer", "バージョン情報"},
                                      {"mnuOpt(7)", "言語の選択 / Language"}}) {
        modal.act([title = title](wxDialog& dialog) {
            EXPECT_TRUE(dialog.GetTitle().StartsWith(wxString::FromUTF8(title).BeforeFirst('/')))
                << dialog.GetTitle();
            expectNothingCutOff(dialog);
            swallows(dialog, WXK_ESCAPE);
        });
        menu(item);
    }
    wxWindow* const progress = wxWindow::FindWindowByName("frmMsgStat");
    ASSERT_TRUE(progress);
    EXPECT_EQ(labelOf(*progress, "cmdCancel"), "ｷｬﾝｾﾙ(&C)");
}

TEST_F(LanguageInMainWindowTest, TheModeAndTheListsStayAsTheyAre) {
    startIn("English");
    const auto selected = controls().lsvPC->selectedRows();
    changeLanguage("Japanese");
    EXPECT_EQ(window().GetTitle(), "Vantrel  -- Hispeed Link --");
    EXPECT_EQ(controllerList().GetItemText(0), "X.JBI") << "a mode command would empty the pane";
    EXPECT_EQ(controls().lsvPC->selectedRows(), selected);
    EXPECT_TRUE(controls().cmbRbtName->IsShown());
}

TEST_F(LanguageInMainWindowTest, FontsAreAppliedAgain) {
    startIn("English");
    folder.write("Vantrel.ini", folder.read("Vantrel.ini") + "[Font Info]\r\nFontSize=12\r\n");
    changeLanguage("English");
    for (wxWindow* part :
         {static_cast<wxWindow*>(controls().lblFolder), static_cast<wxWindow*>(&pcList()),
          static_cast<wxWindow*>(controls().rtxFileDisp)})
        EXPECT_EQ(part->GetFont().GetPointSize(), 12) << part->GetName();
}

TEST_F(LanguageInMainWindowTest, CancelChangesNothing) {
    startIn("English");
    const auto before = texts();
    const auto file = folder.read("Vantrel.ini");
    changeLanguage("Japanese", "Command2");
    EXPECT_EQ(changes(before), "");
    EXPECT_EQ(folder.read("Vantrel.ini"), file);
    EXPECT_TRUE(program->mainWindow());
}

} // namespace
} // namespace vantrel::tests
