#pragma once

#include "support/ToolkitPort.h"

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <functional>
#include <stdexcept>
#include <string>

#include <gtest/gtest.h>
#include <wx/app.h>
#include <wx/arrstr.h>
#include <wx/button.h>
#include <wx/checkbox.h>
#include <wx/dialog.h>
#include <wx/evtloop.h>
#include <wx/notebook.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>
#include <wx/toplevel.h>
#include <wx/uiaction.h>

// What a test does with real windows. Nothing here waits for a fixed time: events are run until
// what is waited for has happened, and a test fails when it has not after some seconds.

namespace vantrel::tests {

/// Runs the events that are pending now, and those that they cause, up to a bound.
inline void runEvents() {
    auto* const loop = wxEventLoopBase::GetActive();
    for (int round = 0; round < 1000 && loop->Pending(); ++round)
        loop->Dispatch();
    loop->ProcessIdle();
}

/// Runs events until the condition holds; false when it does not within five seconds.
inline bool waitFor(const std::function<bool()>& condition) {
    using Clock = std::chrono::steady_clock;
    const auto deadline = Clock::now() + std::chrono::seconds(5);
    constexpr unsigned long pause = 10; // milliseconds without an event
    while (!condition()) {
        if (Clock::now() > deadline)
            return false;
        wxEventLoopBase::GetActive()->DispatchTimeout(pause);
        wxTheApp->ProcessPendingEvents();
        wxEventLoopBase::GetActive()->ProcessIdle();
    }
    return true;
}

/// The control of this name in the window; a missing one fails the test.
template <typename Control>
Control& control(wxWindow& window, const std::string& name) {
    auto* const found = dynamic_cast<Control*>(wxWindow::FindWindowByName(name, &window));
    if (!found)
        throw std::runtime_error("no such control: " + name);
    return *found;
}

inline std::string labelOf(wxWindow& window, const std::string& name) {
    return control<wxWindow>(window, name).GetLabel().utf8_string();
}

/// Presses a button as the operator can: it has to be visible and enabled.
inline void click(wxWindow& window, const std::string& name) {
    auto& button = control<wxButton>(window, name);
    ASSERT_TRUE(button.IsShown() && button.IsEnabled()) << name << " cannot be clicked";
    wxCommandEvent event(wxEVT_BUTTON, button.GetId());
    event.SetEventObject(&button);
    button.Command(event);
}

inline void tick(wxWindow& window, const std::string& name, bool ticked) {
    auto& box = control<wxCheckBox>(window, name);
    box.SetValue(ticked);
    wxCommandEvent event(wxEVT_CHECKBOX, box.GetId());
    event.SetEventObject(&box);
    event.SetInt(ticked ? 1 : 0);
    box.HandleWindowEvent(event);
}

/// Replaces the text of a box, as typing does.
inline void type(wxWindow& window, const std::string& name, const std::string& text) {
    control<wxTextCtrl>(window, name).SetValue(wxString::FromUTF8(text.data(), text.size()));
}

/// Gives a key to the window before its controls see it; true when the window kept it to itself.
inline bool swallows(wxWindow& window, int keyCode) {
    wxKeyEvent event(wxEVT_CHAR_HOOK);
    event.m_keyCode = keyCode;
    event.SetEventObject(&window);
    return window.HandleWindowEvent(event);
}

/// A real key press, as from the keyboard, to the window that is active.
inline void pressKey(int keyCode, int modifiers = wxMOD_NONE) {
    strikeKey(keyCode, modifiers);
}

/// A real key press, and all that follows from it.
inline void pressKeyAndWait(int keyCode, int modifiers = wxMOD_NONE) {
    pressKey(keyCode, modifiers);
    outwaitToolkit();
}

/// Whether a modal dialog still waits for its end; some ports keep one modal, hidden already, until
/// the call that showed it returns.
inline bool isOpen(const wxDialog& dialog) {
    return dialog.IsModal() && dialog.IsShown();
}

/// Shows the dialog modally and acts while it is open. An action that leaves it open fails.
inline int whileModal(wxDialog& dialog, const std::function<void()>& action) {
    dialog.CallAfter([&] {
        action();
        if (!isOpen(dialog))
            return;
        ADD_FAILURE() << "the dialog is still open";
        dialog.EndModal(wxID_NONE);
    });
    return dialog.ShowModal();
}

/// The room that the text takes with its font.
inline wxSize drawnSize(const wxStaticText& text) {
    wxSize size;
    for (const wxString& line : wxSplit(text.GetLabelText(), '\n', '\0')) {
        const wxSize extent = text.GetTextExtent(line);
        size = wxSize(std::max(size.x, extent.x), size.y + extent.y);
    }
    return size;
}

/// What of the window's captions is not wholly visible, one line per control.
inline std::string cutOffCaptions(wxWindow& window) {
    std::string complaints;
    const wxRect inside(window.GetClientSize());
    for (wxWindow* const child : window.GetChildren()) {
        if (!child->IsShown() || child->IsTopLevel())
            continue;
        const bool shortensItself = child->HasFlag(wxST_ELLIPSIZE_MIDDLE | wxST_ELLIPSIZE_END);
        const bool hasCaption = dynamic_cast<wxStaticText*>(child) ||
                                dynamic_cast<wxButton*>(child) || dynamic_cast<wxCheckBox*>(child);
        const auto size = child->GetSize();
        auto best = child->GetBestSize();
        // GTK may keep the size it asked for with the font that a hidden text had before, smaller
        // or larger than the text is now; what is drawn is measured too, a little otherwise.
        if (const auto* const text = dynamic_cast<wxStaticText*>(child)) {
            const auto drawn = drawnSize(*text);
            best.DecTo(drawn);
            best.IncTo(drawn * 9 / 10);
        }
        const bool tooSmall = best.x > size.x || best.y > size.y;
        // A page is placed by its book, in the book's own coordinates.
        const bool sticksOut =
            !dynamic_cast<wxNotebook*>(&window) && !inside.Contains(child->GetRect());
        if ((hasCaption && !shortensItself && tooSmall) || sticksOut)
            complaints += (child->GetName() + ": " + child->GetLabel() + '\n').utf8_string();
        complaints += cutOffCaptions(*child);
    }
    return complaints;
}

/// No control of the window shows less than its whole caption, once the window is laid out.
inline void expectNothingCutOff(wxWindow& window) {
    waitFor([&] { return cutOffCaptions(window).empty(); });
    EXPECT_EQ(cutOffCaptions(window), "");
}

/// Saves a picture of a shown window to the folder that VANTREL_SCREENSHOTS names, if it is set.
inline void saveScreenshot(const wxTopLevelWindow& window, const std::string& name) {
    const char* const folder = std::getenv("VANTREL_SCREENSHOTS");
    if (!folder)
        return;
    // The window manager draws the frame on its own time; half a second is for the picture only.
    const auto until = std::chrono::steady_clock::now() + std::chrono::milliseconds(500);
    waitFor([&] { return std::chrono::steady_clock::now() > until; });
    const auto at = window.GetScreenRect();
    const auto command = "import -window root -crop " + std::to_string(at.width) + 'x' +
                         std::to_string(at.height) + '+' + std::to_string(at.x) + '+' +
                         std::to_string(at.y) + " +repage '" + folder + '/' + name + ".png'";
    EXPECT_EQ(std::system(command.c_str()), 0) << command;
}

} // namespace vantrel::tests
