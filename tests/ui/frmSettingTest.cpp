#include "ui/dialogs/frmSetting.h"

#include "SettingWorld.h"
#include "ui/NativeControls.h"

#include <array>
#include <functional>
#include <utility>

#include <gmock/gmock.h>
#include <wx/notebook.h>

namespace vantrel::tests {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class frmSettingTest : public SettingWorld {};

/// The drop-down lists, with the page of each.
constexpr std::array<std::pair<std::size_t, const char*>, 5> dropDownLists{
    {{0, "Drive1"}, {1, "cmbBaudrate"}, {1, "cmbParity"}, {1, "cmbDataLen"}, {1, "cmbStopBit"}}};

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

// With a language file that knows none of the dialog's numbers.
TEST_P(frmSettingTest, HasTheCaptionsThatItWasDesignedWithWhereTheLanguageHasNone) {
    messages.replace({});
    struct Designed {
        const char* control;
        const char* caption;
    };
    for (const auto& [name, caption] :
         std::initializer_list<Designed>{{"frmRgstRbt", "登録リスト"},
                                         {"cmdAdd0", "後挿入"},
                                         {"cmdAdd1", "前挿入"},
                                         {"cmdDel", "削除"},
                                         {"frmSelRbt", "選択しているﾛﾎﾞｯﾄ"},
                                         {"lblRbtName", "ﾛﾎﾞｯﾄ名"},
                                         {"lblIPaddr", "IPｱﾄﾞﾚｽ"},
                                         {"frmInitDir", "初期ﾃﾞｨﾚｸﾄﾘ"},
                                         {"fraPort", "通信ポートの設定"},
                                         {"FrmRbCtrl", "コントローラの設定"},
                                         {"ChkRoboDir", "ﾛﾎﾞｯﾄの選択とPCﾃﾞｨﾚｸﾄﾘを同期表示させる"},
                                         {"chkJBR", "関連ジョブとして受信する(&J)"},
                                         {"chkHeadder", "ジョブヘッダも表示／印刷する(&H)"},
                                         {"chkIniFile", "今回の設定値を保存しない(&I)"},
                                         {"cmdRefresh", "更新"},
                                         {"cmdOK", "OK"},
                                         {"cmdCancel", "ｷｬﾝｾﾙ"}})
        EXPECT_EQ(labelOf(dialog(), name), caption) << name;
    EXPECT_NE(labelOf(dialog(), "cmdReturn"), "");
    EXPECT_FALSE(dialog().GetTitle().empty());
    for (std::size_t page = 0; page < pages().GetPageCount(); ++page)
        EXPECT_FALSE(pages().GetPageText(page).empty()) << page;
}

TEST_P(frmSettingTest, EveryKindOfEditCanBeApplied) {
    const auto typed = [this](const char* name, const char* text) {
        return [this, name, text] { type(dialog(), name, text); };
    };
    const auto picked = [this](const char* name, int entry) {
        return [this, name, entry] { pick(choice(name), entry); };
    };
    const auto ticked = [this](const char* name, bool on) {
        return [this, name, on] { tick(dialog(), name, on); };
    };
    const auto clicked = [this](const char* name) {
        return [this, name] { click(dialog(), name); };
    };
    const std::pair<const char*, std::function<void()>> edits[] = {
        {"name", typed("txtRbtName", "LINE7")},
        {"first part", typed("txtIP1", "10")},
        {"second part", typed("txtIP2", "10")},
        {"third part", typed("txtIP3", "10")},
        {"fourth part", typed("txtIP4", "10")},
        {"folder", picked("Drive1", 1)},
        {"insert after", clicked("cmdAdd0")},
        {"delete", clicked("cmdDel")},
        {"insert before", clicked("cmdAdd1")},
        {"port", [this] { swallows(box("txtPort"), WXK_UP); }},
        {"rate", picked("cmbBaudrate", 0)},
        {"parity", picked("cmbParity", 0)},
        {"length", picked("cmbDataLen", 0)},
        {"stop", picked("cmbStopBit", 2)},
        {"defaults", clicked("cmdReturn")},
        {"model", [this] { pick(control<wxRadioButton>(dialog(), "optCtrl1")); }},
        {"folder of the robot", ticked("ChkRoboDir", false)},
        {"related jobs", ticked("chkJBR", true)},
        {"header", ticked("chkHeadder", true)},
        {"not saved", ticked("chkIniFile", true)},
    };
    for (const auto& [name, edit] : edits) {
        ASSERT_FALSE(canApply()) << "before " << name;
        edit();
        EXPECT_TRUE(canApply()) << name;
        click(dialog(), "cmdRefresh");
    }
    EXPECT_EQ(taken.size(), std::size(edits));
    EXPECT_THAT(boxes.texts(), IsEmpty());
}

class frmSettingFontTest : public frmSettingTest {
  protected:
    bool showsWhole(const char* name, const char* text) {
        const auto& field = box(name);
        return field.GetSizeFromTextSize(field.GetTextExtent(text)).x <= field.GetSize().x &&
               field.GetCharHeight() < field.GetClientSize().y;
    }
};

TEST_P(frmSettingFontTest, LargerCaptionsCutNothingOff) {
    state.FontSize = 16;
    state.FontBold = true;
    state.Port = 256;
    whileModal(dialog(), [&] {
        for (std::size_t page = 0; page < pages().GetPageCount(); ++page) {
            pages().SetSelection(page);
            expectNothingCutOff(dialog());
            saveScreenshot(dialog(), "settings-large-" + std::to_string(page) + "-" + language());
            for (const char* name : {"txtIP1", "txtIP2", "txtIP3", "txtIP4"})
                EXPECT_TRUE(page > 0 || showsWhole(name, "255")) << name;
            EXPECT_TRUE(page != 1 || showsWhole("txtPort", "COM256"));
        }
        click(dialog(), "cmdCancel");
    });
}

INSTANTIATE_TEST_SUITE_P(In, frmSettingFontTest, bothLanguages, languageName);

TEST_P(frmSettingTest, TheButtonsStandAsInTheSystemsBoxes) {
    expectButtonOrder(dialog(), {"cmdOK", "cmdCancel", "cmdRefresh"});
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
            pressKeyAndWait(WXK_RETURN);
            EXPECT_TRUE(hasFocus(to)) << from;
            ASSERT_TRUE(isOpen(dialog())) << from;
        }
        pages().SetSelection(1);
        box("txtPort").SetFocus();
        ASSERT_TRUE(hasFocus("txtPort"));
        pressKeyAndWait(WXK_RETURN);
        EXPECT_TRUE(hasFocus("cmbBaudrate"));
        ASSERT_TRUE(isOpen(dialog()));
        click(dialog(), "cmdCancel");
    });
    EXPECT_THAT(taken, IsEmpty());
    EXPECT_FALSE(edited().isEdited());
}

