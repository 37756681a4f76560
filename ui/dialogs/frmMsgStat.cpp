#include "ui/dialogs/frmMsgStat.h"

#include "app/window/AnswerCaptions.h"
#include "base/ApplicationState.h"
#include "ui/dialogs/DialogBasics.h"
#include "ui/look/Captions.h"
#include "ui/look/ColourSwatch.h"
#include "ui/look/IconSet.h"
#include "ui/look/WindowFont.h"
#include "ui/look/WxText.h"

#include <algorithm>
#include <utility>

#include <wx/button.h>
#include <wx/gauge.h>
#include <wx/iconbndl.h>
#include <wx/sizer.h>
#include <wx/stattext.h>
#include <wx/weakref.h>

namespace vantrel {
namespace {

/// Device-independent pixels; texts of any length are shortened to it, so the window never jumps.
constexpr int contentWidth = 460;
constexpr int swatchWidth = 16;

/// "&" in a file's name is shown, and an equal text is not painted again.
void showText(wxStaticText& label, const std::string& text) {
    const auto shown = toWx(text);
    if (label.GetLabelText() != shown)
        label.SetLabelText(shown);
}

} // namespace

frmMsgStat::frmMsgStat(ProgressPanel& panel, const MessageTable& messages,
                       const ApplicationState& state, std::function<void()> yield)
    : wxDialog(nullptr, wxID_ANY, "Snappy", wxDefaultPosition, wxDefaultSize,
               wxCAPTION | wxCLOSE_BOX | wxSTAY_ON_TOP | wxDIALOG_NO_PARENT, "frmMsgStat"),
      panel_(&panel), messages_(messages), state_(state), yield_(std::move(yield)) {
    SetExtraStyle(GetExtraStyle() | wxWS_EX_TRANSIENT);
    SetIcons(programIcons());
    buildControls();
    bindEvents();
    applyCaptions();
    panel.attach(this);
}

frmMsgStat::~frmMsgStat() {
    detach();
}

void frmMsgStat::detach() {
    if (ProgressPanel* const panel = std::exchange(panel_, nullptr))
        panel->attach(nullptr);
}

bool frmMsgStat::Destroy() {
    detach();
    return wxDialog::Destroy();
}

void frmMsgStat::buildControls() {
    const long shortened = wxST_NO_AUTORESIZE | wxST_ELLIPSIZE_MIDDLE;
    const wxSize width = FromDIP(wxSize(contentWidth, -1));
    lblMsg_ = new wxStaticText(this, wxID_ANY, "", wxDefaultPosition, width, shortened, "lblMsg");
    pgbInf_ = new wxGauge(this, wxID_ANY, 1, wxDefaultPosition, width,
                          wxGA_HORIZONTAL | wxGA_SMOOTH, wxDefaultValidator, "pgbInf");
    lblWaiting_ =
        new wxStaticText(this, wxID_ANY, "", wxDefaultPosition, width, shortened, "lblWaiting");
    lblPlace_ =
        new wxStaticText(this, wxID_ANY, "", wxDefaultPosition, width, shortened, "lblPlace");
    lblPace_ = new wxStaticText(this, wxID_ANY, "", wxDefaultPosition, width, shortened, "lblPace");
    shpPlace_ = new ColourSwatch(this, "shpPlace", wxBORDER_SIMPLE);
    shpPlace_->SetMinSize(FromDIP(wxSize(swatchWidth, 1)));
    shpPlace_->Hide();
    cmdCancel_ = newCaptionButton(this, "", "cmdCancel");

    const int gap = FromDIP(8);
    auto* const place = new wxBoxSizer(wxHORIZONTAL);
    place->Add(shpPlace_, wxSizerFlags().Expand().Border(wxRIGHT, gap));
    place->Add(lblPlace_, wxSizerFlags(1));
    // The other lines keep the width.
    lblPlace_->SetMinSize(FromDIP(wxSize(1, -1)));
    // A hidden bar or button keeps its place: the window's size does not change while it is shown.
    const auto whole = wxSizerFlags().Expand().ReserveSpaceEvenIfHidden();
    auto* const column = new wxBoxSizer(wxVERTICAL);
    column->Add(lblMsg_, whole);
    column->AddSpacer(gap);
    column->Add(pgbInf_, whole);
    column->AddSpacer(gap);
    column->Add(lblWaiting_, whole);
    column->AddSpacer(gap);
    column->Add(place, wxSizerFlags().Expand());
    column->AddSpacer(gap);
    column->Add(lblPace_, whole);
    column->AddSpacer(2 * gap);
    column->Add(cmdCancel_, wxSizerFlags().CentreHorizontal().ReserveSpaceEvenIfHidden());
    auto* const margins = new wxBoxSizer(wxVERTICAL);
    margins->Add(column, wxSizerFlags(1).Expand().Border(wxALL, 2 * gap));
    SetSizer(margins);
}

void frmMsgStat::bindEvents() {
    // Neither Esc nor the close box may end the window: both are a press of Cancel, if that is on.
    SetEscapeId(wxID_NONE);
    Bind(wxEVT_CLOSE_WINDOW, [this](wxCloseEvent& event) {
        if (!event.CanVeto()) {
            event.Skip();
            return;
        }
        event.Veto();
        pressCancel();
    });
    Bind(wxEVT_CHAR_HOOK, [this](wxKeyEvent& event) {
        if (event.GetKeyCode() == WXK_ESCAPE)
            pressCancel();
        else
            event.Skip();
    });
    cmdCancel_->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { pressCancel(); });
    swallowF1(*this);
}

