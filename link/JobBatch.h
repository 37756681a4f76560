#pragma once

#include "link/TransferTools.h"

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace vantrel {

class LinkConnection;
class LocalJobList;
class MessageTable;
class OperatorTalk;
class SessionProgress;
struct SessionErrorRecord;
struct SessionProperties;

/// Transfers a list of files one after the other, in list order, passing over the jobs that belong
/// to the PC alone. One object serves one run.
class JobBatch {
  public:
    using Transfer = std::function<TransferOutcome(const std::string& entry, std::int32_t index,
                                                   bool overwriteAll)>;

    struct Tools {
        const SessionProperties& properties;
        const LinkConnection& link;
        SessionProgress& progress;
        SessionErrorRecord& error;
        const LocalJobList& localJobs;
        const MessageTable& messages;
        OperatorTalk& talk;
        std::vector<EntryEnd>& ends; ///< filled, entry by entry
    };

    JobBatch(const Tools& tools, Transfer transfer)
        : tools_(tools), transfer_(std::move(transfer)) {}

    /// True when every entry was handled. Hides the progress.
    bool run(const std::vector<std::string>& entries);

  private:
    /// `Done` at the end of the list, else what ended it early.
    TransferOutcome runThrough(const std::vector<std::string>& entries);
    TransferOutcome passOver(const std::string& entry, std::int32_t index, std::int32_t count);
    TransferOutcome handle(const std::string& entry, std::int32_t index, std::int32_t count);
    /// What a failure or a cancel adds to the error record: the entry's index.
    void record(TransferOutcome outcome, std::int32_t index);
    void tellSkipped() const;

    Tools tools_;
    Transfer transfer_;
    bool overwriteAll_ = false;
    std::int32_t skipped_ = 0;
};

} // namespace vantrel
