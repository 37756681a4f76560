#pragma once

#include <functional>
#include <utility>

#include <wx/modalhook.h>

namespace vantrel {

/// Tells of each modal dialog, message boxes included, before it opens.
class ModalWatch : public wxModalDialogHook {
  public:
    explicit ModalWatch(std::function<void(wxDialog&)> onOpening)
        : onOpening_(std::move(onOpening)) {
        Register();
    }
    ~ModalWatch() override { Unregister(); }

  private:
    int Enter(wxDialog* dialog) override {
        onOpening_(*dialog);
        return wxID_NONE;
    }
    void Exit(wxDialog*) override {}

    std::function<void(wxDialog&)> onOpening_;
};

} // namespace vantrel
