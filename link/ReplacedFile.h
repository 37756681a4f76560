#pragma once

#include "base/Result.h"
#include "link/FetchFiles.h"
#include "link/FetchMark.h"
#include "platform/HeldFile.h"

#include <cstdint>
#include <optional>
#include <string>

namespace vantrel {

class FetchFiles;

/// A PC file that is about to be received: the folder is marked, what stood under the file's name
/// is set aside beside it, and unless `keep` is called the old file is put back and whatever
/// arrived of the new one is removed. Wherever the program is ended in between, the mark tells the
/// next look at the folder (`InterruptedFetches`) what to do about it.
class ReplacedFile {
  public:
    /// Only a plain file that may be written is set aside. Anything else stays where it is, and
    /// nothing can be received over it: a folder, a symbolic link, which would silently become a
    /// file, and a write-protected file, which the operator has locked.
    ///
    /// `takesMarkOver` on a disk that does not tell who holds a mark: the operator knows of the
    /// transfer whose mark is there.
    ReplacedFile(FetchFiles& files, std::string folder, std::string name,
                 bool takesMarkOver = false);
    /// Puts back what nobody has decided about.
    ~ReplacedFile();
    ReplacedFile(const ReplacedFile&) = delete;
    ReplacedFile& operator=(const ReplacedFile&) = delete;

    /// 0, or the session's code for why nothing can be received here.
    std::int16_t problem() const { return problem_; }
    /// Whether a file has arrived under the name that can be read and holds something. Whether it
    /// is a whole job is not looked at: what a controller gives is kept as it gives it.
    bool hasArrived() const;
    /// The new file is complete: once it is on the disk and the mark is gone, the old one goes;
    /// where it cannot, `asideName` goes on telling where it is. 0, or the session's code for a
    /// failure, with which nothing is decided yet, unless the old version no longer lies aside as
    /// it was: then somebody else was at work here, and everything stays as it is, the mark too.
    std::int16_t keep();
    /// The new file goes and the old one comes back. On failure the old one stays under
    /// `asideName`, or without an old one a part of the new one where it is, and the mark stays
    /// until `forget`. Does nothing after `keep` and a second time.
    Outcome putBack();
    /// The operator knows what `putBack` could not do, and will see to it.
    void forget();
    /// The old file's present name; empty without one.
    const std::string& asideName() const { return mark_.aside; }

  private:
    std::int16_t prepare(bool takesMarkOver);
    /// Whether the old version could be described; true without one.
    bool describeOld();
    std::int16_t setMark(bool takesMarkOver);
    bool oldLiesAside() const;
    Outcome removePartial();
    Outcome bringBack();
    std::string pathOf(const std::string& name) const;

    FetchFiles& files_;
    std::string folder_;
    FetchMark mark_;
    std::optional<HeldFile> held_; ///< the mark, as long as it may lie there
    std::int16_t problem_;
    bool decided_ = false;
};

} // namespace vantrel
