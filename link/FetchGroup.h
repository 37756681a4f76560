#pragma once

#include "link/GroupMark.h"
#include "platform/HeldFile.h"

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace vantrel {

class FetchFiles;
class InterruptedFetches;

/// The new files of a list that is being fetched. A mark for each and flushing each cost many times
/// the transfer of a small file; so one mark (`GroupMark`) announces the next ones of the list, and
/// what has arrived is brought to the disk together. Only for copies: the files' originals are
/// still there when `settle` finds that one has not reached the disk.
class FetchGroup {
  public:
    /// A file that had arrived and is not on the disk.
    struct Lost {
        std::int32_t index; ///< in the list
        std::string name;
        bool isThere; ///< it could not be removed
    };
    using Choice = std::function<bool(const std::string& name)>;

    FetchGroup(FetchFiles& files, InterruptedFetches& interrupted)
        : files_(files), interrupted_(interrupted) {}

    /// A list's transfer begins. `entries` lasts until `end`. A file that is not there is announced
    /// when `mayAnnounce` says so too.
    void begin(const std::string& folder, const std::vector<std::string>& entries,
               Choice mayAnnounce);
    void end();

    /// Whether the entry is to be received as one of the group, which is announced first where
    /// there is none. If not it is to be fetched by itself (`ReplacedFile`).
    bool takes(std::int32_t index);
    /// Whether the present mark announces a file of that name.
    bool announces(const std::string& name) const { return held_ && mark_.find(name); }
    /// An entry that `takes` has taken is complete.
    void hasArrived(std::int32_t index, std::string_view content);
    /// Whether the group is to be settled before the entry is fetched.
    bool isDue(std::int32_t index) const;
    /// Everything that has arrived is on the disk, but for what is returned and was removed; the
    /// mark is gone.
    std::vector<Lost> settle();
    /// Of a file in the folder that the list began with.
    std::string pathOf(const std::string& name) const;

  private:
    struct Arrival {
        std::int32_t index;
        const GroupMark::File* file;
    };

    bool announce(std::size_t index);
    /// Of the files behind the entry `index`, and of its own.
    GroupMark announcement(std::size_t index);
    bool isNew(const std::string& name) const;
    bool setMark(const GroupMark& mark);
    /// Takes the mark away, or makes it tell of nothing.
    void dropMark(HeldFile& held);
    /// False when something is still there.
    bool remove(const GroupMark::File& file);

    FetchFiles& files_;
    InterruptedFetches& interrupted_;
    std::string folder_;
    const std::vector<std::string>* entries_ = nullptr; ///< null outside a list
    Choice mayAnnounce_;
    std::size_t next_ = 0;         ///< the first entry that may begin a group
    std::optional<HeldFile> held_; ///< the mark, as long as it may lie there
    GroupMark mark_;
    std::int32_t last_ = 0; ///< of the entries that it announces
    std::chrono::milliseconds begun_{};
    std::vector<Arrival> arrived_;
    bool isBroken_ = false; ///< the mark cannot be added to
};

} // namespace vantrel
