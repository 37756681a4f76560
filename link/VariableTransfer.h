#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace vantrel {

class EntryList;
class LinkConnection;
class SessionProgress;
struct SessionErrorRecord;

/// Reads and writes one variable on the controller over a link of its own. A line that is no entry
/// is rejected before a link is opened.
class VariableTransfer {
  public:
    VariableTransfer(LinkConnection& link, SessionErrorRecord& error)
        : link_(link), error_(error) {}

    /// Writes the entry's values to the controller.
    bool write(const std::string& entry);
    /// Fills in the controller's values; on failure the entry stays as it was.
    bool read(std::string& entry);

  private:
    /// Records a line that is no entry; without an index, which is the list's business.
    void reject();

    LinkConnection& link_;
    SessionErrorRecord& error_;
};

/// Transfers a list of variables one after the other; the first failure or a press of Cancel ends
/// it, with the entry's index in the error record. Blank lines are passed over. The list is worked
/// through as it is at the start; a refreshed entry replaces only the text that it was read for.
class VariableBatch {
  public:
    /// Transfers one entry, which may come back refreshed.
    using Transfer = std::function<bool(std::string& entry)>;

    VariableBatch(const LinkConnection& link, SessionProgress& progress, SessionErrorRecord& error)
        : link_(link), progress_(progress), error_(error) {}

    bool run(EntryList& entries, const Transfer& transfer);

  private:
    bool transferOne(EntryList& entries, std::int32_t index, const std::string& before,
                     const Transfer& transfer);

    const LinkConnection& link_;
    SessionProgress& progress_;
    SessionErrorRecord& error_;
};

} // namespace vantrel
