#pragma once

#include "base/Result.h"
#include "link/FetchGroup.h"
#include "link/TransferTools.h"

#include <cstdint>
#include <string>
#include <vector>

namespace vantrel {

class FetchFiles;
class InterruptedFetches;
class LocalJobList;
class ReplacedFile;

/// Fetches one file from the controller into the PC folder. The folder ends up with the complete
/// new file or as it was before.
class JobFetch {
  public:
    JobFetch(const TransferTools& tools, FetchFiles& files, InterruptedFetches& interrupted)
        : tools_(tools), files_(files), interrupted_(interrupted), group_(files, interrupted) {}

    /// Reads which names the PC folder has, after settling what interrupted fetches left in it.
    /// False, with the reason recorded, when it cannot be read.
    bool listFolder();
    /// `index` is the file's place among several, for the error record.
    TransferOutcome fetch(const std::string& name, std::int32_t index, bool overwriteAll);

    /// A list begins that is only copied: those of its files that are new may wait for one another
    /// before they are brought to the disk. `entries` lasts until `endList`.
    void beginList(const std::vector<std::string>& entries, const LocalJobList& localJobs);
    TransferOutcome fetchOfList(const std::string& name, std::int32_t index, bool overwriteAll);
    /// Everything that was fetched is on the disk, but for the entries that are returned. They have
    /// failed: the first one is in the error record, unless `outcome` says that another failure is,
    /// and the operator is told of the others.
    std::vector<std::int32_t> endList(TransferOutcome outcome);

  private:
    Outcome readNames(std::vector<std::string>& names) const;
    bool existsOnPC(const std::string& name) const;
    /// `mayReplace` tells that the operator has agreed to what lies under the name going.
    TransferOutcome receive(const std::string& name, const std::string& libraryName,
                            std::int32_t index, bool mayReplace);
    bool receiveInGroup(std::int16_t handle, const std::string& name,
                        const std::string& libraryName, std::int32_t index);
    bool receiveNew(std::int16_t handle, const std::string& name, const std::string& libraryName,
                    std::int32_t index);
    /// False when something of the group has not reached the disk.
    bool settleGroup();
    void tellPartKept(const std::string& name) const;
    bool receiveOver(std::int16_t handle, const std::string& name, const std::string& libraryName,
                     std::int32_t index);
    bool receiveInto(ReplacedFile& file, std::int16_t handle, const std::string& libraryName,
                     std::int32_t index);
    /// Tells of an old version that could not be removed after a good fetch.
    void tellLeftover(const ReplacedFile& file, const std::string& name) const;
    /// Leaves the folder as it was before a failed transfer; that it could not be done is told
    /// whatever `DisplayMonitor` says: nobody would look for the old file under its other name, and
    /// everybody would take half a new one for a whole. The record goes on telling why it failed.
    void putBack(ReplacedFile& file, const std::string& name);

    TransferTools tools_;
    FetchFiles& files_;
    InterruptedFetches& interrupted_;
    FetchGroup group_;
    std::vector<FetchGroup::Lost> lost_; ///< of the present list
};

} // namespace vantrel
