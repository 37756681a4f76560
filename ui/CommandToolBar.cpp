#include "ui/CommandToolBar.h"

#include "lang/MessageTable.h"
#include "ui/look/IconSet.h"
#include "ui/look/WxText.h"

#include <algorithm>
#include <cmath>

namespace vantrel {

namespace {

constexpr int usualIconSide = 16;

wxBitmapBundle iconOf(const CommandRow& command, int side) {
    return icon(command.icon, wxSize(side, side));
}

} // namespace

CommandToolBar::CommandToolBar(wxWindow* parent, const wxString& name,
                               std::span<const CommandRow> table, CommandPlace place)
    : wxToolBar(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize,
                wxTB_FLAT | wxTB_NODIVIDER | wxTB_HORIZONTAL, name),
      place_(place), iconSide_(usualIconSide) {
    const auto commands = commandsAt(table, place);
    SetToolBitmapSize(iconOf(*commands.front(), iconSide_).GetDefaultSize());
    for (const CommandRow* command : commands) {
        if (!command) {
            AddSeparator();
            continue;
        }
        const int id = wxWindow::NewControlId();
        const bool isCheck = command->indicator != CommandIndicator::None;
        AddTool(id, wxString(), iconOf(*command, iconSide_), wxString(),
                isCheck ? wxITEM_CHECK : wxITEM_NORMAL);
        buttons_.push_back({command, id});
    }
    Realize();
    Bind(wxEVT_TOOL, &CommandToolBar::pressed, this);
}

void CommandToolBar::enlarge(double factor) {
    const int side = int(std::lround(usualIconSide * factor));
    if (side == iconSide_)
        return;
    iconSide_ = side;
    SetToolBitmapSize(iconOf(*buttons_.front().command, side).GetDefaultSize());
    for (const Button& button : buttons_)
        SetToolNormalBitmap(button.id, iconOf(*button.command, side));
    Realize();
}

void CommandToolBar::applyTips(const MessageTable& messages) {
    for (const Button& button : buttons_) {
        const wxString tip = toWx(messages.getMessage(button.command->tip));
        SetToolShortHelp(button.id, tip);
        FindById(button.id)->SetLabel(tip);
    }
}

void CommandToolBar::applyStates(const CommandInput& input) {
    for (Button& button : buttons_) {
        const CommandState state = commandState(*button.command, place_, input);
        if (GetToolEnabled(button.id) != state.enabled)
            EnableTool(button.id, state.enabled);
        button.shouldBePressed = state.checked;
        if (GetToolState(button.id) != state.checked)
            ToggleTool(button.id, state.checked);
    }
}

int CommandToolBar::idOf(std::string_view key) const {
    const auto found =
        std::ranges::find(buttons_, key, [](const Button& button) { return button.command->icon; });
    return found == buttons_.end() ? int(wxID_NONE) : found->id;
}

bool CommandToolBar::isPressed(std::string_view key) const {
    const int id = idOf(key);
    return id != wxID_NONE && GetToolState(id);
}

bool CommandToolBar::isEnabled(std::string_view key) const {
    const int id = idOf(key);
    return id != wxID_NONE && IsEnabled() && GetToolEnabled(id);
}

wxString CommandToolBar::toolTip(std::string_view key) const {
    const int id = idOf(key);
    return id == wxID_NONE ? wxString() : GetToolShortHelp(id);
}

std::vector<std::string> CommandToolBar::keys() const {
    std::vector<std::string> all;
    for (const Button& button : buttons_)
        all.emplace_back(button.command->icon);
    return all;
}

void CommandToolBar::press(std::string_view key) {
    wxCommandEvent event(wxEVT_TOOL, idOf(key));
    event.SetEventObject(this);
    HandleWindowEvent(event);
}

void CommandToolBar::pressed(wxCommandEvent& event) {
    const auto button = std::ranges::find(buttons_, event.GetId(), &Button::id);
    if (button == buttons_.end())
        return event.Skip();
    if (GetToolState(button->id) != button->shouldBePressed)
        ToggleTool(button->id, button->shouldBePressed);
    if (onPressed)
        onPressed(*button->command, place_);
}

} // namespace vantrel