void frmMsgStat::applyCaptions() {
    cmdCancel_->SetLabel(toWx(answerCaption(messages_, Answer::Cancel)));
    applyCaptionFont(*this, state_);
    fitToContents(*this);
}

void frmMsgStat::pressCancel() {
    if (!panel_ || !cmdCancel_->IsShown())
        return;
    panel_->pressCancel();
    // The file under way is still finished; the dimmed button says that the press has arrived.
    cmdCancel_->Disable();
}

void frmMsgStat::refresh(const ProgressPanel& panel) {
    showTexts(panel);
    showControls(panel);
    showOrHide(panel.isVisible());
}

void frmMsgStat::showTexts(const ProgressPanel& panel) {
    if (!panel.title().empty() && GetTitle() != toWx(panel.title()))
        SetTitle(toWx(panel.title()));
    showText(*lblMsg_, panel.message());
    showText(*lblWaiting_, panel.waitingFor());
    showText(*lblPlace_, panel.place());
    showText(*lblPace_, panel.pace());
    showColour(panel.mark());
    const auto caption = toWx(panel.cancelCaption());
    if (!caption.empty() && cmdCancel_->GetLabel() != caption)
        cmdCancel_->SetLabel(caption);
}

void frmMsgStat::showColour(const PlaceMark& mark) {
    if (mark.colour)
        shpPlace_->showColour(*mark.colour, mark.colourName);
    if (shpPlace_->IsShown() == mark.colour.has_value())
        return;
    shpPlace_->Show(mark.colour.has_value());
    Layout();
}

void frmMsgStat::showControls(const ProgressPanel& panel) {
    const int range = std::max(panel.count(), 1);
    if (pgbInf_->GetRange() != range)
        pgbInf_->SetRange(range);
    const int item = std::clamp(panel.item(), 0, range);
    // Some systems let a bar glide forward to its place, but go back to it at once.
    if (pgbInf_->GetValue() < item)
        pgbInf_->SetValue(std::min(item + 1, range));
    pgbInf_->SetValue(item);
    pgbInf_->Show(panel.barShown());
    cmdCancel_->Show(panel.cancelButtonShown());
    cmdCancel_->Enable(!panel.isPressTaken());
}

void frmMsgStat::showOrHide(bool visible) {
    if (visible == IsShown())
        return;
    if (!visible) {
        Hide();
        return;
    }
    if (!placed_)
        centreOverMainWindow(*this);
    ShowWithoutActivating();
}

void frmMsgStat::yield() {
    // An event may take the window away, and its members.
    const auto yield = yield_;
    const wxWeakRef<frmMsgStat> there(this);
    yield();
    if (!there || !IsShown() || std::exchange(placed_, true))
        return;
    // A window that was moved comes back where it was, whatever it was told while it was hidden.
    centreOverMainWindow(*this);
}

void frmMsgStat::unload() {
    Destroy();
}

} // namespace vantrel
