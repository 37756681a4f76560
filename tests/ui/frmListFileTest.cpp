#include "ui/dialogs/frmListFile.h"

#include "DialogTest.h"
#include "app/lists/ListFileDraft.h"
#include "link/SessionWorld.h"
#include "support/Choices.h"

#include <wx/listbox.h>

namespace vantrel::tests {
namespace {

namespace list_mode = list_file_mode;

class frmListFileTest : public DialogInLanguage {
  public:
    ListFileDraft newDraft() {
        world.pc.write("jobs.lst", "A.JBI\n");
        state.PCPath = world.pc.path();
        return {state, *world.session, world.boxes, messages, list_mode::saveJobs};
    }

    SessionWorld world;
    ListFileDraft draft = newDraft();
    frmListFile dialog{nullptr, draft, state};
};

TEST_P(frmListFileTest, ShowsFolderFieldAndHint) {
    EXPECT_EQ(dialog.GetTitle().utf8_string(), messages.getMessage(19));
    EXPECT_EQ(labelOf(dialog, "lblFile"), messages.getMessage(23));
    EXPECT_EQ(labelOf(dialog, "lblMsg"), messages.getMessage(45));
    EXPECT_EQ(labelOf(dialog, "LblPath"), draft.shownFolder());
    EXPECT_EQ(labelOf(dialog, "cmdOK"), messages.getMessage(325));
    EXPECT_EQ(labelOf(dialog, "cmdCancel"), messages.getMessage(326));
    whileModal(dialog, [&] {
        expectNothingCutOff(dialog);
        saveScreenshot(dialog, "list-file-" + language());
        click(dialog, "cmdCancel");
    });
}

TEST_P(frmListFileTest, TheButtonsStandAsInTheSystemsBoxes) {
    expectButtonOrder(dialog, {"cmdOK", "cmdCancel"});
}

TEST_P(frmListFileTest, OKIsOnOnlyForAName) {
    auto& ok = control<wxButton>(dialog, "cmdOK");
    EXPECT_FALSE(ok.IsEnabled());
    type(dialog, "txtFile", "jobs");
    EXPECT_TRUE(ok.IsEnabled());
    type(dialog, "txtFile", "*.lst");
    EXPECT_FALSE(ok.IsEnabled());
}

TEST_P(frmListFileTest, OKReadsTheListAndCloses) {
    whileModal(dialog, [&] {
        type(dialog, "txtFile", "jobs");
        click(dialog, "cmdOK");
    });
    EXPECT_EQ(draft.result(), "1");
    EXPECT_EQ(world.session->JobList(0), "A.JBI");
}

TEST_P(frmListFileTest, AFileThatCannotBeReadClosesItToo) {
    whileModal(dialog, [&] {
        type(dialog, "txtFile", "nowhere");
        click(dialog, "cmdOK");
    });
    EXPECT_EQ(draft.result(), "0");
    EXPECT_EQ(world.boxes.shown.size(), 1U);
}

/// Notes whether a window was still open when something was told.
class BoxesOverWindow final : public FakeMessageBoxes {
  public:
    const wxDialog* window = nullptr;
    bool windowWasOpen = false;

