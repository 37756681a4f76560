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

    /// Ends what the transfers have begun together, whatever ended the list. Returns the entries
    /// that have failed after all; the record then tells of a failure.
    using Conclude = std::function<std::vector<std::int32_t>(TransferOutcome outcome)>;

    JobBatch(const Tools& tools, Transfer transfer, Conclude conclude = {})
        : tools_(tools), transfer_(std::move(transfer)), conclude_(std::move(conclude)) {}

    /// True when every entry was handled. Hides the progress.
    bool run(const std::vector<std::string>& entries);

  private:
    /// `Done` at the end of the list, else what ended it early.
    TransferOutcome runThrough(const std::vector<std::string>& entries);
    TransferOutcome conclude(TransferOutcome outcome);
    TransferOutcome passOver(const std::string& entry, std::int32_t index, std::int32_t count);
    TransferOutcome handle(const std::string& entry, std::int32_t index, std::int32_t count);
    /// What a failure or a cancel adds to the error record: the entry's index.
    void record(TransferOutcome outcome, std::int32_t index);
    void tellSkipped() const;

    Tools tools_;
    Transfer transfer_;
    Conclude conclude_;
    bool overwriteAll_ = false;
    std::int32_t skipped_ = 0;
};

} // namespace vantrel
