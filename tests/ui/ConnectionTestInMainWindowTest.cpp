#include "DialogTest.h"
#include "ProgramWorld.h"

#include <gmock/gmock.h>
#include <wx/choice.h>
#include <wx/clipbrd.h>
#include <wx/listbox.h>
#include <wx/listctrl.h>
#include <wx/menu.h>

namespace vantrel::tests {
namespace {

/// The test of a connection, through the whole program in each language.
class ConnectionTestInMainWindowTest : public testing::TestWithParam<const char*>,
                                       public ProgramWorld {
  protected:
    ConnectionTestInMainWindowTest() {
        settings("TransMode=16\r\n", GetParam());
        EXPECT_TRUE(bool(LanguageFiles(dataFolder()).readInto(GetParam(), messages)));
    }

    static std::vector<std::string> outcomes(wxDialog& dialog) {
        auto& list = control<wxListView>(dialog, "lsvSteps");
        std::vector<std::string> all;
        for (long row = 0; row < list.GetItemCount(); ++row)
            all.push_back(list.GetItemText(row, 1).utf8_string());
        return all;
    }
    std::string text(int number) const { return messages.getMessage(number); }
    std::vector<std::string> allDone() const { return std::vector<std::string>(5, text(325)); }
    /// The next dialog is the test, which is looked at when it has ended.
    void expectTest(std::function<void(wxDialog&)> look) {
        modal.act([look = std::move(look)](wxDialog& dialog) {
            ASSERT_EQ(dialog.GetName(), "frmConnectionTest");
            EXPECT_TRUE(waitFor([&] {
                const auto all = outcomes(dialog);
                return !all.back().empty() && all.back() != "...";
            }));
            look(dialog);
        });
    }
    static void askForMenu(wxWindow& control) {
        wxContextMenuEvent key(wxEVT_CONTEXT_MENU, control.GetId(), wxDefaultPosition);
        key.SetEventObject(&control);
        control.HandleWindowEvent(key);
    }

    MessageTable messages;
};

TEST_P(ConnectionTestInMainWindowTest, SaysStepByStepWhatWorks) {
    start(false);
    expectTest([&](wxDialog& dialog) {
        EXPECT_EQ(labelOf(dialog, "lblPlace"), "FIRST (10.0.0.1)");
        EXPECT_EQ(outcomes(dialog), allDone());
        expectNothingCutOff(dialog);
        saveScreenshot(dialog, std::string("connection-") + GetParam());
        EXPECT_TRUE(leave(dialog)) << "by Esc";
    });
    menu("mnuTools(1)");
    EXPECT_EQ(namesIn(controllerList()), std::vector<std::string>{}) << "nothing is read";
}

TEST_P(ConnectionTestInMainWindowTest, SaysWhatFailsAndCanBeCopied) {
    script("1=BscConnect 1+ fail 2040\n");
    start(false);
    expectTest([&](wxDialog& dialog) {
        const auto all = outcomes(dialog);
        EXPECT_EQ(all.at(1), text(325));
        EXPECT_THAT(all.at(2), testing::AllOf(testing::StartsWith(text(405) + ": BscConnect"),
                                              testing::HasSubstr("2040")));
        EXPECT_EQ(all.at(3), text(406));
        EXPECT_EQ(all.at(4), text(406));
        expectNothingCutOff(dialog);
        auto& list = control<wxListView>(dialog, "lsvSteps");
        EXPECT_GE(list.GetClientSize().x, list.GetColumnWidth(0) + list.GetColumnWidth(1));
        saveScreenshot(dialog, std::string("connection-failed-") + GetParam());
        click(dialog, "cmdCopy");
        wxTextDataObject copied;
        {
            const wxClipboardLocker clipboard;
            ASSERT_TRUE(wxTheClipboard->GetData(copied));
        }
        EXPECT_TRUE(copied.GetText().Contains(wxString::FromUTF8(all.at(2))));
        EXPECT_TRUE(copied.GetText().StartsWith("FIRST (10.0.0.1)"));
        click(dialog, "cmdOK");
    });
    menu("mnuTools(1)");
}

TEST_P(ConnectionTestInMainWindowTest, TheMenuOfTheRobotBoxOffersIt) {
    start(false);
    wxChoice& box = *controls().cmbRbtName;
    wxMenu* opened = nullptr;
    box.Bind(wxEVT_MENU_OPEN, [&](wxMenuEvent& event) {
        opened = event.GetMenu();
        box.CallAfter([menu = opened] { closeOpenMenu(*menu); });
        event.Skip();
    });
    askForMenu(box);
    EXPECT_TRUE(waitFor([&] { return opened; }));
    outwaitToolkit();
    opened = nullptr;
    focus(box);
    pressKeyAndWait(WXK_F10, wxMOD_SHIFT);
    EXPECT_TRUE(waitFor([&] { return opened; })) << "by the keyboard";
    outwaitToolkit();
    opened = nullptr;
    wxUIActionSimulator mouse;
    mouse.MouseMove(box.ClientToScreen(wxPoint(10, box.GetSize().y / 2)));
    awaitDisplay();
    mouse.MouseClick(wxMOUSE_BTN_RIGHT);
    EXPECT_TRUE(waitFor([&] { return opened; })) << "by the mouse";
    ASSERT_TRUE(opened);
    waitFor([] { return !wxGetMouseState().RightIsDown(); });
    const auto* const entry = opened->FindItem(window().menus().idOf("mnuRobot(0)"));
    ASSERT_TRUE(entry);
    EXPECT_TRUE(entry->IsEnabled());
    EXPECT_EQ(entry->GetItemLabel().utf8_string(), text(6491));
    outwaitToolkit();
    expectTest([&](wxDialog& dialog) { click(dialog, "cmdOK"); });
    menu("mnuRobot(0)");
}

TEST_P(ConnectionTestInMainWindowTest, TheSettingsTestTheSelectedRobotAsItIsEdited) {
    start(false);
    const auto chooseTest = [](wxListBox& list) {
        list.Bind(wxEVT_MENU_OPEN, [&list](wxMenuEvent& event) {
            auto* const menu = event.GetMenu();
            list.CallAfter([menu] {
                const int id = menu->FindItemByPosition(0)->GetId();
                closeOpenMenu(*menu);
                wxCommandEvent chosen(wxEVT_MENU, id);
                chosen.SetEventObject(menu);
                menu->ProcessEvent(chosen);
            });
            event.Skip();
        });
    };
    bool isTested = false;
    modal.act([&](wxDialog& dialog) {
        auto& list = control<wxListBox>(dialog, "lstRgstRbt");
        pick(list, 1);
        type(dialog, "txtIP4", "9"); // where nobody is
        chooseTest(list);
        askForMenu(list);
        EXPECT_TRUE(waitFor([&] { return isTested; }));
        runEvents();
        click(dialog, "cmdCancel");
    });
    expectTest([&](wxDialog& dialog) {
        EXPECT_EQ(labelOf(dialog, "lblPlace"), "SECOND (10.0.0.9)");
        EXPECT_EQ(outcomes(dialog).at(1), text(325));
        EXPECT_THAT(outcomes(dialog).at(2), testing::StartsWith(text(405)));
        click(dialog, "cmdOK");
        isTested = true;
    });
    menu("mnuOpt(0)");
}

TEST_P(ConnectionTestInMainWindowTest, WhileACommandRunsItIsNotOffered) {
    start(false);
    window().setLocked(true);
    EXPECT_FALSE(window().menus().find("mnuTools(1)")->IsEnabled());
    EXPECT_FALSE(window().menus().find("mnuRobot(0)")->IsEnabled());
    window().setLocked(false);
    EXPECT_TRUE(window().menus().find("mnuTools(1)")->IsEnabled());
}

INSTANTIATE_TEST_SUITE_P(In, ConnectionTestInMainWindowTest, bothLanguages, languageName);

} // namespace
} // namespace vantrel::tests
