#pragma once

#include "link/EntryList.h"

#include <string>

namespace vantrel {

class MessageTable;
class OperatorTalk;
struct SessionErrorRecord;
struct SessionProperties;

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
