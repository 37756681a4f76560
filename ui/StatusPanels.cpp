#include "ui/StatusPanels.h"

#include "ui/look/WxText.h"

#include <algorithm>

#include <wx/statusbr.h>

namespace vantrel {
namespace {

constexpr int panelPC = 0;
constexpr int panelController = 1;
constexpr int panelNotice = 2;
constexpr int panelResult = 3;

} // namespace

StatusPanels::StatusPanels(wxStatusBar& bar) : bar_(bar) {
    bar_.Bind(wxEVT_SIZE, [this](wxSizeEvent& event) {
        event.Skip();
        bar_.CallAfter([this] { share(); });
    });
    bar_.Bind(wxEVT_LEFT_UP, [this](wxMouseEvent& event) {
        event.Skip();
        wxRect result;
        if (bar_.GetFieldRect(panelResult, result) && result.Contains(event.GetPosition()))
            onResultClicked();
    });
}

void StatusPanels::setPane(ActiveSide side, const std::string& text) {
    bar_.SetStatusText(toWx(text), side == ActiveSide::PC ? panelPC : panelController);
    if (side == ActiveSide::PC)
        share();
}

void StatusPanels::setNotice(const std::string& text) {
    bar_.SetStatusText(toWx(text), panelNotice);
    share();
}

void StatusPanels::setResult(const std::string& text) {
    bar_.SetStatusText(toWx(text), panelResult);
}

/// Shares of the width, but what says that nothing here is real must not be cut off, nor what is
/// selected on the PC.
void StatusPanels::share() {
    constexpr int spare = 16; // device-independent pixels
    constexpr std::array<int, MainWindowControls::statusPanels> shares{3, 4, 1, 4};
    const auto needed = [&](int panel) {
        return bar_.GetTextExtent(bar_.GetStatusText(panel)).x + bar_.FromDIP(spare);
    };
    const bool hasNotice = !bar_.GetStatusText(panelNotice).empty();
    const int notice = hasNotice ? needed(panelNotice) : -shares[panelNotice];
    const int sum = hasNotice ? 11 : 12;
    const int rest = bar_.GetSize().x - std::max(notice, 0);
    if (rest <= 0)
        return; // the bar has no size yet
    const int pc = needed(panelPC);
    const std::array<int, MainWindowControls::statusPanels> widths{
        pc > rest * shares[panelPC] / sum ? pc : -shares[panelPC], -shares[panelController], notice,
        -shares[panelResult]};
    if (widths == widths_)
        return;
    widths_ = widths;
    bar_.SetStatusWidths(MainWindowControls::statusPanels, widths.data());
}

} // namespace vantrel
