#include "platform/Descriptor_posix.h"
#include "platform/Files.h"
#include "platform/HeldFile.h"

#include <fcntl.h>
#include <sys/file.h>

namespace vantrel {

struct HeldFile::Open {
    std::string path;
    Descriptor file;
    bool isLocked;
    bool isLasting; ///< it is brought to the disk
};

/// Without a file there was somebody who holds it, or none was there.
struct HeldFile::Attempt {
    std::optional<HeldFile> file;
    bool isSomebodys = false;
};

namespace {

constexpr std::size_t mostRead = 65536;

std::string folderOf(const std::string& path) {
    return path.substr(0, path.rfind('/') + 1);
}

Descriptor openForHolding(const std::string& path, bool make, bool readingWillDo) {
    constexpr int always = O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY;
    constexpr mode_t everybody = 0666; // less the process's mask
    Descriptor file(::open(path.c_str(), O_RDWR | always | (make ? O_CREAT : 0), everybody));
    if (!file.isOpen() && readingWillDo && (errno == EACCES || errno == EROFS))
        file = Descriptor(::open(path.c_str(), O_RDONLY | always));
    return file;
}

bool isWritable(const Descriptor& file) {
    return (::fcntl(file.number(), F_GETFL) & O_ACCMODE) == O_RDWR;
}

bool isRegular(const Descriptor& file) {
    struct stat opened {};
    return ::fstat(file.number(), &opened) == 0 && S_ISREG(opened.st_mode);
}

/// Whether the path still leads to the open file: its last holder may have removed it while it was
/// being opened here.
bool isThere(const Descriptor& file, const std::string& path) {
    struct stat opened {};
    struct stat named {};
    return ::fstat(file.number(), &opened) == 0 && readDetails(path, named) &&
           opened.st_ino == named.st_ino && opened.st_dev == named.st_dev;
}

bool knowsNoLocks(int error) {
    return error == ENOLCK || error == EOPNOTSUPP || error == ENOSYS || error == EINVAL;
}

} // namespace

Result<HeldFile::Attempt> HeldFile::hold(const std::string& path, Wish wish) {
    if (hasNul(path))
        return systemFailure(EINVAL);
    // A mark on a medium that has become write-protected can be held and read all the same, and
    // another user's lock tells whether he holds it.
    Descriptor file =
        openForHolding(path, wish != Wish::Take, wish == Wish::Take || wish == Wish::Lock);
    if (!file.isOpen() && wish == Wish::Take && errno == ENOENT)
        return Attempt{};
    if (!file.isOpen())
        return systemFailure(errno);
    if (!isRegular(file))
        return Failure{"Not a regular file"};
    // The lock belongs to this opening of the file, so it also keeps this program from another.
    const bool isLocked = ::flock(file.number(), LOCK_EX | LOCK_NB) == 0;
    if (!isLocked && errno == EWOULDBLOCK)
        return Attempt{.file = {}, .isSomebodys = true};
    if (!isLocked && (wish == Wish::Lock || !knowsNoLocks(errno)))
        return systemFailure(errno);
    if (!isThere(file, path))
        return Attempt{};
    const bool isOfAnother = wish == Wish::Lock && !isWritable(file);
    if (isOfAnother && ::unlink(path.c_str()) != 0)
        return systemFailure(errno);
    if (isOfAnother)
        return Attempt{};
    return Attempt{HeldFile(
        std::make_shared<Open>(Open{path, std::move(file), isLocked, wish != Wish::Lock}))};
}

Result<HeldFile> HeldFile::make(const std::string& path) {
    return make(path, Wish::Make);
}

Result<HeldFile> HeldFile::makeReadable(const std::string& path) {
    return make(path, Wish::MakeReadable);
}

Result<HeldFile> HeldFile::make(const std::string& path, Wish wish) {
    auto held = hold(path, wish);
    if (!held)
        return Failure{held.reason()};
    return held->file ? Result<HeldFile>(std::move(*held->file)) : systemFailure(EWOULDBLOCK);
}

Result<std::optional<HeldFile>> HeldFile::take(const std::string& path) {
    auto held = hold(path, Wish::Take);
    if (!held)
        return Failure{held.reason()};
    return std::move(held->file);
}

Result<std::optional<HeldFile>> HeldFile::lock(const std::string& path) {
    constexpr int mostTries = 100; // each costs one holder who lets go of it just now
    for (int tries = 0; tries < mostTries; ++tries) {
        auto held = hold(path, Wish::Lock);
        if (!held)
            return Failure{held.reason()};
        if (held->file || held->isSomebodys)
            return std::move(held->file);
    }
    return systemFailure(EAGAIN);
}

bool HeldFile::isHeldAlone() const {
    return open_->isLocked;
}

Result<std::string> HeldFile::read() const {
    std::string content(mostRead, '\0');
    std::size_t used = 0;
    while (used < content.size()) {
        const auto count = ::pread(open_->file.number(), content.data() + used,
                                   content.size() - used, static_cast<off_t>(used));
        if (count < 0 && errno != EINTR)
            return systemFailure(errno);
        if (count == 0)
            break;
        used += count < 0 ? 0 : static_cast<std::size_t>(count);
    }
    content.resize(used);
    return content;
}

Outcome HeldFile::write(std::string_view content) {
    const int file = open_->file.number();
    if (::ftruncate(file, 0) != 0 || ::lseek(file, 0, SEEK_SET) != 0)
        return systemFailure(errno);
    if (const int error = writeAll(file, content); error != 0)
        return systemFailure(error);
    if (!open_->isLasting)
        return Done{};
    if (::fsync(file) != 0)
        return systemFailure(errno);
    return flushFolder(folderOf(open_->path));
}

Outcome HeldFile::append(std::string_view content) {
    const int file = open_->file.number();
    if (::lseek(file, 0, SEEK_END) < 0)
        return systemFailure(errno);
    const int error = writeAll(file, content);
    return error == 0 ? Outcome(Done{}) : Outcome(systemFailure(error));
}

Outcome HeldFile::flush() {
    return ::fsync(open_->file.number()) == 0 ? Outcome(Done{}) : Outcome(systemFailure(errno));
}

Outcome HeldFile::remove() {
    if (::unlink(open_->path.c_str()) != 0)
        return systemFailure(errno);
    return open_->isLasting ? flushFolder(folderOf(open_->path)) : Outcome(Done{});
}

} // namespace vantrel
