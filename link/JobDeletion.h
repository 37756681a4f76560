#pragma once

#include <functional>
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
    /// `mayBegin` is asked when the link is there, before anything is selected on it: connecting
    /// takes long and lets events run.
    bool remove(const std::string& name, const std::function<bool()>& mayBegin = {});

  private:
    bool removeOver(const std::string& libraryName, const std::function<bool()>& mayBegin);

    LinkConnection& link_;
    SessionProgress& progress_;
};

} // namespace vantrel
