#include "ui/dialogs/frmListFile.h"

#include "DialogTest.h"
#include "app/lists/ListFileDraft.h"
#include "link/SessionWorld.h"

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

INSTANTIATE_TEST_SUITE_P(In, frmListFileTest, bothLanguages, languageName);

} // namespace
} // namespace vantrel::tests