TEST_P(frmSettingTest, EnterInTheListOfRobotsGoesToTheNameAndPressesNothing) {
    whileModal(dialog(), [&] {
        type(dialog(), "txtRbtName", "NOT YET");
        for (const int enter : {int(WXK_RETURN), int(WXK_NUMPAD_ENTER)}) {
            robots().SetFocus();
            ASSERT_TRUE(waitFor([&] { return dialog().IsActive() && robots().HasFocus(); }));
            pressKeyAndWait(enter);
            EXPECT_TRUE(hasFocus("txtRbtName")) << enter;
            ASSERT_TRUE(isOpen(dialog()));
        }
        click(dialog(), "cmdCancel");
    });
    EXPECT_THAT(taken, IsEmpty());
}

TEST_P(frmSettingTest, EnterInTheListsOfFoldersAndFilesPressesNothing) {
    whileModal(dialog(), [&] {
        // The second robot's folder has no files, and with no robot left nothing has any.
        for (const int robot : {0, 1}) {
            pick(robots(), robot);
            for (const char* const name : {"Dir1", "File1"}) {
                control<wxWindow>(dialog(), name).SetFocus();
                ASSERT_TRUE(waitFor([&] { return dialog().IsActive(); }));
                ASSERT_TRUE(hasFocusIn(name));
                pressKeyAndWait(WXK_RETURN);
                ASSERT_TRUE(isOpen(dialog())) << name << robot;
            }
        }
        click(dialog(), "cmdCancel");
    });
    EXPECT_THAT(taken, IsEmpty());
}

