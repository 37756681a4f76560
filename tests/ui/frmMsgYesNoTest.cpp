#include "ui/dialogs/frmMsgYesNo.h"

#include "DialogTest.h"
#include "support/ModalScript.h"

#include <cstdlib>

#include <wx/display.h>
#include <wx/frame.h>

namespace vantrel::tests {
namespace {

class frmMsgYesNoTest : public DialogInLanguage {
  public:
    std::string overwriteQuestion(const std::string& name) const {
        return name + " " + messages.resourceMessage(2);
    }

    frmMsgYesNo dialog{nullptr,  "Snappy", overwriteQuestion("WELD_01.JBI"), {}, nullptr,
                       messages, state};
};

TEST_P(frmMsgYesNoTest, ShowsTheQuestionAndFourAnswers) {
    EXPECT_EQ(dialog.GetTitle(), "Snappy");
    for (int index = 0; index < 4; ++index)
        EXPECT_EQ(labelOf(dialog, "cmdYesNo" + std::to_string(index)),
                  messages.resourceMessage(30 + index));
    whileModal(dialog, [&] {
        expectNothingCutOff(dialog);
        saveScreenshot(dialog, "question-" + language());
        click(dialog, "cmdYesNo3");
    });
}

/// Wherever the main window is: the operator looks for it in one place.
TEST_P(frmMsgYesNoTest, TheButtonsStandAsInTheSystemsBoxes) {
    expectButtonOrder(dialog, {"cmdYesNo0", "cmdYesNo1", "cmdYesNo2", "cmdYesNo3"});
}

TEST_P(frmMsgYesNoTest, StandsInTheMiddleOfTheScreen) {
    wxFrame corner(nullptr, wxID_ANY, "Snappy", wxPoint(0, 0), wxSize(320, 200));
    corner.Show();
    runEvents();
    frmMsgYesNo question(&corner, "Snappy", overwriteQuestion("WELD_01.JBI"), {}, nullptr, messages,
                         state);
    const auto isInTheMiddle = [&question] {
        constexpr int frame = 60; // what a window manager adds at one side only, in half pixels
        const wxRect screen = wxDisplay(&question).GetClientArea();
        const wxRect place = question.GetScreenRect();
        return std::abs(2 * (place.x - screen.x) + place.width - screen.width) <= frame &&
               std::abs(2 * (place.y - screen.y) + place.height - screen.height) <= frame;
    };
    whileModal(question, [&] {
        EXPECT_TRUE(waitFor(isInTheMiddle));
        click(question, "cmdYesNo3");
    });
}

TEST_P(frmMsgYesNoTest, TheAnswerTextIsTheNumberOfTheButton) {
    for (int index = 0; index < 4; ++index) {
        const auto number = std::to_string(index);
        whileModal(dialog, [&] { click(dialog, "cmdYesNo" + number); });
        EXPECT_EQ(dialog.answerText(), number);
        EXPECT_FALSE(dialog.IsShown());
    }
}

TEST_P(frmMsgYesNoTest, TheAnswerTextStartsAsCancel) {
    EXPECT_EQ(dialog.answerText(), "3");
}

TEST_P(frmMsgYesNoTest, EscIsCancel) {
    whileModal(dialog, [&] { swallows(dialog, WXK_ESCAPE); });
    EXPECT_EQ(dialog.answerText(), "3");
}

TEST_P(frmMsgYesNoTest, TheCloseBoxIsCancel) {
    whileModal(dialog, [&] { dialog.Close(); });
    EXPECT_EQ(dialog.answerText(), "3");
}

TEST_P(frmMsgYesNoTest, CancelIsTheDefaultButton) {
    EXPECT_EQ(dialog.GetDefaultItem(), &control<wxButton>(dialog, "cmdYesNo3"));
}

TEST_P(frmMsgYesNoTest, F1IsSwallowed) {
    EXPECT_TRUE(swallows(dialog, WXK_F1));
    EXPECT_EQ(dialog.answerText(), "3");
}

struct KeyRow {
    int key;
    int modifiers;
    const char* answerText;
};

TEST_P(frmMsgYesNoTest, TheKeyboardAnswersIt) {
    for (const auto& [key, modifiers, answerText] :
         {KeyRow{'Y', wxMOD_ALT, "0"}, KeyRow{'N', wxMOD_ALT, "1"}, KeyRow{'A', wxMOD_ALT, "2"},
          KeyRow{'C', wxMOD_ALT, "3"}, KeyRow{WXK_RETURN, wxMOD_NONE, "3"},
          KeyRow{WXK_ESCAPE, wxMOD_NONE, "3"}, KeyRow{WXK_F4, wxMOD_ALT, "3"}}) {
        frmMsgYesNo asked(nullptr, "Snappy", "?", {}, nullptr, messages, state);
        whileModal(asked, [&] {
            ASSERT_TRUE(waitFor([&] { return asked.IsActive(); }));
            pressKey(key, modifiers);
            waitFor([&] { return !isOpen(asked); });
        });
        EXPECT_EQ(asked.answerText(), answerText) << key;
    }
}

TEST_P(frmMsgYesNoTest, ALongNameWrapsInsteadOfWideningIt) {
    frmMsgYesNo longOne(nullptr, "Snappy", overwriteQuestion(std::string(200, 'W') + ".JBI"), {},
                        nullptr, messages, state);
    EXPECT_LT(longOne.GetSize().x, longOne.FromDIP(600));
    whileModal(longOne, [&] {
        expectNothingCutOff(longOne);
        saveScreenshot(longOne, "question-long-" + language());
        click(longOne, "cmdYesNo3");
    });
}

TEST_P(frmMsgYesNoTest, AmpersandsOfNamesAreShown) {
    const frmMsgYesNo asked(nullptr, "Snappy", "A&B.JBI ?", {}, nullptr, messages, state);
    const auto* const label =
        dynamic_cast<wxStaticText*>(wxWindow::FindWindowByName("lblMsg", &asked));
    EXPECT_EQ(label->GetLabelText(), "A&B.JBI ?");
}

TEST_P(frmMsgYesNoTest, ALanguageWithoutCaptionsLeavesNoButtonEmpty) {
    messages.replace({});
    frmMsgYesNo asked(nullptr, "Snappy", "?", {}, nullptr, messages, state);
    EXPECT_EQ(labelOf(asked, "cmdYesNo0"), "はい(&Y)");
    EXPECT_EQ(labelOf(asked, "cmdYesNo3"), "ｷｬﾝｾﾙ(&C)");
}

TEST_P(frmMsgYesNoTest, NamesTheControllerBelowTheQuestion) {
    const frmMsgYesNo asked(nullptr, "Snappy", "A.JBI ?", {"\u2192 A&B (10.0.0.5)"}, nullptr,
                            messages, state);
    const auto* const question = wxWindow::FindWindowByName("lblMsg", &asked);
    const auto* const place =
        dynamic_cast<wxStaticText*>(wxWindow::FindWindowByName("lblPlace", &asked));
    ASSERT_NE(place, nullptr);
    EXPECT_EQ(question->GetLabel(), "A.JBI ?");
    EXPECT_EQ(place->GetLabelText().utf8_string(), "\u2192 A&B (10.0.0.5)");
    EXPECT_GE(place->GetPosition().y, question->GetRect().GetBottom());
    EXPECT_EQ(wxWindow::FindWindowByName("lblPlace", &dialog), nullptr) << "nothing to name";
}

TEST_P(frmMsgYesNoTest, EachQuestionIsAskedByADialogOfItsOwn) {
    QuestionDialogs questions(messages, state);
    ModalScript operatorsHand;
    operatorsHand.act([](wxDialog& asked) { click(asked, "cmdYesNo2"); });
    operatorsHand.act([](wxDialog& asked) { asked.Close(); });
    EXPECT_EQ(questions.ask("title", "one?", {}, nullptr), Answer::All);
    EXPECT_EQ(questions.ask("title", "two?", {}, nullptr), Answer::Cancel);
}

TEST_P(frmMsgYesNoTest, AChoiceComesBackAsItWasLeft) {
    QuestionDialogs questions(messages, state);
    ModalScript operatorsHand;
    CheckedChoice choice{messages.getMessage(455), false};
    operatorsHand.act([this](wxDialog& asked) {
        auto& box = control<wxCheckBox>(asked, "chkChoice");
        EXPECT_FALSE(box.IsChecked());
        EXPECT_EQ(asked.GetDefaultItem(), &control<wxButton>(asked, "cmdYesNo3"));
        expectNothingCutOff(asked);
        saveScreenshot(asked, "question-choice-" + language());
        box.SetValue(true);
        click(asked, "cmdYesNo1");
    });
    EXPECT_EQ(questions.ask("title", "one?", {"facts"}, &choice), Answer::No);
    EXPECT_TRUE(choice.isChecked);
    operatorsHand.act([](wxDialog& asked) {
        EXPECT_TRUE(control<wxCheckBox>(asked, "chkChoice").IsChecked());
        click(asked, "cmdYesNo0");
    });
    EXPECT_EQ(questions.ask("title", "two?", {}, &choice), Answer::Yes);
    EXPECT_TRUE(choice.isChecked);
    EXPECT_EQ(wxWindow::FindWindowByName("chkChoice", &dialog), nullptr) << "nothing to choose";
}

INSTANTIATE_TEST_SUITE_P(In, frmMsgYesNoTest, bothLanguages, languageName);

} // namespace
} // namespace vantrel::tests
