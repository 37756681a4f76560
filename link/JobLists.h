#pragma once

#include "base/Wildcard.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

namespace vantrel {

class MessageTable;
class OperatorTalk;
struct SessionErrorRecord;
struct SessionProperties;

/// A list of entries read by an index that may lie outside.
class EntryList {
  public:
    std::int32_t count() const { return static_cast<std::int32_t>(entries_.size()); }
    /// The entry, or an empty text outside the list.
    std::string at(std::int32_t index) const;
    void add(std::string entry) { entries_.push_back(std::move(entry)); }
    /// Does nothing outside the list.
    void remove(std::int32_t index);
    void replace(std::int32_t index, std::string entry);
    void clear() { entries_.clear(); }
    const std::vector<std::string>& all() const { return entries_; }

  private:
    bool has(std::int32_t index) const { return index >= 0 && index < count(); }

    std::vector<std::string> entries_;
};

/// The jobs of the file "LocalJob.lst", which belong to the PC alone and are passed over by list
/// transfers. An entry may be a wildcard pattern; one without "." stands for a ".JBI" file.
class LocalJobList {
  public:
    /// Reads the list of a folder. The list stays as it was when there is no readable file.
    void read(const std::string& folder);

    bool contains(std::string_view entry) const;

    const std::vector<std::string>& entries() const { return entries_; }

  private:
    void add(std::string_view entry);

    std::vector<std::string> entries_;      ///< trimmed, in file order
    std::unordered_set<std::string> names_; ///< the entries without a wildcard, normalised
    std::vector<WildcardPattern> patterns_; ///< the others, normalised
};

/// The job list that list transfers work through, and its filling from a list file.
class JobListStore {
  public:
    struct Tools {
        const SessionProperties& properties;
        SessionErrorRecord& error;
        const MessageTable& messages;
        OperatorTalk& talk;
    };

    explicit JobListStore(const Tools& tools) : tools_(tools) {}

    /// Replaces the list by the file's lines, trimmed and without the empty ones. `unchecked` also
    /// takes names that the PC folder does not have; otherwise each missing one is named to the
    /// operator, who may stop the loading there: false then, with an empty list, so that no half
    /// list is ever transferred.
    bool load(const std::string& file, bool unchecked);

    EntryList& entries() { return entries_; }
    const EntryList& entries() const { return entries_; }

  private:
    bool addExisting(const std::string& name);
    bool askGoOnWithout(const std::string& name);

    Tools tools_;
    EntryList entries_;
};

} // namespace vantrel
