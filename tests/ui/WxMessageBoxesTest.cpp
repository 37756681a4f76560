#include "ui/dialogs/WxMessageBoxes.h"

#include "DialogTest.h"
#include "support/ModalScript.h"
#include "ui/dialogs/DialogBasics.h"
#include "ui/dialogs/FrmMessage.h"
#include "ui/look/WindowHolder.h"

#include <algorithm>

#include <wx/frame.h>
#include <wx/msgdlg.h>
#include <wx/statbmp.h>
#include <wx/timer.h>

namespace vantrel::tests {
namespace {

/// Each system writes a caption's key in its own way.
std::string withoutKey(std::string caption) {
    std::erase_if(caption, [](char each) { return each == '&' || each == '_'; });
    return caption;
}

class WxMessageBoxesTest : public DialogInLanguage {
  public:
    /// Answers the next box and remembers what it was.
    void answerWith(int id) {
        script.answer([this, id](wxDialog& dialog) {
            auto& box = dynamic_cast<MessageBox&>(dialog);
            text = box.GetMessage().utf8_string();
            title = box.GetCaption().utf8_string();
            style = box.GetMessageDialogStyle();
            yes = box.GetYesLabel().utf8_string();
            no = box.GetNoLabel().utf8_string();
            ok = box.GetOKLabel().utf8_string();
            parent = box.GetParent();
            return id;
        });
    }

