#pragma once

#include "files/CommandScopes.h"
#include "files/TransferServices.h"

#include <string>
#include <unordered_set>
#include <vector>

namespace vantrel {

/// Copies files from elsewhere on the PC into the PC folder, with the progress and the overwrite
/// questions of a transfer. Each is complete under its name or was not copied at all.
class CopyIntoFolder {
  public:
    explicit CopyIntoFolder(const TransferServices& services);

    /// Absolute paths. Folders are passed over with a message, and what is in the PC folder already
    /// stays without one.
    CommandOutcome run(const std::vector<std::string>& paths);

  private:
    void take(const std::string& path);
    bool isInPCFolder(const std::string& path) const;
    bool mayTakePlace(const std::string& name);

    TransferServices with_;
    std::string title_;
    CommandProgress progress_;
    CommandOutcome outcome_;
    bool overwriteAll_ = false;
    std::unordered_set<std::string> brought_; ///< names as the system compares them
};

} // namespace vantrel
