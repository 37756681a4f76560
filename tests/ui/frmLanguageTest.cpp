#include "ui/dialogs/frmLanguage.h"

#include "DialogTest.h"
#include "app/LanguageWorld.h"
#include "platform/Files.h"
#include "support/Choices.h"
#include "support/ModalScript.h"
#include "support/ProjectFiles.h"
#include "ui/look/WindowHolder.h"

#include <gmock/gmock.h>
#include <wx/fontdlg.h>
#include <wx/iconbndl.h>
#include <wx/statbmp.h>

namespace vantrel::tests {
namespace {

/// An icon file of 2 by 2 opaque pixels.
std::string smallIcon() {
    const auto number = [](std::uint32_t value, int bytes) {
        std::string text;
        for (; bytes > 0; --bytes, value >>= 8)
            text += char(value & 0xFF);
        return text;
    };
    constexpr std::uint32_t pixels = 4 * 4, mask = 2 * 4, header = 40;
    return number(0, 2) + number(1, 2) + number(1, 2) +                        // one icon
           number(2, 1) + number(2, 1) + number(0, 2) + number(1, 2) +         // 2 by 2
           number(32, 2) + number(header + pixels + mask, 4) + number(22, 4) + // where it is
           number(header, 4) + number(2, 4) + number(4, 4) + number(1, 2) + number(32, 2) +
           number(0, 4) + number(pixels, 4) + std::string(16, '\0') + // no more of the header
           std::string(pixels, '\xFF') + std::string(mask, '\0');
}

/// The dialog in each language; the world's own message table is what OK fills.
class frmLanguageTest : public DialogInLanguage {
  public:
    frmLanguageTest() { world.state.LanguageName = language(); }

