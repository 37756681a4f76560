#include "DialogTest.h"
#include "ProgramWorld.h"
#include "ui/CommandToolBar.h"
#include "ui/look/ColourSwatch.h"

#include <gmock/gmock.h>
#include <wx/choice.h>
#include <wx/listbox.h>
#include <wx/menu.h>

namespace vantrel::tests {
namespace {

using testing::HasSubstr;

constexpr int red = 1; ///< its place in the list of colours

/// A robot's colour and label, through the whole program in each language.
class RobotMarkInMainWindowTest : public testing::TestWithParam<const char*>, public ProgramWorld {
  protected:
    RobotMarkInMainWindowTest() {
        settings("TransMode=16\r\n", GetParam());
        EXPECT_TRUE(bool(LanguageFiles(dataFolder()).readInto(GetParam(), messages)));
    }

    static std::string picture(const char* name) {
        return std::string("mark-") + name + "-" + GetParam();
    }
    /// The next dialog is that of colour and label, which is filled in and left by this button.
    void expectMarkDialog(int colour, const std::string& label, const std::string& button) {
        modal.act([=](wxDialog& dialog) {
            ASSERT_EQ(dialog.GetName(), "frmRobotMark");
            pick(control<wxChoice>(dialog, "cmbColour"), colour);
            type(dialog, "txtLabel", label);
            EXPECT_EQ(control<wxWindow>(dialog, "shpColour").IsShown(), colour > 0);
            expectNothingCutOff(dialog);
            saveScreenshot(dialog, picture("dialog"));
            click(dialog, button);
        });
    }
    void mark(int colour, const std::string& label) {
        expectMarkDialog(colour, label, "cmdOK");
        menu("mnuTools(2)");
    }
    void expectShown(const std::string& text, bool hasColour) {
        EXPECT_EQ(controls().lblIPaddr->IsShown(), text.empty());
        EXPECT_EQ(controls().lblRobotMark->IsShown(), !text.empty());
        EXPECT_EQ(controls().lblRobotMark->GetLabelText().utf8_string(), text);
        EXPECT_EQ(controls().robotColour->IsShown(), hasColour);
        EXPECT_TRUE(controls().lblIPAddr2->IsShown());
    }

