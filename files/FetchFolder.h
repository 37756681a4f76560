#pragma once

#include <string>

namespace vantrel {

class Snappy;

/// A folder of its own among the system's temporary files, for the session to fetch into: no file
/// of the operator's can be touched there. It goes with whatever is in it then, and the session
/// works in its own folder again.
class FetchFolder {
  public:
    /// `path` is an empty folder, which now belongs to the object.
    FetchFolder(Snappy& session, std::string path);
    ~FetchFolder();
    FetchFolder(const FetchFolder&) = delete;
    FetchFolder& operator=(const FetchFolder&) = delete;

  private:
    Snappy& session_;
    std::string path_, before_;
};

} // namespace vantrel
