#pragma once

#include "files/TransferPace.h"
#include "files/TransferServices.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace vantrel {

/// Keeps the main window locked while a command runs.
class WindowLock {
  public:
    explicit WindowLock(PaneWindow& window);
    ~WindowLock();
    WindowLock(const WindowLock&) = delete;
    WindowLock& operator=(const WindowLock&) = delete;

  private:
    PaneWindow& window_;
};

/// Shows a command's progress, with the Cancel button and a cleared cancel text. However the
/// command ends, the progress is hidden and the session's `DisplayMonitor` on again.
class CommandProgress {
  public:
    /// `label` stands alone first and before the file's name in each step; `place` names the
    /// controller that the command has to do with, in its questions too. Without one the command
    /// works on the PC alone, and its steps wait for no controller.
    CommandProgress(const TransferServices& services, const std::string& title, std::string label,
                    std::string place);
    ~CommandProgress();
    CommandProgress(const CommandProgress&) = delete;
    CommandProgress& operator=(const CommandProgress&) = delete;

    /// The next file of a command that goes file by file: shows it and lets a press of Cancel in.
    /// False when the operator has cancelled.
    bool next(const std::string& name, std::size_t item, std::size_t count);
    bool isCancelled() const;

    /// From now on the progress says how far these files are, which are handled in this order, and
    /// how long the rest may take where the PC's listing has their sizes. `wasTransferred` as for
    /// `TransferPace`.
    void measure(const std::vector<std::string>& names, bool onPC,
                 TransferPace::Transferred wasTransferred);

  private:
    TransferServices with_;
    std::string label_;
    bool hasController_;
    std::optional<TransferPace> pace_;
};

} // namespace vantrel