    wxListBox& list() { return control<wxListBox>(dialog, "List1"); }
    bool hasPicture() { return control<wxStaticBitmap>(dialog, "Picture1").GetBitmap().IsOk(); }
    LanguageWorld world;
    LanguageDraft draft = [this] {
        world.state.LanguageName = language();
        world.program.write("Klingon.lng", "Start:\n");
        for (const char* icon : {"English.ico", "Japanese.ico", "System.ico"})
            world.program.write(icon, *readFile(dataFolder() + "/" + icon));
        return LanguageDraft(world.services());
    }();
    frmLanguage dialog{nullptr, draft, messages, world.state};
};

TEST_P(frmLanguageTest, HasTheCaptionsThatItWasDesignedWithWhereTheLanguageHasNone) {
    const MessageTable foreign;
    const WindowHolder<frmLanguage> other(new frmLanguage(nullptr, draft, foreign, world.state));
    EXPECT_EQ(other->GetTitle(), "Select Language");
    EXPECT_EQ(labelOf(*other, "Check1"), "Ignore language selection at program start");
    EXPECT_EQ(labelOf(*other, "Command1"), "OK");
    EXPECT_EQ(labelOf(*other, "Command2"), "Cancel");
    EXPECT_EQ(labelOf(*other, "Command3"), "Edit");
    EXPECT_EQ(labelOf(*other, "Command4"), "Font");
}

TEST_P(frmLanguageTest, ShowsTheLanguagesAndTheCurrentOne) {
    EXPECT_EQ(dialog.GetTitle().utf8_string(), messages.getMessage(340));
    EXPECT_EQ(list().GetCount(), 4U);
    EXPECT_EQ(list().GetStringSelection().utf8_string(), language());
    EXPECT_EQ(labelOf(dialog, "Check1"), messages.getMessage(341));
    EXPECT_EQ(labelOf(dialog, "Command1"), messages.getMessage(325));
    EXPECT_EQ(labelOf(dialog, "Command2"), messages.getMessage(326));
    EXPECT_EQ(labelOf(dialog, "Command3"), messages.getMessage(342));
    EXPECT_EQ(labelOf(dialog, "Command4"), messages.getMessage(343));
    EXPECT_TRUE(hasPicture());
    whileModal(dialog, [&] {
        expectNothingCutOff(dialog);
        saveScreenshot(dialog, "language-" + language());
        click(dialog, "Command2");
    });
}

TEST_P(frmLanguageTest, AClickChoosesAndOKTakesIt) {
    whileModal(dialog, [&] {
        pick(list(), 0);
        EXPECT_EQ(world.state.LanguageName, "English");
        tick(dialog, "Check1", true);
        click(dialog, "Command1");
    });
    EXPECT_EQ(world.messages.getMessage(1), "English");
    EXPECT_EQ(world.state.LangSelect, 0);
    EXPECT_FALSE(world.state.LangCancelled);
}

TEST_P(frmLanguageTest, ADoubleClickIsOK) {
    whileModal(dialog, [&] {
        pick(list(), 1);
        pick(list(), 1, wxEVT_LISTBOX_DCLICK);
    });
    EXPECT_EQ(world.messages.getMessage(1), "Japanese");
}

TEST_P(frmLanguageTest, EnterInTheListIsOKOnce) {
    whileModal(dialog, [&] {
        pick(list(), 0);
        std::filesystem::remove(world.program.path("English.lng"));
        list().SetFocus();
        ASSERT_TRUE(waitFor([&] { return dialog.IsActive() && list().HasFocus(); }));
        pressKeyAndWait(WXK_RETURN);
        EXPECT_EQ(world.boxes.shown.size(), 1U);
        EXPECT_TRUE(isOpen(dialog));
        pick(list(), 1);
        list().SetFocus();
        pressKeyAndWait(WXK_RETURN);
    });
    EXPECT_EQ(world.boxes.shown.size(), 1U);
    EXPECT_EQ(world.messages.getMessage(1), "Japanese");
}

TEST_P(frmLanguageTest, CancelEscAndCloseBoxPutTheLanguageBack) {
    for (const int way : {0, 1, 2}) {
        world.state.LangCancelled = false;
        whileModal(dialog, [&] {
            pick(list(), 2);
            if (way == 0)
                click(dialog, "Command2");
            else if (way == 1)
                swallows(dialog, WXK_ESCAPE);
            else
                dialog.Close();
        });
        EXPECT_TRUE(world.state.LangCancelled) << way;
        EXPECT_EQ(world.state.LanguageName, language()) << way;
    }
}

TEST_P(frmLanguageTest, ALanguageThatCannotBeReadKeepsTheDialogOpen) {
    whileModal(dialog, [&] {
        pick(list(), 0);
        std::filesystem::remove(world.program.path("English.lng"));
        click(dialog, "Command1");
        EXPECT_TRUE(isOpen(dialog));
        click(dialog, "Command2");
    });
    EXPECT_EQ(world.boxes.shown.size(), 1U);
}

TEST_P(frmLanguageTest, ALanguageWithoutAnIconShowsAnEmptyPicture) {
    pick(list(), 2);
    EXPECT_EQ(world.state.LanguageName, "Klingon");
    EXPECT_FALSE(hasPicture());
    pick(list(), 0);
    EXPECT_TRUE(hasPicture());
    std::filesystem::remove(world.program.path("Japanese.ico"));
    pick(list(), 1);
    EXPECT_FALSE(hasPicture());
}

TEST_P(frmLanguageTest, TheDeliveredLanguagesHaveCrispPictures) {
    for (const int index : {0, 1, 3}) {
        pick(list(), index);
        ASSERT_TRUE(hasPicture()) << world.state.LanguageName;
        const wxIconBundle sizes(wxString::FromUTF8(draft.iconPath()), wxBITMAP_TYPE_ICO);
        for (const int size : {48, 72, 96}) // at 100, 150 and 200 %
            EXPECT_TRUE(sizes.GetIconOfExactSize(size).IsOk()) << size;
    }
}

TEST_P(frmLanguageTest, AnIconFileBesideTheLanguageIsItsPicture) {
    world.program.write("Klingon.ico", smallIcon());
    pick(list(), 2);
    EXPECT_TRUE(hasPicture());
}

TEST_P(frmLanguageTest, ADamagedIconIsNoPicture) {
    world.program.write("Klingon.ico", "no icon at all");
    pick(list(), 2);
    EXPECT_FALSE(hasPicture());
}

TEST_P(frmLanguageTest, EditStartsTheEditorAndStaysOpen) {
    whileModal(dialog, [&] {
        click(dialog, "Command3");
        EXPECT_TRUE(isOpen(dialog));
        click(dialog, "Command2");
    });
    EXPECT_THAT(world.edited, testing::ElementsAre(world.program.path(language() + ".lng")));
}

TEST_P(frmLanguageTest, AFontThatIsChosenIsShownAtOnce) {
    ModalScript script;
    script.answer([](wxDialog& fonts) {
        auto& data = dynamic_cast<wxFontDialog&>(fonts).GetFontData();
        EXPECT_EQ(data.GetInitialFont().GetPointSize(), 9);
        data.SetChosenFont(wxFont(wxFontInfo(15).Bold().FaceName("DejaVu Serif")));
        return wxID_OK;
    });
    click(dialog, "Command4");
    EXPECT_EQ(draft.font(), (CaptionFont{"DejaVu Serif", true, false, 15}));
    EXPECT_EQ(control<wxButton>(dialog, "Command1").GetFont().GetPointSize(), 15);
    expectNothingCutOff(dialog);
}

TEST_P(frmLanguageTest, AFontDialogThatIsLeftChangesNothing) {
    const auto before = draft.font();
    ModalScript script;
    script.answer([](wxDialog&) { return wxID_CANCEL; });
    click(dialog, "Command4");
    EXPECT_EQ(draft.font(), before);
}

TEST_P(frmLanguageTest, F1IsSwallowed) {
    EXPECT_TRUE(swallows(dialog, WXK_F1));
}

INSTANTIATE_TEST_SUITE_P(In, frmLanguageTest, bothLanguages, languageName);

} // namespace
} // namespace vantrel::tests