TEST_P(frmSettingTest, EnterInAClosedDropDownListPressesNothing) {
    whileModal(dialog(), [&] {
        for (const auto& [page, name] : dropDownLists) {
            pages().SetSelection(page);
            for (const int enter : {int(WXK_RETURN), int(WXK_NUMPAD_ENTER)}) {
                // Some systems open a list by Enter, which takes the keyboard.
                if (isListOpen(choice(name)))
                    pressKeyAndWait(WXK_ESCAPE);
                choice(name).SetFocus();
                ASSERT_TRUE(waitFor([&] { return dialog().IsActive() && choice(name).HasFocus(); }))
                    << name;
                pressKeyAndWait(enter);
                ASSERT_TRUE(isOpen(dialog())) << name << enter;
            }
            if (isListOpen(choice(name)))
                pressKeyAndWait(WXK_ESCAPE);
        }
        click(dialog(), "cmdCancel");
    });
    EXPECT_THAT(taken, IsEmpty());
}

TEST_P(frmSettingTest, EnterInAnOpenDropDownListChoosesTheEntryAndPressesNothing) {
    whileModal(dialog(), [&] {
        pages().SetSelection(1);
        auto& list = choice("cmbBaudrate");
        pick(list, 0);
        for (const int enter : {int(WXK_RETURN), int(WXK_NUMPAD_ENTER)}) {
            list.SetFocus();
            ASSERT_TRUE(waitFor([&] { return dialog().IsActive() && list.HasFocus(); }));
            const int before = list.GetSelection();
            openList(list);
            ASSERT_TRUE(waitFor([&] { return isListOpen(list); }));
            pressKeyAndWait(WXK_DOWN);
            pressKeyAndWait(enter);
            EXPECT_TRUE(waitFor([&] { return !isListOpen(list); })) << enter;
            EXPECT_EQ(list.GetSelection(), before + 1) << enter;
            ASSERT_TRUE(isOpen(dialog())) << enter;
        }
        EXPECT_EQ(edited().serial().chosen(SerialList::Baudrate), std::size_t(2));
        click(dialog(), "cmdCancel");
    });
    EXPECT_THAT(taken, IsEmpty());
}

TEST_P(frmSettingTest, ApplyTakesTheEditsAndStaysOpen) {
    whileModal(dialog(), [&] {
        type(dialog(), "txtRbtName", "X");
        type(dialog(), "txtIP1", "010");
        click(dialog(), "cmdRefresh");
        EXPECT_TRUE(isOpen(dialog()));
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
        pick(robots(), 1);
        type(dialog(), "txtIP1", "10");
        type(dialog(), "txtIP2", "0");
        type(dialog(), "txtIP3", "300");
        type(dialog(), "txtIP4", "1");
        pick(robots(), 0);
        pages().SetSelection(2);
        click(dialog(), "cmdOK");
        EXPECT_TRUE(isOpen(dialog()));
        EXPECT_EQ(pages().GetSelection(), 0);
        EXPECT_EQ(robots().GetSelection(), 1);
        EXPECT_TRUE(hasFocus("txtIP3"));
        type(dialog(), "txtIP3", "30");
        type(dialog(), "txtRbtName", "line1 weld");
        click(dialog(), "cmdRefresh");
        EXPECT_TRUE(hasFocus("txtRbtName"));
        type(dialog(), "txtRbtName", "");
        click(dialog(), "cmdOK");
        EXPECT_TRUE(isOpen(dialog()));
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
