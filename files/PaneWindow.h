#pragma once

#include "base/ApplicationState.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace vantrel {

class PaneRows;

/// One pane's list control, `lsvPC` or `lsvCtrl`, as the file operations see it.
class PaneList {
  public:
    virtual ~PaneList() = default;
    /// Shows these rows in place of the old ones and selects the first. The rows are borrowed until
    /// the next call.
    virtual void show(const PaneRows& rows) = 0;
    /// Shows these rows, which somebody else has changed, with this selection, and leaves what the
    /// operator sees at its place as far as it is still there.
    virtual void update(const PaneRows& rows, const std::vector<std::size_t>& selected,
                        std::optional<std::size_t> focused) = 0;
    /// Positions of the selected rows, in list order.
    virtual std::vector<std::size_t> selectedRows() const = 0;
    /// The same number at a lower price.
    virtual std::size_t selectedCount() const { return selectedRows().size(); }
    /// The row that is meant where only one can be: the one with the keyboard focus as long as it
    /// is selected, else the first selected one.
    virtual std::optional<std::size_t> selectedRow() const = 0;
    /// Selects these rows and no others, and focuses the first of them.
    virtual void select(const std::vector<std::size_t>& rows) = 0;
    virtual void focus() = 0;
};

/// The main window as the file operations see it.
class PaneWindow {
  public:
    virtual ~PaneWindow() = default;
    virtual PaneList& list(ActiveSide side) = 0;
    /// The chosen entry of the pane's filter box, from 0.
    virtual int filterIndex(ActiveSide side) const = 0;
    /// Replaces the entries of the pane's filter box and chooses the first, without an event.
    virtual void setFilterChoices(ActiveSide side, const std::vector<std::string>& choices) = 0;
    /// The status-bar panel "PC" or "Ctrl".
    virtual void setStatus(ActiveSide side, const std::string& text) = 0;
    /// What the last command came to, on one line; empty before the first one.
    virtual void setResult(const std::string& text) = 0;
    /// Shows the busy pointer until called with false; calls nest.
    virtual void setBusyPointer(bool busy) = 0;
    /// Refuses every command, key, choice, drop, timer and close until unlocked; calls nest.
    virtual void setLocked(bool locked) = 0;
    /// Lets pending events run once; refuses re-entry.
    virtual void yield() = 0;
};

/// Shows the busy pointer for as long as it lives.
class BusyPointer {
  public:
    explicit BusyPointer(PaneWindow& window) : window_(window) { window_.setBusyPointer(true); }
    ~BusyPointer() { window_.setBusyPointer(false); }
    BusyPointer(const BusyPointer&) = delete;
    BusyPointer& operator=(const BusyPointer&) = delete;

  private:
    PaneWindow& window_;
};

} // namespace vantrel
