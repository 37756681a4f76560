#pragma once

#include "support/ToolkitPort.h"

#include <deque>
#include <functional>
#include <utility>

#include <gtest/gtest.h>
#include <wx/app.h>
#include <wx/dialog.h>
#include <wx/modalhook.h>
#include <wx/timer.h>

namespace vantrel::tests {

/// Acts on the modal dialogs that open while it lives, in their order. A dialog that nobody expects
/// is closed at once and fails the test, and so does an expected one that never opens.
class ModalScript : public wxModalDialogHook {
  public:
    ModalScript() { Register(); }
    ~ModalScript() override {
        Unregister();
        EXPECT_TRUE(steps_.empty()) << steps_.size() << " expected dialogs did not open";
    }

    /// Looks at the dialog instead of showing it, and answers with a button's id.
    void answer(std::function<int(wxDialog&)> look) { steps_.push_back({std::move(look), {}}); }
    /// Acts while the dialog is really open, and has to end it.
    void act(std::function<void(wxDialog&)> action) { steps_.push_back({{}, std::move(action)}); }
    /// From now on the dialogs that nobody expects are all right, and are acted on in this way.
    void actOnOthers(std::function<void(wxDialog&)> action) { others_ = std::move(action); }

  private:
    struct Step {
        std::function<int(wxDialog&)> look;
        std::function<void(wxDialog&)> action;
    };

    /// Building a dialog may let events run, so the action waits until it really is open.
    class Opened : public wxTimer {
      public:
        void wait(std::function<void()> action, const wxDialog& dialog) {
            action_ = std::move(action);
            dialog_ = &dialog;
            Start(2);
        }
        void Notify() override {
            if (!isWaiting(*dialog_))
                return;
            if (action_)
                wxTheApp->CallAfter([this, action = std::exchange(action_, {})] {
                    Stop();
                    action();
                });
            // A box of the system's own takes events in its own way.
            wxWakeUpIdle();
        }

      private:
        std::function<void()> action_;
        const wxDialog* dialog_ = nullptr;
    };

    int Enter(wxDialog* dialog) override {
        // Some dialogs announce themselves twice.
        if (dialog == open_)
            return wxID_NONE;
        if (steps_.empty() && others_)
            steps_.push_back({{}, others_});
        if (steps_.empty()) {
            ADD_FAILURE() << "unexpected dialog: " << dialog->GetTitle();
            return wxID_CANCEL;
        }
        const Step step = std::move(steps_.front());
        steps_.pop_front();
        if (step.look)
            return step.look(*dialog);
        open_ = dialog;
        opened_.wait([this, action = step.action] { action(*open_); }, *dialog);
        return wxID_NONE;
    }

    void Exit(wxDialog* dialog) override {
        if (dialog != open_)
            return;
        opened_.Stop();
        open_ = nullptr;
    }

    std::deque<Step> steps_;
    std::function<void(wxDialog&)> others_;
    Opened opened_;
    wxDialog* open_ = nullptr; ///< the innermost dialog that is being acted on
};

} // namespace vantrel::tests
