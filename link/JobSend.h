#pragma once

#include "link/TransferOutcome.h"
#include "link/TransferTools.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace vantrel {

class JobDeletion;

/// What the operator has agreed to replace before a send begins; everything else is asked for.
struct ReplaceConsent {
    bool toAll = false;
    /// These jobs only, by the names of the questions: anything else in the way ends the send.
    const std::vector<std::string>* toThese = nullptr;
};

/// Sends one file of the PC folder into the controller.
class JobSend {
  public:
    JobSend(const TransferTools& tools, JobDeletion& deletion)
        : tools_(tools), deletion_(deletion) {}

    /// `index` is the file's place among several, for the error record.
    TransferOutcome send(const std::string& file, std::int32_t index,
                         const ReplaceConsent& consent);

  private:
    /// The name by the file's "//NAME" line, empty for a file that is no job; nothing, with the
    /// reason recorded, when the file cannot be read.
    std::optional<std::string> readNameInside(const std::string& file, std::int32_t index);
    /// Asks and deletes whatever stands in the file's way.
    TransferOutcome prepare(const std::string& file, const std::string& nameInside,
                            std::int32_t index, const ReplaceConsent& consent);
    /// Asks for what stands in the file's way, unless the operator has agreed to it.
    TransferOutcome agree(const std::string& file, const std::string& nameInside,
                          std::int32_t index, const ReplaceConsent& consent);
    /// The jobs on the controller that the file would replace: the one of its own name, and the
    /// one that its "//NAME" line names.
    std::vector<std::string> jobsInTheWay(const std::string& file,
                                          const std::string& nameInside) const;
    /// The jobs by the names that the operator is asked about: the file's own for its own job.
    std::vector<std::string> shownNames(const std::string& file,
                                        const std::vector<std::string>& jobs) const;
    TransferOutcome askAll(const std::vector<std::string>& names) const;
    /// Whether the file still is the one that the operator was asked about: a question stays open
    /// for as long as it likes, and somebody may save the file meanwhile.
    bool isAsAsked(const std::string& file, const std::string& nameInside, std::int32_t index);
    bool removeAll(const std::vector<std::string>& jobs);
    bool transmit(const std::string& file, const std::string& libraryName, std::int32_t index);

    TransferTools tools_;
    JobDeletion& deletion_;
};

} // namespace vantrel
