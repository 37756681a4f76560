#pragma once

#include "base/Result.h"

#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace vantrel {

/// A small file that is open as long as the object lives and that nobody else can hold meanwhile,
/// in this program or another one. The system lets go of it when its holder ends, however that
/// comes: whoever finds the file and can hold it knows that its holder is no more. On a disk where
/// the system knows no such locks everybody gets it, and nobody knows whether it has a holder.
class HeldFile {
  public:
    /// Makes the file; one that is there and not held is taken over.
    static Result<HeldFile> make(const std::string& path);
    /// The same, and everybody may read meanwhile what it says.
    static Result<HeldFile> makeReadable(const std::string& path);
    /// Nothing when somebody holds the file or there is none any more; fails when what is there can
    /// be held by nobody here.
    static Result<std::optional<HeldFile>> take(const std::string& path);
    /// Makes a file that is there only to be held: everybody may read meanwhile who holds it, and
    /// nothing of it is brought to the disk. Nothing when somebody holds it; fails on a disk
    /// without locks.
    static Result<std::optional<HeldFile>> lock(const std::string& path);

    /// False on a disk without locks: somebody else may hold the file as well.
    bool isHeldAlone() const;
    /// No more than the first 64 KB.
    Result<std::string> read() const;
    /// The whole new content; it and the file's name are on the disk afterwards.
    Outcome write(std::string_view content);
    /// Further content at the end; nobody knows when it is on the disk.
    Outcome append(std::string_view content);
    /// What was appended is on the disk afterwards.
    Outcome flush();
    /// The file is gone, on the disk too, and no longer held. On failure it may be there still.
    Outcome remove();

  private:
    struct Open;
    struct Attempt;
    enum class Wish { Make, MakeReadable, Take, Lock };

    explicit HeldFile(std::shared_ptr<Open> open) : open_(std::move(open)) {}
    static Result<Attempt> hold(const std::string& path, Wish wish);
    static Result<HeldFile> make(const std::string& path, Wish wish);

    std::shared_ptr<Open> open_;
};

} // namespace vantrel
