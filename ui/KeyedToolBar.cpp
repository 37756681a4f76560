#include "ui/KeyedToolBar.h"

#include "ui/IconSet.h"

namespace vantrel {

namespace {
constexpr int iconSize = 16;
}

KeyedToolBar::KeyedToolBar(wxWindow* parent, const wxString& name,
                           const std::vector<Button>& buttons)
    : wxToolBar(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize,
                wxTB_FLAT | wxTB_NODIVIDER | wxTB_HORIZONTAL, name) {
    SetToolBitmapSize(icon(buttons.front().key, wxSize(iconSize, iconSize)).GetDefaultSize());
    for (const auto& button : buttons) {
        if (button.kind == Kind::Separator) {
            AddSeparator();
            continue;
        }
        const int id = wxWindow::NewControlId();
        ids_.emplace(button.key, id);
        AddTool(id, wxString(), icon(button.key, wxSize(iconSize, iconSize)), wxString(),
                button.kind == Kind::Check ? wxITEM_CHECK : wxITEM_NORMAL);
    }
    Realize();
    Bind(wxEVT_TOOL, &KeyedToolBar::pressed, this);
}

int KeyedToolBar::idOf(std::string_view key) const {
    const auto found = ids_.find(key);
    return found == ids_.end() ? wxID_NONE : found->second;
}

void KeyedToolBar::setPressed(std::string_view key, bool pressed) {
    if (!has(key))
        return;
    shouldBePressed_[idOf(key)] = pressed;
    if (GetToolState(idOf(key)) != pressed)
        ToggleTool(idOf(key), pressed);
}

bool KeyedToolBar::isPressed(std::string_view key) const {
    return has(key) && GetToolState(idOf(key));
}

void KeyedToolBar::setEnabled(std::string_view key, bool enabled) {
    if (has(key) && GetToolEnabled(idOf(key)) != enabled)
        EnableTool(idOf(key), enabled);
}

bool KeyedToolBar::isEnabled(std::string_view key) const {
    return has(key) && IsEnabled() && GetToolEnabled(idOf(key));
}

void KeyedToolBar::setToolTip(std::string_view key, const wxString& text) {
    if (!has(key))
        return;
    SetToolShortHelp(idOf(key), text);
    if (auto* tool = FindById(idOf(key)))
        tool->SetLabel(text);
}

wxString KeyedToolBar::toolTip(std::string_view key) const {
    return has(key) ? GetToolShortHelp(idOf(key)) : wxString();
}

std::vector<std::string> KeyedToolBar::keys() const {
    std::vector<std::string> all;
    for (const auto& [key, id] : ids_)
        all.push_back(key);
    return all;
}

void KeyedToolBar::pressed(wxCommandEvent& event) {
    for (const auto& [key, id] : ids_) {
        if (id != event.GetId())
            continue;
        if (const auto wanted = shouldBePressed_.find(id); wanted != shouldBePressed_.end())
            ToggleTool(id, wanted->second);
        if (onPressed)
            onPressed(key);
        return;
    }
    event.Skip();
}

} // namespace vantrel
