#pragma once

#include "link/TransferTools.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace vantrel {

class InterruptedFetches;
class JobFile;
class LinkConnection;
class SessionProgress;
struct SentFile;

/// Deletes one job on the controller over a link of its own. Shows what it does and leaves the
/// progress dialog open, for it is also a part of a send.
class JobDeletion {
  public:
    JobDeletion(LinkConnection& link, SessionProgress& progress)
        : link_(link), progress_(progress) {}

    /// True when the job is gone, even if the link would not close afterwards: the error record
    /// tells of that.
    /// `mayBegin` is asked when the link is there, before anything is selected on it: connecting
    /// takes long and lets events run.
    bool remove(const std::string& name, const std::function<bool()>& mayBegin = {});

  private:
    bool removeOver(const std::string& libraryName, const std::function<bool()>& mayBegin);

    LinkConnection& link_;
    SessionProgress& progress_;
};

/// What the operator has agreed to replace before a send begins; everything else is asked for.
struct ReplaceConsent {
    bool toAll = false;
    /// These jobs only, by the names of the questions: anything else in the way ends the send.
    const std::vector<std::string>* toThese = nullptr;
    /// With `toThese`: the other name under which the file is stored, as it was told; with another
    /// one by now, the send ends as well.
    std::string storedAs = {};
};

/// Sends one file of the PC folder into the controller.
class JobSend {
  public:
    JobSend(const TransferTools& tools, JobDeletion& deletion, InterruptedFetches& interrupted)
        : tools_(tools), deletion_(deletion), interrupted_(interrupted) {}

    /// Forgets what the last operation has deleted.
    void begin();
    /// False, with the reason recorded, while the file is being fetched, by whatever program, or
    /// was and nobody has settled it, or nobody can: half a job must not replace a whole one.
    bool isWhole(const std::string& file, std::int32_t index);
    /// `index` is the file's place among several, for the error record. `sent`, when given, becomes
    /// what was sent, for somebody who is to delete the file on the PC: then data files are read
    /// too.
    TransferOutcome send(const std::string& file, std::int32_t index, const ReplaceConsent& consent,
                         SentFile* sent = nullptr);

    /// What was deleted on the controller since `begin` for files that did not take its place, by
    /// the directory's entries.
    const std::vector<std::string>& unreplaced() const { return unreplaced_; }
    /// The name under which the controller keeps the file sent last, when the job of the file's own
    /// name is deleted for it all the same; else empty.
    const std::string& storedAs() const { return storedAs_; }

  private:
    /// Nothing, with the reason recorded, when the file cannot be read.
    std::optional<JobFile> read(const std::string& file, std::int32_t index);
    /// Asks and deletes whatever stands in the file's way. A question may stay open for long, so
    /// `job` is the file as it is after it.
    TransferOutcome prepare(const std::string& file, JobFile& job, std::int32_t index,
                            const ReplaceConsent& consent);
    /// The code of what forbids deleting these jobs for the file, or 0.
    std::int16_t forbids(const JobFile& job, const std::vector<std::string>& jobs) const;
    /// Asks for what stands in the file's way, unless the operator has agreed to it.
    TransferOutcome agree(const std::string& file, JobFile& job, std::int32_t index,
                          const ReplaceConsent& consent);
    /// The jobs on the controller that the file would replace: the one of its own name, and the
    /// one that its "//NAME" line names.
    std::vector<std::string> jobsInTheWay(const std::string& file,
                                          const std::string& nameInside) const;
    /// The jobs by the names that the operator is asked about: the file's own for its own job.
    std::vector<std::string> shownNames(const std::string& file,
                                        const std::vector<std::string>& jobs) const;
    /// What `storedAs` is while these jobs are in the way.
    std::string otherName(const std::string& file, const std::string& nameInside) const;
    TransferOutcome askAll(const std::string& file) const;
    /// Reads the file again, as `job`; 0, or the code for why it is not sent, since it is not the
    /// one that was looked at before: somebody may have saved, opened or removed it meanwhile.
    std::int16_t readAgain(const std::string& file, JobFile& job);
    /// False, with the code recorded, for any but 0.
    bool accept(std::int16_t code, std::int32_t index);
    bool removeAll(const std::vector<std::string>& jobs, const std::string& file, JobFile& job,
                   std::int32_t index);
    bool transmit(const std::string& file, const std::string& libraryName,
                  const std::string& arrivesAs, std::int32_t index);
    /// Of the deleted jobs those whose place a file that arrives as this takes.
    std::vector<std::string> deletedUnder(const std::string& arrivesAs) const;
    /// Something has taken the place of that job.
    void replaced(const std::string& arrivesAs);

    TransferTools tools_;
    JobDeletion& deletion_;
    InterruptedFetches& interrupted_;
    std::vector<std::string> unreplaced_;
    std::string storedAs_;
};

} // namespace vantrel