    MessageTable messages;
};

TEST_P(RobotMarkInMainWindowTest, WithoutOneTheWindowIsAsItAlwaysWas) {
    start(false);
    expectShown("", false);
    expectMarkDialog(red, "LIVE", "cmdCancel");
    menu("mnuTools(2)");
    expectShown("", false);
}

TEST_P(RobotMarkInMainWindowTest, IsShownBesideTheBoxOfItsRobotOnly) {
    start(false);
    mark(red, "LIVE LINE");
    expectShown("LIVE LINE", true);
    EXPECT_EQ(controls().robotColour->GetBackgroundColour(), wxColour(0xD0, 0, 0));
    const auto& text = *controls().lblRobotMark;
    EXPECT_LE(text.GetTextExtent(text.GetLabelText()).x, text.GetSize().x);
    saveScreenshot(window(), picture("window"));
    const auto isOffered = [this] { return window().menus().find("mnuTools(2)")->IsEnabled(); };
    EXPECT_TRUE(isOffered());
    menu("mnuModeBsc");
    EXPECT_FALSE(isOffered());
    EXPECT_FALSE(controls().lblRobotMark->IsShown()) << "a serial line may lead to any robot";
    EXPECT_FALSE(controls().robotColour->IsShown());
    EXPECT_FALSE(controls().lblIPaddr->IsShown());
}

TEST_P(RobotMarkInMainWindowTest, ALongNameHasTheRoomOfAWideWindow) {
    folder.write("robot.ini", "[Boot]\r\nName=FIRST\r\n\r\n[Robot]\r\nName=FIRST\r\n"
                              "IPaddr=10.0.0.1\r\nPath=jobs\r\n\r\n[Robot]\r\n"
                              "Name=HALL 3 LINE 12 SPOT WELDING ROBOT LEFT SIDE (SPARE)\r\n"
                              "IPaddr=10.0.0.2\r\nPath=jobs\r\n\r\n");
    start(false);
    wxChoice& box = *controls().cmbRbtName;
    const int narrow = box.GetSize().x;
    EXPECT_LT(narrow, box.GetBestSize().x);
    window().SetSize(window().FromDIP(wxSize(1200, 600)));
    EXPECT_TRUE(waitFor([&] { return box.GetSize().x >= box.GetBestSize().x; }));
    EXPECT_GT(box.GetPosition().x, controls().tlbMain->GetRect().GetRight());
    saveScreenshot(window(), picture("wide"));
}

TEST_P(RobotMarkInMainWindowTest, AColourAloneIsNamed) {
    start(false);
    mark(red, "");
    expectShown(messages.getMessage(6513), true);
    mark(0, "");
    expectShown("", false);
}

TEST_P(RobotMarkInMainWindowTest, StandsBelowTheQuestion) {
    pcJob("A");
    robotJob("A");
    start(true);
    mark(red, "LIVE LINE");
    choose(*controls().lsvPC, {0});
    modal.act([&](wxDialog& dialog) {
        ASSERT_EQ(dialog.GetName(), "frmMsgYesNo");
        EXPECT_THAT(labelOf(dialog, "lblPlace"), HasSubstr("LIVE LINE"));
        EXPECT_EQ(control<wxWindow>(dialog, "shpPlace").GetBackgroundColour(),
                  wxColour(0xD0, 0, 0));
        expectNothingCutOff(dialog);
        saveScreenshot(dialog, picture("question"));
        click(dialog, "cmdYesNo3");
    });
    menu("mnuFile(0)");
}

class RobotMarkInSettings : public RobotMarkInMainWindowTest {
  protected:
    /// Two robots, of which the first is in force; the one of this row gets a mark in the settings,
    /// which are left by this button.
    void markInSettings(int row, const std::string& button);
    /// The robots as they are kept when the program ends.
    std::string registryAtTheEnd() {
        modal.answer([](wxDialog&) { return wxID_OK; });
        menu("mnuEnd");
        EXPECT_TRUE(waitFor([this] { return !program->mainWindow(); }));
        return folder.read("robot.ini");
    }
};

void RobotMarkInSettings::markInSettings(int row, const std::string& button) {
    folder.write("robot.ini", "[Boot]\r\nName=FIRST\r\n\r\n[Robot]\r\nName=FIRST\r\n"
                              "IPaddr=10.0.0.1\r\nPath=jobs\r\n\r\n[Robot]\r\nName=SECOND\r\n"
                              "IPaddr=10.0.0.2\r\nPath=jobs\r\n\r\n");
    start(false);
    bool isMarked = false;
    modal.act([&](wxDialog& dialog) {
        auto& list = control<wxListBox>(dialog, "lstRgstRbt");
        pick(list, row);
        list.Bind(wxEVT_MENU_OPEN, [&](wxMenuEvent& event) {
            auto* const menu = event.GetMenu();
            list.CallAfter([menu] {
                const int id = menu->FindItemByPosition(1)->GetId();
                closeOpenMenu(*menu);
                wxCommandEvent chosen(wxEVT_MENU, id);
                chosen.SetEventObject(menu);
                menu->ProcessEvent(chosen);
            });
            event.Skip();
        });
        wxContextMenuEvent key(wxEVT_CONTEXT_MENU, list.GetId(), wxDefaultPosition);
        key.SetEventObject(&list);
        list.HandleWindowEvent(key);
        auto& apply = control<wxButton>(dialog, "cmdRefresh");
        EXPECT_TRUE(waitFor([&] { return apply.IsEnabled(); })) << "an edit like any other";
        expectShown("", false);
        click(dialog, button);
        isMarked = true;
    });
    expectMarkDialog(red, "TEST CELL", "cmdOK");
    menu("mnuOpt(0)");
    EXPECT_TRUE(isMarked);
}

TEST_P(RobotMarkInSettings, IsShownAtOnceForTheRobotInForce) {
    markInSettings(0, "cmdOK");
    expectShown("TEST CELL", true);
    const auto registry = registryAtTheEnd();
    EXPECT_LT(registry.find("Label=TEST CELL"), registry.find("Name=SECOND")) << registry;
}

TEST_P(RobotMarkInSettings, IsKeptWithTheSelectedRobotWhichIsNotTheOneInForce) {
    markInSettings(1, "cmdOK");
    expectShown("", false);
    const auto registry = registryAtTheEnd();
    const auto label = registry.find("Label=TEST CELL");
    EXPECT_NE(label, std::string::npos) << registry;
    EXPECT_GT(label, registry.find("Name=SECOND")) << registry;
}

TEST_P(RobotMarkInSettings, IsGoneWithTheSettingsThatAreCancelled) {
    markInSettings(0, "cmdCancel");
    expectShown("", false);
    EXPECT_EQ(registryAtTheEnd().find("Label="), std::string::npos);
}

INSTANTIATE_TEST_SUITE_P(In, RobotMarkInMainWindowTest, bothLanguages, languageName);
INSTANTIATE_TEST_SUITE_P(In, RobotMarkInSettings, bothLanguages, languageName);

} // namespace
} // namespace vantrel::tests
