#include "ui/dialogs/frmSetting.h"

#include "DialogTest.h"
#include "app/RobotList.h"
#include "app/SettingDraft.h"
#include "files/FolderFiles.h"
#include "files/Subfolders.h"
#include "support/FakeMessageBoxes.h"
#include "support/TemporaryFolder.h"
#include "ui/dialogs/FileNameList.h"

#include <array>

#include <gmock/gmock.h>
#include <wx/choice.h>
#include <wx/listbox.h>
#include <wx/notebook.h>
#include <wx/radiobut.h>
#include <wx/spinbutt.h>
#include <wx/statbox.h>
#include <wx/treectrl.h>

namespace vantrel::tests {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::array addressBoxes{"txtIP1", "txtIP2", "txtIP3", "txtIP4"};

/// The dialog on two robots, the second one current, whose folders are on a disk of the test's own.
class frmSettingTest : public DialogInLanguage {
  public:
    frmSettingTest() {
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
    ~frmSettingTest() override {
        if (window)
            window->Destroy();
        runEvents();
    }

    frmSetting& dialog() {
        if (!window) {
            draft.emplace(state, messages, "/program");
            window =
                new frmSetting(nullptr, *draft,
                               {messages, state, boxes,
                                FolderSources{[this] { return drives; }, subfolders, folderFiles,
                                              [](const std::string&) { return false; }},
                                [this] { taken.push_back(draft->take()); }});
        }
        return *window;
    }
    SettingDraft& edited() { return *draft; }

    wxNotebook& pages() { return control<wxNotebook>(dialog(), "SSTab1"); }
    wxTextCtrl& box(const std::string& name) { return control<wxTextCtrl>(dialog(), name); }
    std::string textOf(const std::string& name) { return box(name).GetValue().utf8_string(); }
    wxListBox& robots() { return control<wxListBox>(dialog(), "lstRgstRbt"); }
    wxTreeCtrl& folders() { return control<wxTreeCtrl>(dialog(), "Dir1"); }
    bool canApply() { return control<wxButton>(dialog(), "cmdRefresh").IsEnabled(); }
    bool hasFocus(const std::string& name) {
        auto& wanted = control<wxWindow>(dialog(), name);
        return waitFor([&] { return wxWindow::FindFocus() == &wanted; });
    }
    std::vector<std::string> robotNames() {
        std::vector<std::string> names;
        for (const auto& name : robots().GetStrings())
            names.push_back(name.utf8_string());
        return names;
    }
    void chooseRobot(int index, wxEventType how = wxEVT_LISTBOX) {
        robots().SetSelection(index);
        wxCommandEvent event(how, robots().GetId());
        event.SetInt(index);
        event.SetEventObject(&robots());
        robots().HandleWindowEvent(event);
    }
    void choose(const std::string& name, int index) {
        auto& list = control<wxChoice>(dialog(), name);
        list.SetSelection(index);
        wxCommandEvent event(wxEVT_CHOICE, list.GetId());
        event.SetInt(index);
        event.SetEventObject(&list);
        list.HandleWindowEvent(event);
    }
    void confirm() {
        whileModal(dialog(), [this] { click(dialog(), "cmdOK"); });
    }
    void enter(const std::string& name) {
        wxCommandEvent event(wxEVT_TEXT_ENTER, box(name).GetId());
        event.SetEventObject(&box(name));
        box(name).HandleWindowEvent(event);
    }
    wxTreeItemId child(const wxTreeItemId& parent, const std::string& text) {
        wxTreeItemIdValue cookie{};
        auto item = folders().GetFirstChild(parent, cookie);
        while (item.IsOk() && folders().GetItemText(item).utf8_string() != text)
            item = folders().GetNextSibling(item);
        return item;
    }

    TemporaryFolder disk;
    std::vector<Drive> drives{{"/", "/"}, {disk.path("pallet"), "STICK"}};
    FakeMessageBoxes boxes;
    std::vector<SettingValues> taken;
    std::optional<SettingDraft> draft;
    frmSetting* window = nullptr;
};

struct Caption {
    const char* control;
    int message;
};

TEST_P(frmSettingTest, ShowsItsCaptionsAndCutsNoneOff) {
    EXPECT_EQ(dialog().GetTitle().utf8_string(), messages.getMessage(300));
    for (const auto& [name, number] : std::initializer_list<Caption>{{"frmRgstRbt", 304},
                                                                     {"cmdAdd0", 305},
                                                                     {"cmdAdd1", 306},
                                                                     {"cmdDel", 307},
                                                                     {"frmSelRbt", 308},
                                                                     {"lblRbtName", 309},
                                                                     {"lblIPaddr", 310},
                                                                     {"frmInitDir", 311},
                                                                     {"fraPort", 312},
                                                                     {"FrmRbCtrl", 318},
                                                                     {"ChkRoboDir", 319},
                                                                     {"chkJBR", 320},
                                                                     {"chkHeadder", 321},
                                                                     {"chkIniFile", 322},
                                                                     {"cmdReturn", 323},
                                                                     {"cmdRefresh", 324},
                                                                     {"cmdOK", 325},
                                                                     {"cmdCancel", 326}})
        EXPECT_EQ(labelOf(dialog(), name), messages.getMessage(number)) << name;
    whileModal(dialog(), [&] {
        for (std::size_t page = 0; page < pages().GetPageCount(); ++page) {
            EXPECT_EQ(pages().GetPageText(page).utf8_string(),
                      messages.getMessage(301 + int(page)));
            pages().SetSelection(page);
            expectNothingCutOff(dialog());
            saveScreenshot(dialog(), "settings-" + std::to_string(page) + "-" + language());
        }
        click(dialog(), "cmdCancel");
    });
}

TEST_P(frmSettingTest, TheControllerModelsCarryTheirFirstLetters) {
    constexpr std::array names{"Borin(&B)",  "Aster(&A)",  "Cygna(&C)",
                               "Dorado(&D)", "Eridan(&E)", "Tellus(&T)"};
    for (std::size_t index = 0; index < names.size(); ++index) {
        const auto name = "optCtrl" + std::to_string(index);
        EXPECT_EQ(labelOf(dialog(), name), names[index]);
        EXPECT_EQ(control<wxRadioButton>(dialog(), name).GetValue(), index == 4) << name;
    }
}

TEST_P(frmSettingTest, OpensWithTheCurrentRobotAndNothingEdited) {
    EXPECT_THAT(robotNames(), ElementsAre("LINE1 WELD", "LINE2"));
    EXPECT_EQ(robots().GetSelection(), 0);
    EXPECT_EQ(textOf("txtRbtName"), "LINE1 WELD");
    EXPECT_EQ(textOf("txtIP1") + "." + textOf("txtIP2") + "." + textOf("txtIP3") + "." +
                  textOf("txtIP4"),
              "192.168.0.11");
    EXPECT_EQ(labelOf(dialog(), "lblDirName"), disk.path("weld"));
    EXPECT_FALSE(canApply());
    EXPECT_FALSE(edited().isEdited());
}

TEST_P(frmSettingTest, ARobotIsShownWhenItIsClickedAndThatIsNoEdit) {
    dialog();
    chooseRobot(1);
    EXPECT_EQ(textOf("txtRbtName"), "LINE2");
    for (const auto* const name : addressBoxes)
        EXPECT_EQ(textOf(name), "");
    EXPECT_EQ(labelOf(dialog(), "lblDirName"), disk.path("gone"));
    EXPECT_EQ(edited().robots().selectedRobot(), state.RobotList[1]);
    EXPECT_FALSE(canApply());
}

TEST_P(frmSettingTest, ANameIsEditedInPlace) {
    type(dialog(), "txtRbtName", "溶接１");
    EXPECT_THAT(robotNames(), ElementsAre("溶接１", "LINE2"));
    EXPECT_EQ(robots().GetSelection(), 0);
    EXPECT_EQ(edited().robots().selectedRobot().Name, "溶接１");
    EXPECT_TRUE(canApply());
}

TEST_P(frmSettingTest, RobotsAreInsertedOnBothSidesAndDeleted) {
    whileModal(dialog(), [&] {
        click(dialog(), "cmdAdd0");
        EXPECT_THAT(robotNames(), ElementsAre("LINE1 WELD", messages.getMessage(193), "LINE2"));
        EXPECT_EQ(robots().GetSelection(), 1);
        EXPECT_TRUE(hasFocus("txtRbtName"));
        EXPECT_TRUE(canApply());
        type(dialog(), "txtRbtName", "MIDDLE");
        chooseRobot(0);
        click(dialog(), "cmdAdd1");
        EXPECT_THAT(robotNames(),
                    ElementsAre(messages.getMessage(193), "LINE1 WELD", "MIDDLE", "LINE2"));
        EXPECT_EQ(robots().GetSelection(), 0);
        click(dialog(), "cmdDel");
        EXPECT_THAT(robotNames(), ElementsAre("LINE1 WELD", "MIDDLE", "LINE2"));
        EXPECT_EQ(robots().GetSelection(), 0);
        click(dialog(), "cmdCancel");
    });
}

TEST_P(frmSettingTest, WithoutARobotThereIsNothingToEdit) {
    click(dialog(), "cmdDel");
    click(dialog(), "cmdDel");
    EXPECT_THAT(robotNames(), IsEmpty());
    for (const auto* const name : {"txtRbtName", "txtIP1", "txtIP4", "cmdDel", "Dir1", "Drive1"})
        EXPECT_FALSE(control<wxWindow>(dialog(), name).IsEnabled()) << name;
    click(dialog(), "cmdAdd1");
    EXPECT_THAT(robotNames(), ElementsAre(messages.getMessage(193)));
    EXPECT_TRUE(box("txtRbtName").IsEnabled());
}

TEST_P(frmSettingTest, AnAddressBoxKeepsNumbersOnly) {
    type(dialog(), "txtIP1", "1x");
    EXPECT_EQ(textOf("txtIP1"), "");
    EXPECT_EQ(edited().robots().selectedRobot().IPaddr, ".168.0.11");
    type(dialog(), "txtIP1", "10");
    EXPECT_EQ(edited().robots().selectedRobot().IPaddr, "10.168.0.11");
    EXPECT_TRUE(canApply());
}

TEST_P(frmSettingTest, TypedPointsLeadThroughTheAddressAndStayOutOfIt) {
    whileModal(dialog(), [&] {
        chooseRobot(1);
        box("txtIP1").SetFocus();
        ASSERT_TRUE(waitFor([&] { return dialog().IsActive() && box("txtIP1").HasFocus(); }));
        wxUIActionSimulator keyboard;
        keyboard.Text("192.168.");
        ASSERT_TRUE(hasFocus("txtIP3"));
        keyboard.Text("7");
        ASSERT_TRUE(waitFor([&] { return textOf("txtIP3") == "7"; }));
        pressKey(WXK_NUMPAD_DECIMAL);
        ASSERT_TRUE(hasFocus("txtIP4"));
        keyboard.Text("8");
        ASSERT_TRUE(waitFor([&] { return textOf("txtIP4") == "8"; }));
        pressKey(WXK_RETURN);
        EXPECT_TRUE(hasFocus("Drive1"));
        EXPECT_TRUE(dialog().IsModal());
        click(dialog(), "cmdCancel");
    });
    EXPECT_EQ(edited().robots().selectedRobot().IPaddr, "192.168.7.8");
    EXPECT_EQ(edited().robots().selectedRobot().IP1, "192");
    EXPECT_THAT(taken, IsEmpty());
}

TEST_P(frmSettingTest, APointThatArrivesWithTheTextMovesOnToo) {
    whileModal(dialog(), [&] {
        box("txtIP2").SetFocus();
        type(dialog(), "txtIP2", "7.");
        EXPECT_EQ(textOf("txtIP2"), "7");
        EXPECT_TRUE(hasFocus("txtIP3"));
        type(dialog(), "txtIP4", "9.");
        EXPECT_EQ(textOf("txtIP4"), "9");
        EXPECT_TRUE(hasFocus("txtIP3"));
        click(dialog(), "cmdCancel");
    });
}

TEST_P(frmSettingTest, ThePointKeysAreSwallowedButInTheLastBox) {
    for (const int key : {int('.'), int(WXK_NUMPAD_DECIMAL)}) {
        for (const auto* const name : {"txtIP1", "txtIP2", "txtIP3"})
            EXPECT_TRUE(swallows(box(name), key)) << name;
        EXPECT_FALSE(swallows(box("txtIP4"), key));
        EXPECT_FALSE(swallows(box("txtRbtName"), key));
    }
}

TEST_P(frmSettingTest, EnterMovesTheFocusAndPressesNothing) {
    whileModal(dialog(), [&] {
        const std::array<std::pair<const char*, const char*>, 5> steps{{{"txtRbtName", "txtIP1"},
                                                                        {"txtIP1", "txtIP2"},
                                                                        {"txtIP2", "txtIP3"},
                                                                        {"txtIP3", "txtIP4"},
                                                                        {"txtIP4", "Drive1"}}};
        for (const auto& [from, to] : steps) {
            control<wxWindow>(dialog(), from).SetFocus();
            ASSERT_TRUE(waitFor([&] { return dialog().IsActive() && box(from).HasFocus(); }));
            pressKey(WXK_RETURN);
            EXPECT_TRUE(hasFocus(to)) << from;
            ASSERT_TRUE(dialog().IsModal()) << from;
        }
        robots().SetFocus();
        ASSERT_TRUE(hasFocus("lstRgstRbt"));
        pressKey(WXK_RETURN);
        EXPECT_TRUE(hasFocus("txtRbtName"));
        pages().SetSelection(1);
        box("txtPort").SetFocus();
        ASSERT_TRUE(hasFocus("txtPort"));
        enter("txtPort");
        EXPECT_TRUE(hasFocus("cmbBaudrate"));
        EXPECT_TRUE(dialog().IsModal());
        click(dialog(), "cmdCancel");
    });
    EXPECT_THAT(taken, IsEmpty());
    EXPECT_FALSE(edited().isEdited());
}

TEST_P(frmSettingTest, ADoubleClickGoesToTheName) {
    whileModal(dialog(), [&] {
        chooseRobot(1);
        chooseRobot(1, wxEVT_LISTBOX_DCLICK);
        EXPECT_TRUE(hasFocus("txtRbtName"));
        click(dialog(), "cmdCancel");
    });
}

TEST_P(frmSettingTest, AnAddressBoxThatGetsTheFocusIsSelectedWhole) {
    whileModal(dialog(), [&] {
        box("txtIP2").SetFocus();
        EXPECT_TRUE(waitFor([&] { return box("txtIP2").GetStringSelection() == "168"; }));
        click(dialog(), "cmdCancel");
    });
}

TEST_P(frmSettingTest, TheStoredFolderIsSelectedAndItsFilesAreThere) {
    EXPECT_EQ(folders().GetItemText(folders().GetSelection()), "weld");
    auto& files = control<FileNameList>(dialog(), "File1");
    ASSERT_EQ(files.GetItemCount(), 1);
    EXPECT_EQ(files.GetItemText(0), "A.JBI");
    EXPECT_EQ(control<wxChoice>(dialog(), "Drive1").GetSelection(), 0);
}

TEST_P(frmSettingTest, AFolderThatIsChosenIsStoredAtOnce) {
    dialog();
    folders().SelectItem(child(folders().GetSelection(), "old"));
    EXPECT_EQ(edited().robots().selectedRobot().Path, disk.path("weld/old"));
    EXPECT_EQ(labelOf(dialog(), "lblDirName"), disk.path("weld/old"));
    EXPECT_EQ(control<FileNameList>(dialog(), "File1").GetItemCount(), 0);
    EXPECT_TRUE(canApply());
}

TEST_P(frmSettingTest, AFolderIsReadWhenItIsOpenedWhichChoosesNothing) {
    dialog();
    disk.makeFolder("pallet/deep");
    const auto pallet = child(folders().GetItemParent(folders().GetSelection()), "pallet");
    ASSERT_TRUE(pallet.IsOk());
    folders().Expand(pallet);
    EXPECT_TRUE(child(pallet, "deep").IsOk());
    EXPECT_FALSE(canApply());
}

TEST_P(frmSettingTest, ADriveThatIsChosenIsStoredAtOnce) {
    dialog();
    choose("Drive1", 1);
    EXPECT_EQ(edited().robots().selectedRobot().Path, disk.path("pallet"));
    EXPECT_EQ(folders().GetItemText(folders().GetSelection()), "STICK");
    EXPECT_TRUE(canApply());
}

TEST_P(frmSettingTest, AFolderThatCannotBeReachedIsShownAndKept) {
    dialog();
    chooseRobot(1);
    chooseRobot(0);
    chooseRobot(1);
    EXPECT_EQ(labelOf(dialog(), "lblDirName"), disk.path("gone"));
    EXPECT_EQ(edited().robots().selectedRobot().Path, disk.path("gone"));
    confirm();
    ASSERT_EQ(taken.size(), 1U);
    EXPECT_EQ(taken[0].RobotList, state.RobotList);
}

TEST_P(frmSettingTest, ThePortIsSteppedWithinItsRange) {
    EXPECT_EQ(textOf("txtPort"), "COM1");
    EXPECT_FALSE(box("txtPort").IsEditable());
    auto& port = control<wxSpinButton>(dialog(), "udcPort");
    EXPECT_EQ(port.GetMin(), 1);
    EXPECT_EQ(port.GetMax(), 256);
    wxSpinEvent step(wxEVT_SPIN, port.GetId());
    step.SetEventObject(&port);
    step.SetPosition(12);
    port.HandleWindowEvent(step);
    EXPECT_EQ(textOf("txtPort"), "COM12");
    EXPECT_TRUE(canApply());
    EXPECT_TRUE(swallows(box("txtPort"), WXK_UP));
    EXPECT_EQ(textOf("txtPort"), "COM13");
    EXPECT_EQ(port.GetValue(), 13);
    EXPECT_TRUE(swallows(box("txtPort"), WXK_DOWN));
    EXPECT_EQ(textOf("txtPort"), "COM12");
}

TEST_P(frmSettingTest, AStoredPortOutsideTheRangeIsShownAndKeptUntilItIsStepped) {
    state.Port = 300;
    EXPECT_EQ(textOf("txtPort"), "COM300");
    EXPECT_EQ(control<wxSpinButton>(dialog(), "udcPort").GetValue(), 300);
    confirm();
    EXPECT_EQ(taken.at(0).Port, 300);
    swallows(box("txtPort"), WXK_DOWN);
    EXPECT_EQ(textOf("txtPort"), "COM256");
    EXPECT_EQ(control<wxSpinButton>(dialog(), "udcPort").GetMax(), 256);
}

TEST_P(frmSettingTest, TheSerialListsShowTheStoredValues) {
    state.Baudrate = 38400;
    state.Parity = 1;
    state.DataLen = 9;
    state.StopBit = 2;
    const auto shown = [this](const char* name) {
        return control<wxChoice>(dialog(), name).GetStringSelection().utf8_string();
    };
    EXPECT_EQ(shown("cmbBaudrate"), "9600");
    EXPECT_EQ(shown("cmbParity"), "ODD");
    EXPECT_EQ(shown("cmbDataLen"), "");
    EXPECT_EQ(shown("cmbStopBit"), "2");
    EXPECT_FALSE(canApply());
    confirm();
    ASSERT_EQ(taken.size(), 1U);
    EXPECT_EQ(taken[0].Baudrate, 9600);
    EXPECT_EQ(taken[0].DataLen, 9);
}

TEST_P(frmSettingTest, EachSerialListIsItsOwnValue) {
    choose("cmbBaudrate", 0);
    choose("cmbParity", 0);
    choose("cmbDataLen", 0);
    choose("cmbStopBit", 1);
    confirm();
    ASSERT_EQ(taken.size(), 1U);
    EXPECT_EQ(taken[0].Baudrate, 1200);
    EXPECT_EQ(taken[0].Parity, 0);
    EXPECT_EQ(taken[0].DataLen, 7);
    EXPECT_EQ(taken[0].StopBit, 1);
}

TEST_P(frmSettingTest, TheDefaultsAreRestoredWithTheUpDown) {
    state.Port = 8;
    state.Baudrate = 1200;
    state.Parity = 0;
    state.DataLen = 7;
    state.StopBit = 2;
    pages().SetSelection(1);
    click(dialog(), "cmdReturn");
    EXPECT_EQ(textOf("txtPort"), "COM1");
    EXPECT_EQ(control<wxSpinButton>(dialog(), "udcPort").GetValue(), 1);
    const std::array<std::pair<const char*, const char*>, 4> expected{
        {{"cmbBaudrate", "9600"}, {"cmbParity", "EVEN"}, {"cmbDataLen", "8"}, {"cmbStopBit", "1"}}};
    for (const auto& [name, text] : expected)
        EXPECT_EQ(control<wxChoice>(dialog(), name).GetStringSelection(), text) << name;
    EXPECT_TRUE(canApply());
}

TEST_P(frmSettingTest, AModelAndOptionsAreTaken) {
    dialog();
    auto& aster = control<wxRadioButton>(dialog(), "optCtrl1");
    aster.SetValue(true);
    wxCommandEvent pressed(wxEVT_RADIOBUTTON, aster.GetId());
    pressed.SetEventObject(&aster);
    aster.HandleWindowEvent(pressed);
    tick(dialog(), "ChkRoboDir", false);
    for (const auto* const name : {"chkJBR", "chkHeadder", "chkIniFile"})
        tick(dialog(), name, true);
    EXPECT_TRUE(canApply());
    confirm();
    ASSERT_EQ(taken.size(), 1U);
    EXPECT_EQ(taken[0].Controler, 1);
    EXPECT_EQ(taken[0].SyncroRobotDir, 0);
    EXPECT_TRUE(taken[0].JBR && taken[0].Headder && taken[0].NoSave);
}

TEST_P(frmSettingTest, AModelThatIsNoneOfTheSixShowsNone) {
    state.Controler = 9;
    for (int index = 0; index < 6; ++index)
        EXPECT_FALSE(
            control<wxRadioButton>(dialog(), "optCtrl" + std::to_string(index)).GetValue());
    confirm();
    EXPECT_EQ(taken.at(0).Controler, 9);
}

TEST_P(frmSettingTest, ApplyTakesTheEditsAndStaysOpen) {
    whileModal(dialog(), [&] {
        type(dialog(), "txtRbtName", "X");
        type(dialog(), "txtIP1", "010");
        click(dialog(), "cmdRefresh");
        EXPECT_TRUE(dialog().IsModal());
        EXPECT_FALSE(canApply());
        EXPECT_EQ(textOf("txtIP1"), "10");
        click(dialog(), "cmdCancel");
    });
    ASSERT_EQ(taken.size(), 1U);
    EXPECT_EQ(taken[0].RobotList[0].Name, "X");
    EXPECT_EQ(taken[0].RobotList[0].IPaddr, "10.168.0.11");
}

TEST_P(frmSettingTest, OKTakesTheEditsAndCloses) {
    EXPECT_EQ(whileModal(dialog(),
                         [&] {
                             type(dialog(), "txtRbtName", "X");
                             click(dialog(), "cmdOK");
                         }),
              wxID_OK);
    ASSERT_EQ(taken.size(), 1U);
    EXPECT_EQ(taken[0].RobotList[0].Name, "X");
}

TEST_P(frmSettingTest, CancelEscAndCloseBoxTakeNothing) {
    type(dialog(), "txtRbtName", "X");
    whileModal(dialog(), [&] { click(dialog(), "cmdCancel"); });
    whileModal(dialog(), [&] { swallows(dialog(), WXK_ESCAPE); });
    whileModal(dialog(), [&] { dialog().Close(); });
    EXPECT_THAT(taken, IsEmpty());
    EXPECT_EQ(state.RobotList[0].Name, "LINE1 WELD");
}

TEST_P(frmSettingTest, AFaultIsToldAndTheOperatorLedThere) {
    whileModal(dialog(), [&] {
        chooseRobot(1);
        type(dialog(), "txtIP1", "10");
        type(dialog(), "txtIP2", "0");
        type(dialog(), "txtIP3", "300");
        type(dialog(), "txtIP4", "1");
        chooseRobot(0);
        pages().SetSelection(2);
        click(dialog(), "cmdOK");
        EXPECT_TRUE(dialog().IsModal());
        EXPECT_EQ(pages().GetSelection(), 0);
        EXPECT_EQ(robots().GetSelection(), 1);
        EXPECT_TRUE(hasFocus("txtIP3"));
        type(dialog(), "txtIP3", "30");
        type(dialog(), "txtRbtName", "line1 weld");
        click(dialog(), "cmdRefresh");
        EXPECT_TRUE(hasFocus("txtRbtName"));
        type(dialog(), "txtRbtName", "");
        click(dialog(), "cmdOK");
        EXPECT_TRUE(dialog().IsModal());
        click(dialog(), "cmdCancel");
    });
    EXPECT_THAT(boxes.texts(),
                ElementsAre("[LINE2]" + messages.getMessage(333),
                            "[line1 weld]" + messages.getMessage(331), messages.getMessage(330)));
    EXPECT_EQ(boxes.shown[0].icon, BoxIcon::Exclamation);
    EXPECT_THAT(taken, IsEmpty());
}

TEST_P(frmSettingTest, OKIsTheDefaultButton) {
    EXPECT_EQ(dialog().GetDefaultItem(), &control<wxButton>(dialog(), "cmdOK"));
}

TEST_P(frmSettingTest, ControlWithPageAndTabKeysTurnsThePages) {
    whileModal(dialog(), [&] {
        ASSERT_TRUE(waitFor([&] { return dialog().IsActive() && robots().HasFocus(); }));
        const auto turnsTo = [&](int key, int modifiers, int page) {
            pressKey(key, modifiers);
            return waitFor([&] { return pages().GetSelection() == page; });
        };
        EXPECT_TRUE(turnsTo(WXK_PAGEDOWN, wxMOD_CONTROL, 1));
        EXPECT_TRUE(turnsTo(WXK_TAB, wxMOD_CONTROL, 2));
        EXPECT_TRUE(turnsTo(WXK_TAB, wxMOD_CONTROL | wxMOD_SHIFT, 1));
        EXPECT_TRUE(turnsTo(WXK_PAGEUP, wxMOD_CONTROL, 0));
        click(dialog(), "cmdCancel");
    });
    EXPECT_FALSE(edited().isEdited());
}

TEST_P(frmSettingTest, F1IsSwallowed) {
    EXPECT_TRUE(swallows(dialog(), WXK_F1));
}

INSTANTIATE_TEST_SUITE_P(In, frmSettingTest, bothLanguages, languageName);

} // namespace
} // namespace vantrel::tests
