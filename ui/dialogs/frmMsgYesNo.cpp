#include "ui/dialogs/frmMsgYesNo.h"

#include "app/window/AnswerCaptions.h"
#include "base/ApplicationState.h"
#include "ui/dialogs/DialogBasics.h"
#include "ui/look/Captions.h"
#include "ui/look/ColourSwatch.h"
#include "ui/look/IconSet.h"
#include "ui/look/SystemLook.h"
#include "ui/look/WindowFont.h"
#include "ui/look/WrappedText.h"
#include "ui/look/WxText.h"

#include <wx/bmpbndl.h>
#include <wx/button.h>
#include <wx/checkbox.h>
#include <wx/iconbndl.h>
#include <wx/sizer.h>
#include <wx/statbmp.h>
#include <wx/stattext.h>

namespace vantrel {
namespace {

/// Device-independent pixels.
constexpr int questionWidth = 380;
constexpr int barWidth = 16;

constexpr std::size_t cancelIndex = std::size_t(Answer::Cancel);

} // namespace

frmMsgYesNo::frmMsgYesNo(wxWindow* parent, const std::string& title, const std::string& question,
                         const QuestionNote& note, const CheckedChoice* choice,
                         const MessageTable& messages, const ApplicationState& state)
    : wxDialog(parent, wxID_ANY, toWx(title), wxDefaultPosition, wxDefaultSize,
               wxCAPTION | wxCLOSE_BOX, "frmMsgYesNo") {
    SetIcons(programIcons());
    auto* const column = new wxBoxSizer(wxVERTICAL);
    column->Add(buildQuestion(question, note, choice, state),
                wxSizerFlags(1).Expand().Border(wxALL, FromDIP(16)));
    column->Add(buildButtons(messages),
                wxSizerFlags().CentreHorizontal().Border(wxLEFT | wxRIGHT | wxBOTTOM, FromDIP(16)));
    SetSizer(column);
    applyCaptionFont(*this, state);
    fitToContents(*this);
    swallowF1(*this);
    CentreOnScreen();
}

wxSizer* frmMsgYesNo::buildQuestion(const std::string& question, const QuestionNote& note,
                                    const CheckedChoice* choice, const ApplicationState& state) {
    auto* const row = new wxBoxSizer(wxHORIZONTAL);
    auto* const picture = new wxStaticBitmap(this, wxID_ANY, questionPicture());
    row->Add(picture, wxSizerFlags().CentreVertical().Border(wxRIGHT, FromDIP(16)));
    auto* const texts = new wxBoxSizer(wxVERTICAL);
    texts->Add(newText(question, state, "lblMsg"), wxSizerFlags().Expand());
    if (!note.text.empty())
        texts->Add(buildNote(note, state), wxSizerFlags().Expand().Border(wxTOP, FromDIP(8)));
    if (choice) {
        chkChoice_ = new wxCheckBox(this, wxID_ANY, toWx(choice->caption), wxDefaultPosition,
                                    wxDefaultSize, 0, wxDefaultValidator, "chkChoice");
        chkChoice_->SetValue(choice->isChecked);
        texts->Add(chkChoice_, wxSizerFlags().Border(wxTOP, FromDIP(10)));
    }
    row->Add(texts, wxSizerFlags(1).CentreVertical());
    return row;
}

wxSizer* frmMsgYesNo::buildNote(const QuestionNote& note, const ApplicationState& state) {
    auto* const row = new wxBoxSizer(wxHORIZONTAL);
    if (note.mark.colour) {
        auto* const bar = new ColourSwatch(this, "shpPlace", wxBORDER_SIMPLE);
        bar->showColour(*note.mark.colour, note.mark.colourName);
        bar->SetMinSize(FromDIP(wxSize(barWidth, 1)));
        row->Add(bar, wxSizerFlags().Expand().Border(wxRIGHT, FromDIP(8)));
    }
    row->Add(newText(note.text, state, "lblPlace"), wxSizerFlags(1));
    return row;
}

wxStaticText* frmMsgYesNo::newText(const std::string& text, const ApplicationState& state,
                                   const std::string& name) {
    const wxFont font = captionFont(state);
    const auto widthOf = [this, &font](std::string_view part) {
        int width = 0;
        GetTextExtent(toWx(std::string(part)), &width, nullptr, nullptr, nullptr, &font);
        return width;
    };
    auto* const label =
        new wxStaticText(this, wxID_ANY, "", wxDefaultPosition, wxDefaultSize, 0, toWx(name));
    label->SetFont(font);
    label->SetLabelText(toWx(wrappedText(text, FromDIP(questionWidth), widthOf)));
    return label;
}

wxSizer* frmMsgYesNo::buildButtons(const MessageTable& messages) {
    for (std::size_t index = 0; index < cmdYesNo_.size(); ++index) {
        auto* const button = newCaptionButton(this, answerCaption(messages, Answer(index)),
                                              "cmdYesNo" + std::to_string(index));
        button->Bind(wxEVT_BUTTON, [this, index](wxCommandEvent&) { press(index); });
        cmdYesNo_[index] = button;
    }
    // Esc and the close box press this one too.
    SetEscapeId(cmdYesNo_[cancelIndex]->GetId());
    cmdYesNo_[cancelIndex]->SetDefault();
    cmdYesNo_[cancelIndex]->SetFocus();
    return buttonRow(cmdYesNo_);
}

bool frmMsgYesNo::isChoiceChecked() const {
    return chkChoice_ && chkChoice_->IsChecked();
}

void frmMsgYesNo::press(std::size_t index) {
    answerText_ = std::to_string(index);
    if (IsModal())
        EndModal(wxID_OK);
    else
        Hide();
}

Answer QuestionDialogs::ask(const std::string& title, const std::string& question,
                            const QuestionNote& note, CheckedChoice* choice) {
    frmMsgYesNo dialog(dialogParent(), title, question, note, choice, messages_, state_);
    dialog.ShowModal();
    if (choice)
        choice->isChecked = dialog.isChoiceChecked();
    const int number = dialog.answerText().at(0) - '0';
    return number >= 0 && number <= int(Answer::Cancel) ? Answer(number) : Answer::Cancel;
}

} // namespace vantrel
