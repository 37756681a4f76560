#pragma once

#include "link/ProgressPanel.h"

#include <functional>

#include <wx/dialog.h>

class wxButton;
class wxGauge;
class wxStaticText;

namespace vantrel {

class ColourSwatch;

struct ApplicationState;
class MessageTable;

/// The progress window: shows what the panel holds and hands it the press of Cancel. It stays on
/// top of all windows and never takes the focus.
class frmMsgStat : public wxDialog, public ProgressView {
  public:
    /// Loads the window hidden and attaches it to the panel. `yield` lets pending events run once,
    /// and then paints.
    frmMsgStat(ProgressPanel& panel, const MessageTable& messages, const ApplicationState& state,
               std::function<void()> yield);
    ~frmMsgStat() override;

    void refresh(const ProgressPanel& panel) override;
    void yield() override;
    void unload() override;

    /// The window itself may go later, when the panel is no longer there.
    bool Destroy() override;

    /// The next show is the first one of a command: the window is placed anew.
    void beginCommand() { placed_ = false; }

    /// After a change of language or font: the texts and the font of the application state.
    void applyCaptions();

    /// The program ends with its main window, not with this one.
    bool ShouldPreventAppExit() const override { return false; }

  private:
    void detach();
    void buildControls();
    void bindEvents();
    void showTexts(const ProgressPanel& panel);
    void showColour(const PlaceMark& mark);
    void showControls(const ProgressPanel& panel);
    void showOrHide(bool visible);
    void pressCancel();

    ProgressPanel* panel_;
    const MessageTable& messages_;
    const ApplicationState& state_;
    std::function<void()> yield_;
    wxStaticText* lblMsg_ = nullptr;
    wxGauge* pgbInf_ = nullptr;
    wxStaticText* lblWaiting_ = nullptr;
    ColourSwatch* shpPlace_ = nullptr; ///< the colour of the controller that it names
    wxStaticText* lblPlace_ = nullptr;
    wxStaticText* lblPace_ = nullptr;
    wxButton* cmdCancel_ = nullptr;
    bool placed_ = false;
};

} // namespace vantrel
