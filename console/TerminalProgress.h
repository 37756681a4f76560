#pragma once

#include "console/ConsoleWorld.h"
#include "link/ProgressPanel.h"

#include <cstddef>
#include <string>

namespace vantrel {

/// The progress as a line of the terminal that is written over and over, and the way in which an
/// interruption reaches what runs: as a press of Cancel.
class TerminalProgress final : public ProgressView {
  public:
    TerminalProgress(const ConsoleWorld& world, ProgressPanel& panel);
    ~TerminalProgress() override;
    TerminalProgress(const TerminalProgress&) = delete;
    TerminalProgress& operator=(const TerminalProgress&) = delete;

    void refresh(const ProgressPanel& panel) override;
    void yield() override;
    void unload() override {}

  private:
    void show(const std::string& text);

    const ConsoleWorld& world_;
    ProgressPanel& panel_;
    std::string shown_;
};

} // namespace vantrel