    ModalScript script;
    WxMessageBoxes boxes{messages};
    std::string text, title, yes, no, ok;
    long style = 0;
    wxWindow* parent = nullptr;
};

TEST_P(WxMessageBoxesTest, TellsWithOneButtonAndTheProgramsTitle) {
    answerWith(wxID_OK);
    boxes.tell("text", BoxIcon::Exclamation);
    EXPECT_EQ(title, "Vantrel");
    EXPECT_EQ(style & (wxOK | wxCANCEL | wxYES_NO), wxOK);
    EXPECT_TRUE(style & wxICON_WARNING);
    EXPECT_EQ(ok, messages.getMessage(325));
}

std::string shownTexts(const wxWindow& window) {
    std::string texts;
    for (const wxWindow* const child : window.GetChildren())
        if (const auto* const label = dynamic_cast<const wxStaticText*>(child))
            texts += label->GetLabelText().utf8_string();
    return texts;
}

std::ptrdiff_t picturesIn(const wxWindow& window) {
    return std::ranges::count_if(window.GetChildren(), [](const wxWindow* child) {
        return dynamic_cast<const wxStaticBitmap*>(child) != nullptr;
    });
}

TEST_P(WxMessageBoxesTest, ShowsATextAsItIs) {
    script.act([this](wxDialog& box) {
        text = shownTexts(box);
        expectNothingCutOff(box);
        saveScreenshot(box, "box-" + language());
        box.EndModal(wxID_NO);
    });
    boxes.askYesNo("A&B 100%s %n.JBI", BoxIcon::Question);
    EXPECT_EQ(text, "A&B 100%s %n.JBI");
}

TEST_P(WxMessageBoxesTest, ALongNameWrapsInsteadOfWideningIt) {
    script.act([this](wxDialog& box) {
        EXPECT_TRUE(waitFor([&] { return box.GetSize().x > 100; }));
        EXPECT_LT(box.GetSize().x, box.FromDIP(760));
        expectNothingCutOff(box);
        saveScreenshot(box, "box-long-" + language());
        box.EndModal(wxID_OK);
    });
    boxes.tell('[' + std::string(250, 'W') + ']' + messages.getMessage(8), BoxIcon::Exclamation);
}

TEST_P(WxMessageBoxesTest, AsksYesOrNoWithNoAsTheDefault) {
    answerWith(wxID_YES);
    EXPECT_TRUE(boxes.askYesNo("?", BoxIcon::Question));
    EXPECT_TRUE(style & wxNO_DEFAULT);
    EXPECT_TRUE(style & wxICON_QUESTION);
    EXPECT_EQ(withoutKey(yes), withoutKey(messages.resourceMessage(30)));
    EXPECT_EQ(withoutKey(no), withoutKey(messages.resourceMessage(31)));
}

TEST_P(WxMessageBoxesTest, OnlyYesIsYesAndOnlyOKIsOK) {
    for (const int id : {wxID_NO, wxID_CANCEL, wxID_CLOSE}) {
        answerWith(id);
        EXPECT_FALSE(boxes.askYesNo("?", BoxIcon::Question));
        answerWith(id);
        EXPECT_FALSE(boxes.askOkCancel("?", BoxIcon::Question));
    }
    answerWith(wxID_OK);
    EXPECT_TRUE(boxes.askOkCancel("?", BoxIcon::Question));
}

TEST_P(WxMessageBoxesTest, ABoxWithoutAnIconHasNone) {
    script.act([this](wxDialog& box) {
        EXPECT_EQ(picturesIn(box), 0);
        saveScreenshot(box, "box-plain-" + language());
        box.EndModal(wxID_OK);
    });
    boxes.tell("text", BoxIcon::None);
    script.act([](wxDialog& box) {
        EXPECT_EQ(picturesIn(box), 1);
        box.EndModal(wxID_OK);
    });
    boxes.tell("text", BoxIcon::Exclamation);
}

TEST_P(WxMessageBoxesTest, WorksBeforeThereIsALanguage) {
    const MessageTable none;
    answerWith(wxID_OK);
    WxMessageBoxes(none).tell("Language File Read Error.(System.lng)", BoxIcon::Exclamation);
    EXPECT_EQ(title, "Vantrel");
    EXPECT_NE(ok, "");
    EXPECT_EQ(parent, nullptr);
}

TEST_P(WxMessageBoxesTest, BelongsToTheInnermostModalDialog) {
    wxDialog open(nullptr, wxID_ANY, "open");
    script.act([this](wxDialog& dialog) {
        answerWith(wxID_OK);
        boxes.tell("text", BoxIcon::None);
        EXPECT_EQ(parent, &dialog);
        dialog.EndModal(wxID_OK);
    });
    open.ShowModal();
}

TEST_P(WxMessageBoxesTest, NeverBelongsToAWindowThatComesAndGoes) {
    const WindowHolder<FrmMessage> start(new FrmMessage("body", messages, state));
    start->showPainted(runEvents);
    answerWith(wxID_OK);
    boxes.tell("text", BoxIcon::None);
    EXPECT_EQ(parent, nullptr);
}

/// Presses a key until the box that takes it is gone; the first presses may come before the box is
/// on the screen. A box that does not take it is answered Yes in the end.
class PatientKey : public wxTimer {
  public:
    explicit PatientKey(int key) : key_(key) { Start(50); }
    void Notify() override {
        if (++presses_ > 60 && box)
            answer(*box, wxID_YES);
        else
            pressKey(key_);
    }

    wxDialog* box = nullptr;

  private:
    int key_;
    int presses_ = 0;
};

class KeyInABoxTest : public WxMessageBoxesTest {
  public:
    bool isYes(int key) {
        PatientKey pressed(key);
        script.act([&pressed](wxDialog& box) { pressed.box = &box; });
        return boxes.askYesNo(messages.getMessage(1), BoxIcon::Question);
    }
};

TEST_P(KeyInABoxTest, EnterIsNo) {
    EXPECT_FALSE(isYes(WXK_RETURN));
}

TEST_P(KeyInABoxTest, EscIsNo) {
    EXPECT_FALSE(isYes(WXK_ESCAPE));
}

INSTANTIATE_TEST_SUITE_P(In, KeyInABoxTest, bothLanguages, languageName);

INSTANTIATE_TEST_SUITE_P(In, WxMessageBoxesTest, bothLanguages, languageName);

} // namespace
} // namespace vantrel::tests
