#pragma once

#include <string>

namespace vantrel {

class LinkConnection;
class SessionProgress;

/// Deletes one job on the controller over a link of its own. Shows what it does and leaves the
/// progress dialog open, for it is also a part of a send.
class JobDeletion {
  public:
    JobDeletion(LinkConnection& link, SessionProgress& progress)
        : link_(link), progress_(progress) {}

    /// True when the job is gone, even if the link would not close afterwards: the error record
    /// tells of that.
    bool remove(const std::string& name);

  private:
    bool removeOver(const std::string& libraryName);

    LinkConnection& link_;
    SessionProgress& progress_;
};

} // namespace vantrel
