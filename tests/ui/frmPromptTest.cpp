#include "ui/dialogs/frmPrompt.h"

#include "DialogTest.h"
#include "lang/MessageNumbers.h"
#include "support/ModalScript.h"

#include <gmock/gmock.h>

namespace vantrel::tests {
namespace {

class frmPromptTest : public DialogInLanguage {
  public:
    TextPrompt newPrompt() const {
        return {.title = message::menuRename,
                .label = messages.getMessageWithInsertion(message::newNameOf, "A&B.JBI"),
                .text = "A&B.JBI",
                .selected = 3,
                .problem = [this](const std::string& text) {
                    return text == "taken" ? messages.getMessage(message::nameUnusable)
                                           : std::string();
                }};
    }
    wxTextCtrl& field() { return control<wxTextCtrl>(dialog, "txtName"); }
    bool isOKOn() { return control<wxButton>(dialog, "cmdOK").IsEnabled(); }

    TextPrompt prompt = newPrompt();
    frmPrompt dialog{nullptr, prompt, messages, state};
};

TEST_P(frmPromptTest, ShowsWhatIsAskedForWithTheStemSelected) {
    EXPECT_EQ(dialog.GetTitle().utf8_string(), language() == "Japanese" ? "名前の変更" : "Rename");
    EXPECT_EQ(control<wxStaticText>(dialog, "lblName").GetLabelText().utf8_string(), prompt.label);
    EXPECT_EQ(field().GetValue(), "A&B.JBI");
    whileModal(dialog, [&] {
        EXPECT_TRUE(waitFor([&] { return field().HasFocus(); }));
        EXPECT_EQ(field().GetStringSelection(), "A&B");
        expectNothingCutOff(dialog);
        click(dialog, "cmdCancel");
    });
}

TEST_P(frmPromptTest, SaysWhatIsWrongAndWaitsUntilItIsMended) {
    EXPECT_TRUE(isOKOn());
    auto& problem = control<wxStaticText>(dialog, "lblProblem");
    EXPECT_FALSE(problem.IsShown());
    whileModal(dialog, [&] {
        runEvents();
        const wxSize before = dialog.GetClientSize(); // frames come later
        type(dialog, "txtName", "taken");
        EXPECT_FALSE(isOKOn());
        EXPECT_TRUE(problem.IsShown());
        runEvents();
        expectNothingCutOff(dialog);
        saveScreenshot(dialog, "prompt-" + language());
        EXPECT_EQ(dialog.GetClientSize(), before) << "the window does not jump";
        type(dialog, "txtName", "");
        EXPECT_FALSE(isOKOn());
        EXPECT_FALSE(problem.IsShown()) << "an empty field needs no words";
        type(dialog, "txtName", "free");
        EXPECT_TRUE(isOKOn());
        click(dialog, "cmdOK");
    });
    EXPECT_EQ(dialog.text(), "free");
    EXPECT_EQ(dialog.GetReturnCode(), wxID_OK);
}

TEST_P(frmPromptTest, EnterTakesOnlyATextThatCanBeUsed) {
    whileModal(dialog, [&] {
        type(dialog, "txtName", "taken");
        field().SetFocus();
        ASSERT_TRUE(waitFor([&] { return dialog.IsActive() && field().HasFocus(); }));
        pressKey(WXK_RETURN);
        outwaitToolkit();
        EXPECT_TRUE(isOpen(dialog));
        type(dialog, "txtName", "free");
        pressKey(WXK_RETURN);
        EXPECT_TRUE(waitFor([&] { return !isOpen(dialog); }));
    });
    EXPECT_EQ(dialog.GetReturnCode(), wxID_OK);
}

TEST_P(frmPromptTest, WhatIsAskedAgainAtTheEndIsTheDisk) {
    bool isTaken = false;
    prompt.problem = [&isTaken](const std::string&) {
        return isTaken ? std::string("taken") : std::string();
    };
    whileModal(dialog, [&] {
        type(dialog, "txtName", "free");
        EXPECT_TRUE(isOKOn());
        isTaken = true;
        click(dialog, "cmdOK");
        EXPECT_TRUE(isOpen(dialog));
        EXPECT_FALSE(isOKOn());
        click(dialog, "cmdCancel");
    });
    EXPECT_EQ(dialog.GetReturnCode(), wxID_CANCEL);
}

TEST_P(frmPromptTest, EscLeavesIt) {
    wxFrame window(nullptr, wxID_ANY, "Snappy");
    PromptDialogs prompts(window, messages, state);
    ModalScript operatorsHand;
    operatorsHand.act([](wxDialog& asked) { swallows(asked, WXK_ESCAPE); });
    EXPECT_EQ(prompts.ask(prompt), std::nullopt);
    operatorsHand.act([](wxDialog& asked) { click(asked, "cmdOK"); });
    EXPECT_EQ(prompts.ask(prompt), "A&B.JBI");
}

TEST_P(frmPromptTest, TheButtonsStandAsInTheSystemsBoxes) {
    expectButtonOrder(dialog, {"cmdOK", "cmdCancel"});
}

INSTANTIATE_TEST_SUITE_P(In, frmPromptTest, bothLanguages, languageName);

} // namespace
} // namespace vantrel::tests
