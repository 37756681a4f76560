#pragma once

class wxFrame;
class wxKeyEvent;

namespace vantrel {

class CommandRunner;
class MainCommands;
struct ApplicationState;
struct MainWindowControls;

/// The keys that the main window takes before the control that has the focus. Everything is
/// borrowed and outlives it.
class MainWindowKeys {
  public:
    MainWindowKeys(wxFrame& window, const MainWindowControls& controls,
                   const ApplicationState& state, MainCommands& commands,
                   const CommandRunner& runner)
        : window_(window), controls_(controls), state_(state), commands_(commands),
          runner_(runner) {}

    /// Acts on a key of the window's, and skips another one.
    void take(wxKeyEvent& event) const;

  private:
    bool isViewerKey(const wxKeyEvent& event) const;
    bool isPaneKey(const wxKeyEvent& event) const;
    void functionKey(wxKeyEvent& event) const;

    wxFrame& window_;
    const MainWindowControls& controls_;
    const ApplicationState& state_;
    MainCommands& commands_;
    const CommandRunner& runner_;
};

} // namespace vantrel