    void tell(const std::string& text, BoxIcon icon) override {
        windowWasOpen = window && window->IsModal() && window->IsShown();
        FakeMessageBoxes::tell(text, icon);
    }
};

TEST_P(frmListFileTest, AFileThatCannotBeReadIsNamedBeforeTheWindowHides) {
    BoxesOverWindow boxes;
    ListFileDraft wrong(state, *world.session, boxes, messages, list_mode::saveJobs);
    frmListFile window(nullptr, wrong, state);
    boxes.window = &window;
    whileModal(window, [&] {
        type(window, "txtFile", "nowhere");
        click(window, "cmdOK");
    });
    EXPECT_TRUE(boxes.windowWasOpen);
    EXPECT_EQ(wrong.result(), "0");
}

TEST_P(frmListFileTest, CancelEscAndCloseBoxReadNothing) {
    type(dialog, "txtFile", "jobs");
    whileModal(dialog, [&] { click(dialog, "cmdCancel"); });
    whileModal(dialog, [&] { swallows(dialog, WXK_ESCAPE); });
    whileModal(dialog, [&] { dialog.Close(); });
    EXPECT_EQ(draft.result(), "0");
    EXPECT_EQ(world.session->JobListCount(), 0);
}

TEST_P(frmListFileTest, TheKeyboardTypesANameAndConfirmsIt) {
    whileModal(dialog, [&] {
        auto& text = control<wxTextCtrl>(dialog, "txtFile");
        ASSERT_TRUE(waitFor([&] { return dialog.IsActive() && text.HasFocus(); }));
        wxUIActionSimulator().Text("jobs");
        ASSERT_TRUE(waitFor([&] { return text.GetValue() == "jobs"; }));
        pressKey(WXK_RETURN);
        waitFor([&] { return !isOpen(dialog); });
    });
    EXPECT_EQ(draft.result(), "1");
}

TEST_P(frmListFileTest, EnterWithoutANameDoesNothing) {
    whileModal(dialog, [&] {
        auto& text = control<wxTextCtrl>(dialog, "txtFile");
        ASSERT_TRUE(waitFor([&] { return dialog.IsActive() && text.HasFocus(); }));
        pressKeyAndWait(WXK_RETURN);
        ASSERT_TRUE(isOpen(dialog));
        click(dialog, "cmdCancel");
    });
    EXPECT_TRUE(world.boxes.shown.empty());
}

TEST_P(frmListFileTest, EnterReadsAListOnce) {
    whileModal(dialog, [&] {
        auto& text = control<wxTextCtrl>(dialog, "txtFile");
        type(dialog, "txtFile", "nowhere");
        ASSERT_TRUE(waitFor([&] { return dialog.IsActive() && text.HasFocus(); }));
        pressKey(WXK_RETURN);
        waitFor([&] { return !isOpen(dialog); });
    });
    outwaitToolkit();
    EXPECT_EQ(world.boxes.shown.size(), 1U);
}

TEST_P(frmListFileTest, StartsWithTheLastListFileSelected) {
    state.JobListFile = "jobs.lst";
    ListFileDraft again(state, *world.session, world.boxes, messages, list_mode::saveJobs);
    frmListFile preset(nullptr, again, state);
    auto& text = control<wxTextCtrl>(preset, "txtFile");
    EXPECT_EQ(text.GetValue(), "jobs.lst");
    EXPECT_EQ(text.GetStringSelection(), "jobs.lst");
    EXPECT_TRUE(control<wxButton>(preset, "cmdOK").IsEnabled());
}

/// In a folder with list files.
class frmListFileOffering : public frmListFileTest {
  public:
    ListFileDraft offering() {
        for (const char* name : {"weld.lst", "jobs.lst", "door.lst", "A.JBI"})
            state.PCListing.append(name, 7, {});
        return {state, *world.session, world.boxes, messages, list_mode::saveJobs};
    }
    wxListBox& list() { return control<wxListBox>(window, "lstOffered"); }
    std::string typed() { return control<wxTextCtrl>(window, "txtFile").GetValue().utf8_string(); }
    std::string chosen() { return list().GetStringSelection().utf8_string(); }

