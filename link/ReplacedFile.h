#pragma once

#include "base/Result.h"

#include <string>

namespace vantrel {

/// A PC file that is about to be received: what stood under its name is set aside beside it, and
/// unless `keep` is called the old file is put back and whatever arrived of the new one is removed.
class ReplacedFile {
  public:
    /// Only a plain file that may be written is set aside. Anything else stays where it is, and
    /// nothing can be received over it: a folder, a symbolic link, which would silently become a
    /// file, and a write-protected file, which the operator has locked.
    ReplacedFile(std::string folder, std::string name);
    /// Puts back what nobody has decided about.
    ~ReplacedFile();
    ReplacedFile(const ReplacedFile&) = delete;
    ReplacedFile& operator=(const ReplacedFile&) = delete;

    /// False when something is in the way that could not be set aside.
    bool isReady() const { return ready_; }
    /// Whether a file has arrived under the name that can be read and holds something. Whether it
    /// is a whole job is not looked at: what a controller gives is kept as it gives it.
    bool hasArrived() const;
    /// The new file is complete: the old one goes.
    void keep();
    /// The new file goes and the old one comes back. On failure the old one stays under
    /// `asideName`, or without an old one a part of the new one where it is. Does nothing after
    /// `keep` and a second time.
    Outcome putBack();
    /// The old file's present name; empty without one.
    const std::string& asideName() const { return aside_; }

  private:
    std::string folder_;
    std::string name_;
    std::string aside_;
    bool ready_ = true;
    bool decided_ = false;
};

/// Where a program was killed while a file was set aside, the file of this name is missing and its
/// old version stands under the other name: puts it back.
void putBackLeftover(const std::string& folder, const std::string& name);

} // namespace vantrel
