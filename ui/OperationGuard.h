#pragma once

#include <functional>

#include <wx/event.h>
#include <wx/eventfilter.h>

class wxWindow;

namespace vantrel {

/// The one place that refuses the operator's actions while an operation runs: as long as it is
/// locked, no command, key, choice, mouse press, timer or close reaches the guarded window or
/// anything in it. Other windows (progress, questions, message boxes) are not touched.
class OperationGuard : public wxEventFilter {
  public:
    OperationGuard();
    ~OperationGuard() override;
    OperationGuard(const OperationGuard&) = delete;
    OperationGuard& operator=(const OperationGuard&) = delete;

    /// The window that is closed to the operator while locked; null when it is gone.
    void guard(wxWindow* window) { guarded_ = window; }

    /// Calls nest.
    void lock();
    void unlock();
    bool isLocked() const { return depth_ > 0; }

    /// Called when the first of nested locks is set: an operation begins.
    std::function<void()> onBegun;

    /// Lets pending events run once, locked; does nothing when called from within itself.
    void yield();

  private:
    int FilterEvent(wxEvent& event) override;
    bool concernsGuarded(const wxEvent& event) const;

    wxWindow* guarded_ = nullptr;
    int depth_ = 0;
    bool yielding_ = false;
};

/// Locks for as long as it lives.
class OperationLock {
  public:
    explicit OperationLock(OperationGuard& guard) : guard_(guard) { guard_.lock(); }
    ~OperationLock() { guard_.unlock(); }
    OperationLock(const OperationLock&) = delete;
    OperationLock& operator=(const OperationLock&) = delete;

  private:
    OperationGuard& guard_;
};

} // namespace vantrel
