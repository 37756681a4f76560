#pragma once

#include <functional>

#include <wx/event.h>
#include <wx/eventfilter.h>

class wxWindow;

namespace vantrel {

/// The one place that refuses the operator's actions while an operation runs, or for a moment: as
/// long as it is locked, no command, key, choice, mouse press, timer or close reaches the guarded
/// window or anything in it. Other windows (progress, questions, message boxes) are not touched.
class OperationGuard : public wxEventFilter {
  public:
    /// `busy` is true as long as an operation runs; nobody else writes it.
    explicit OperationGuard(bool& busy);
    ~OperationGuard() override;
    OperationGuard(const OperationGuard&) = delete;
    OperationGuard& operator=(const OperationGuard&) = delete;

    /// The window that is closed to the operator while locked; null when it is gone.
    void guard(wxWindow* window) { guarded_ = window; }

    /// An operation begins or ends. Calls nest.
    void lock();
    void unlock();
    /// Whether the operator's actions are refused: for an operation or for a moment.
    bool isLocked() const { return operations_ > 0 || moments_ > 0; }

    /// Called when the first of nested operations begins.
    std::function<void()> onBegun;
    /// Called when the last of nested operations has ended.
    std::function<void()> onEnded;

    /// Lets pending events run once, locked; does nothing when called from within itself.
    void yield();

  private:
    friend class ActionsRefused;

    int FilterEvent(wxEvent& event) override;
    bool concernsGuarded(const wxEvent& event) const;

    wxWindow* guarded_ = nullptr;
    bool& busy_;
    int operations_ = 0;
    int moments_ = 0;
    bool yielding_ = false;
};

/// Refuses the operator's actions for as long as it lives, without an operation that runs: while
/// windows are built or painted.
class ActionsRefused {
  public:
    explicit ActionsRefused(OperationGuard& guard) : guard_(guard) { ++guard_.moments_; }
    ~ActionsRefused() { --guard_.moments_; }
    ActionsRefused(const ActionsRefused&) = delete;
    ActionsRefused& operator=(const ActionsRefused&) = delete;

  private:
    OperationGuard& guard_;
};

} // namespace vantrel
