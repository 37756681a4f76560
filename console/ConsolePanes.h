#pragma once

#include "files/PaneRows.h"
#include "files/PaneWindow.h"

#include <cstddef>
#include <limits>
#include <optional>
#include <string>
#include <vector>

namespace vantrel {

/// The rows of a pane and which of them are selected, in memory.
class ConsoleList final : public PaneList {
  public:
    void show(const PaneRows& rows) override {
        selected_.clear();
        if (rows.size() > 0)
            selected_.push_back(0);
    }
    void update(const PaneRows&, const std::vector<std::size_t>& selected,
                std::optional<std::size_t>) override {
        selected_ = selected;
    }
    std::vector<std::size_t> selectedRows() const override { return selected_; }
    std::optional<std::size_t> selectedRow() const override {
        return selected_.empty() ? std::nullopt : std::optional(selected_.front());
    }
    void select(const std::vector<std::size_t>& rows) override { selected_ = rows; }
    void focus() override {}

  private:
    std::vector<std::size_t> selected_;
};

/// Two panes that nobody sees. No filter hides a file whose name has a point.
class ConsolePanes final : public PaneWindow {
  public:
    PaneList& list(ActiveSide side) override { return side == ActiveSide::PC ? pc_ : controller_; }
    int filterIndex(ActiveSide) const override { return std::numeric_limits<int>::max(); }
    void setFilterChoices(ActiveSide, const std::vector<std::string>&) override {}
    void setStatus(ActiveSide, const std::string&) override {}
    void setResult(const std::string&) override {}
    void setBusyPointer(bool) override {}
    void setLocked(bool) override {}
    void yield() override {}

  private:
    ConsoleList pc_;
    ConsoleList controller_;
};

} // namespace vantrel
