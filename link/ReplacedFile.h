#pragma once

#include <string>

namespace vantrel {

/// A PC file that is about to be received: what stood under its name is set aside, and unless
/// `keep` is called the old file is put back and whatever arrived of the new one is removed.
class ReplacedFile {
  public:
    /// Sets a regular file aside; a folder of that name stays where it is.
    ReplacedFile(const std::string& folder, const std::string& name);
    ~ReplacedFile();
    ReplacedFile(const ReplacedFile&) = delete;
    ReplacedFile& operator=(const ReplacedFile&) = delete;

    /// False when an old file is in the way that could not be set aside.
    bool isReady() const { return ready_; }
    /// Whether a file has arrived under the name.
    bool hasArrived() const;
    /// The new file is complete: the old one goes.
    void keep();

  private:
    std::string path_;
    std::string aside_; ///< the old file's present path; empty without one
    bool ready_ = true;
    bool kept_ = false;
};

} // namespace vantrel
