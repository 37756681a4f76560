#pragma once

#include "history/HistoryRepository.h"
#include "history/HistoryStore.h"

#include <string>
#include <unordered_map>
#include <vector>

namespace vantrel {

/// One walk through the history, from the latest entry to the first.
class HistoryLog {
  public:
    HistoryLog(const HistoryRepository& repository, const HistoryFilter& filter)
        : repository_(repository), filter_(filter) {}

    Result<std::vector<HistoryEntry>> entries();

  private:
    /// Whether the entry differs from all before it in what the filter names.
    Result<bool> concerns(git_commit* commit);
    /// What the filter names, as it was then: the identity of the robot's folder or of its file;
    /// empty where there was none.
    Result<std::string> trace(const git_oid& commit);
    Result<std::string> traceIn(const git_tree* root);
    bool isInTime(const git_commit* commit) const;

    const HistoryRepository& repository_;
    const HistoryFilter& filter_;
    std::unordered_map<std::string, std::string> traces_{};     ///< by commit
    std::unordered_map<std::string, std::string> fileTraces_{}; ///< by the robot's folder
};

} // namespace vantrel
