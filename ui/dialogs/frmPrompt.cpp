#include "ui/dialogs/frmPrompt.h"

#include "base/ApplicationState.h"
#include "lang/MessageNumbers.h"
#include "lang/MessageTable.h"
#include "ui/dialogs/DialogBasics.h"
#include "ui/look/Captions.h"
#include "ui/look/IconSet.h"
#include "ui/look/SystemLook.h"
#include "ui/look/WindowFont.h"
#include "ui/look/WrappedText.h"
#include "ui/look/WxText.h"

#include <algorithm>
#include <array>

#include <wx/button.h>
#include <wx/iconbndl.h>
#include <wx/sizer.h>
#include <wx/stattext.h>
#include <wx/textcompleter.h>
#include <wx/textctrl.h>

namespace vantrel {
namespace {

/// Device-independent pixels.
constexpr int contentWidth = 400;

class Completer : public wxTextCompleterSimple {
  public:
    explicit Completer(const TextPrompt& prompt) : prompt_(prompt) {}

    void GetCompletions(const wxString& prefix, wxArrayString& found) override {
        constexpr std::size_t most = 200; // more than anybody reads
        const auto texts = prompt_.completions(fromWx(prefix));
        for (std::size_t at = 0; at < std::min(texts.size(), most); ++at)
            found.Add(toWx(texts[at]));
    }

  private:
    const TextPrompt& prompt_;
};

} // namespace

frmPrompt::frmPrompt(wxWindow* parent, const TextPrompt& prompt, const MessageTable& messages,
                     const ApplicationState& state)
    : wxDialog(parent, wxID_ANY, "", wxDefaultPosition, wxDefaultSize, wxCAPTION | wxCLOSE_BOX,
               "frmPrompt"),
      prompt_(prompt) {
    SetIcons(programIcons());
    SetTitle(toWx(withoutMnemonic(messages.getMessage(prompt.title))));
    const int gap = FromDIP(16);
    auto* const column = new wxBoxSizer(wxVERTICAL);
    column->Add(buildTexts(state), wxSizerFlags(1).Expand().Border(wxALL, gap));
    column->Add(buildButtons(messages),
                wxSizerFlags().Right().Border(wxLEFT | wxRIGHT | wxBOTTOM, gap));
    SetSizer(column);
    swallowF1(*this);
    applyCaptionFont(*this, state);
    // Room for the longest text, so that the window does not grow and shrink while somebody types.
    const int line = lblProblem_->GetTextExtent(toWx(prompt.label)).y;
    lblProblem_->SetMinSize(wxSize(FromDIP(contentWidth), 4 * line + FromDIP(4)));
    fitToContents(*this);
    CentreOnParent();
    txtName_->SetFocus();
    txtName_->SetSelection(0, long(toWx(prompt.text.substr(0, prompt.selected)).length()));
    refresh();
}

wxSizer* frmPrompt::buildTexts(const ApplicationState& state) {
    const auto label = [this, &state](const std::string& text, const char* name) {
        auto* const control =
            new wxStaticText(this, wxID_ANY, "", wxDefaultPosition, wxDefaultSize, 0, name);
        control->SetFont(captionFont(state));
        const auto widthOf = [control](std::string_view part) {
            return control->GetTextExtent(toWx(std::string(part))).x;
        };
        control->SetLabelText(toWx(wrappedText(text, FromDIP(contentWidth), widthOf)));
        return control;
    };
    auto* const column = new wxBoxSizer(wxVERTICAL);
    column->Add(label(prompt_.label, "lblName"), wxSizerFlags().Expand());
    txtName_ = new wxTextCtrl(this, wxID_ANY, toWx(prompt_.text), wxDefaultPosition,
                              FromDIP(wxSize(contentWidth, -1)), wxTE_PROCESS_ENTER,
                              wxDefaultValidator, "txtName");
    setAccessibleName(*txtName_, toWx(prompt_.label));
    if (prompt_.completions)
        txtName_->AutoComplete(new Completer(prompt_));
    column->Add(txtName_, wxSizerFlags().Expand().Border(wxTOP, FromDIP(4)));
    lblProblem_ = new wxStaticText(this, wxID_ANY, "", wxDefaultPosition, wxDefaultSize,
                                   wxST_NO_AUTORESIZE, "lblProblem");
    column->Add(lblProblem_,
                wxSizerFlags().Expand().Border(wxTOP, FromDIP(6)).ReserveSpaceEvenIfHidden());
    txtName_->Bind(wxEVT_TEXT, [this](wxCommandEvent&) { refresh(); });
    txtName_->Bind(wxEVT_TEXT_ENTER, [this](wxCommandEvent&) { confirm(); });
    return column;
}

wxSizer* frmPrompt::buildButtons(const MessageTable& messages) {
    cmdOK_ = newCaptionButton(this, messages.getMessage(message::ok), "cmdOK");
    auto* const cmdCancel =
        newCaptionButton(this, messages.getMessage(message::cancel), "cmdCancel");
    cmdOK_->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { confirm(); });
    cmdOK_->SetDefault();
    cmdCancel->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { EndModal(wxID_CANCEL); });
    SetEscapeId(cmdCancel->GetId());
    return buttonRow(std::array{cmdOK_, cmdCancel});
}

std::string frmPrompt::text() const {
    return fromWx(txtName_->GetValue());
}

/// The disk is asked once more: it may have changed since the text was typed.
void frmPrompt::confirm() {
    refresh();
    if (cmdOK_->IsEnabled())
        EndModal(wxID_OK);
}

/// An empty field needs no words.
void frmPrompt::refresh() {
    const std::string problem = prompt_.problem ? prompt_.problem(text()) : std::string();
    const bool isUsable = problem.empty() && !text().empty();
    cmdOK_->Enable(isUsable);
    const auto widthOf = [this](std::string_view part) {
        return lblProblem_->GetTextExtent(toWx(std::string(part))).x;
    };
    const std::string shown = text().empty() ? std::string() : problem;
    constexpr int spare = 16; // device-independent pixels: a system may draw a little wider
    lblProblem_->SetLabelText(toWx(wrappedText(shown, FromDIP(contentWidth - spare), widthOf)));
    lblProblem_->Show(!shown.empty());
}

std::optional<std::string> PromptDialogs::ask(const TextPrompt& prompt) {
    frmPrompt dialog(&parent_, prompt, messages_, state_);
    return dialog.ShowModal() == wxID_OK ? std::optional(dialog.text()) : std::nullopt;
}

} // namespace vantrel
