#pragma once

#include <string>

namespace vantrel {

class LinkConnection;
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

} // namespace vantrel