    ListFileDraft offer = offering();
    frmListFile window{nullptr, offer, state};
};

TEST_P(frmListFileTest, WithoutListFilesNoneAreOffered) {
    EXPECT_FALSE(dialog.FindWindow("lstOffered"));
    EXPECT_FALSE(dialog.FindWindow("lblOffered"));
}

TEST_P(frmListFileOffering, ShowsTheFoldersListFilesBelowTheField) {
    EXPECT_EQ(labelOf(window, "lblOffered"), messages.getMessage(6559));
    const wxArrayString names = list().GetStrings();
    ASSERT_EQ(names.size(), 3U);
    EXPECT_EQ(names[0], "door.lst");
    EXPECT_EQ(names[2], "weld.lst");
    EXPECT_EQ(chosen(), "");
    EXPECT_EQ(typed(), "");
    whileModal(window, [&] {
        EXPECT_GT(list().GetPosition().y, control<wxTextCtrl>(window, "txtFile").GetPosition().y);
        expectNothingCutOff(window);
        type(window, "txtFile", "jobs");
        EXPECT_EQ(chosen(), "jobs.lst");
        saveScreenshot(window, "list-file-offering-" + language());
        type(window, "txtFile", "job");
        EXPECT_EQ(chosen(), "") << "another name";
        click(window, "cmdCancel");
    });
}

TEST_P(frmListFileOffering, AClickTakesTheNameAndADoubleClickReadsIt) {
    whileModal(window, [&] {
        pick(list(), 1);
        EXPECT_EQ(typed(), "jobs.lst");
        EXPECT_TRUE(control<wxButton>(window, "cmdOK").IsEnabled());
        pick(list(), 1, wxEVT_LISTBOX_DCLICK);
    });
    EXPECT_EQ(offer.result(), "1");
    EXPECT_EQ(world.session->JobList(0), "A.JBI");
}

TEST_P(frmListFileOffering, TakingTheChoiceAwayKeepsTheName) {
    whileModal(window, [&] {
        pick(list(), 1);
        list().SetSelection(wxNOT_FOUND);
        wxCommandEvent gone(wxEVT_LISTBOX, list().GetId());
        gone.SetEventObject(&list());
        gone.SetInt(wxNOT_FOUND);
        list().HandleWindowEvent(gone);
        EXPECT_EQ(typed(), "jobs.lst");
        click(window, "cmdCancel");
    });
}

TEST_P(frmListFileOffering, TheArrowKeysTakeOneAfterTheOther) {
    whileModal(window, [&] {
        auto& text = control<wxTextCtrl>(window, "txtFile");
        ASSERT_TRUE(waitFor([&] { return window.IsActive() && text.HasFocus(); }));
        pressKey(WXK_DOWN);
        EXPECT_TRUE(waitFor([&] { return typed() == "door.lst"; }));
        pressKey(WXK_DOWN);
        EXPECT_TRUE(waitFor([&] { return typed() == "jobs.lst"; }));
        EXPECT_EQ(chosen(), "jobs.lst");
        EXPECT_EQ(text.GetStringSelection(), "jobs.lst") << "the next letter begins anew";
        EXPECT_TRUE(text.HasFocus());
        pressKey(WXK_UP);
        EXPECT_TRUE(waitFor([&] { return typed() == "door.lst"; }));
        pressKey(WXK_DOWN);
        EXPECT_TRUE(waitFor([&] { return typed() == "jobs.lst"; }));
        pressKey(WXK_RETURN);
        waitFor([&] { return !isOpen(window); });
    });
    EXPECT_EQ(offer.result(), "1");
}

TEST_P(frmListFileOffering, EnterInTheListReadsItOnce) {
    whileModal(window, [&] {
        pick(list(), 2);
        ASSERT_EQ(typed(), "weld.lst");
        list().SetFocus();
        ASSERT_TRUE(waitFor([&] { return window.IsActive() && list().HasFocus(); }));
        pressKey(WXK_RETURN);
        waitFor([&] { return !isOpen(window); });
    });
    outwaitToolkit();
    EXPECT_EQ(offer.result(), "0");
    EXPECT_EQ(world.boxes.shown.size(), 1U) << "weld.lst is gone from the disk";
}

INSTANTIATE_TEST_SUITE_P(In, frmListFileOffering, bothLanguages, languageName);
INSTANTIATE_TEST_SUITE_P(In, frmListFileTest, bothLanguages, languageName);

} // namespace
} // namespace vantrel::tests
