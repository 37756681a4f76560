#pragma once

#include "files/PaneRows.h"
#include "files/PaneWindow.h"

#include <algorithm>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace vantrel::tests {

/// A list control without pixels: keeps the names it shows and selects as the real one does.
class FakePaneList : public PaneList {
  public:
    void show(const PaneRows& rows) override {
        names.clear();
        for (std::size_t row = 0; row < rows.size(); ++row)
            names.push_back(rows.name(row));
        selected = names.empty() ? std::vector<std::size_t>{} : std::vector<std::size_t>{0};
        ++shows;
    }
    void update(const PaneRows& rows, const std::vector<std::size_t>& wanted,
                std::optional<std::size_t> focus) override {
        show(rows);
        --shows;
        ++updates;
        selected = wanted;
        focused = focus;
    }
    std::vector<std::size_t> selectedRows() const override { return selected; }
    std::optional<std::size_t> selectedRow() const override {
        if (selected.empty())
            return std::nullopt;
        const bool isSelected =
            focused && std::find(selected.begin(), selected.end(), *focused) != selected.end();
        return isSelected ? *focused : selected.front();
    }
    void select(const std::vector<std::size_t>& rows) override { selected = rows; }
    void focus() override {
        ++focuses;
        focusedWhileLocked = focusedWhileLocked || (isLocked && isLocked());
    }

    /// As an operator's click with Ctrl on each of these names.
    void click(const std::vector<std::string>& wanted) {
        selected.clear();
        for (std::size_t row = 0; row < names.size(); ++row)
            if (std::find(wanted.begin(), wanted.end(), names[row]) != wanted.end())
                selected.push_back(row);
    }
    std::vector<std::string> selectedNames() const {
        std::vector<std::string> found;
        for (const std::size_t row : selected)
            found.push_back(names.at(row));
        return found;
    }

    std::vector<std::string> names;
    std::vector<std::size_t> selected;
    std::optional<std::size_t> focused; ///< the row with the keyboard focus
    int shows = 0;
    int updates = 0;
    int focuses = 0;
    bool focusedWhileLocked = false;
    std::function<bool()> isLocked;
};

/// The main window without pixels. `onYield` stands for the events that a yield lets in; as in the
/// real window it does not run again inside itself.
class FakePaneWindow : public PaneWindow {
  public:
    FakePaneWindow() {
        pc.isLocked = [this] { return lockDepth > 0; };
        controller.isLocked = pc.isLocked;
    }

    FakePaneList& list(ActiveSide side) override {
        return side == ActiveSide::PC ? pc : controller;
    }
    int filterIndex(ActiveSide side) const override {
        if (onFilterIndex)
            onFilterIndex(side);
        return side == ActiveSide::PC ? pcFilter : controllerFilter;
    }
    void setFilterChoices(ActiveSide side, const std::vector<std::string>& choices) override {
        (side == ActiveSide::PC ? pcChoices : controllerChoices) = choices;
        (side == ActiveSide::PC ? pcFilter : controllerFilter) = 0;
    }
    void setStatus(ActiveSide side, const std::string& text) override {
        (side == ActiveSide::PC ? pcStatus : controllerStatus) = text;
    }
    void setResult(const std::string& text) override { result = text; }
    void setBusyPointer(bool busy) override {
        busyDepth += busy ? 1 : -1;
        deepestBusy = std::max(deepestBusy, busyDepth);
    }
    void setLocked(bool locked) override {
        lockDepth += locked ? 1 : -1;
        locks += locked ? 1 : 0;
    }
    void yield() override {
        ++yields;
        if (yielding_ || !onYield)
            return;
        yielding_ = true;
        onYield();
        yielding_ = false;
    }

    FakePaneList pc;
    FakePaneList controller;
    int pcFilter = 0;
    int controllerFilter = 0;
    std::vector<std::string> pcChoices;
    std::vector<std::string> controllerChoices;
    std::string pcStatus;
    std::string controllerStatus;
    std::string result;
    int busyDepth = 0;
    int deepestBusy = 0;
    int lockDepth = 0;
    int locks = 0;
    int yields = 0;
    std::function<void()> onYield;
    std::function<void(ActiveSide)> onFilterIndex; ///< before a list is filled

  private:
    bool yielding_ = false;
};

} // namespace vantrel::tests
