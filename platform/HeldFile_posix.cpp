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
};

namespace {

constexpr std::size_t mostRead = 65536;

std::string folderOf(const std::string& path) {
    return path.substr(0, path.rfind('/') + 1);
}

Descriptor openForHolding(const std::string& path, int flags) {
    constexpr int always = O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY;
    constexpr mode_t everybody = 0666; // less the process's mask
    Descriptor file(::open(path.c_str(), O_RDWR | always | flags, everybody));
    // A mark on a medium that has become write-protected can be held and read all the same.
    if (!file.isOpen() && flags == 0 && (errno == EACCES || errno == EROFS))
        file = Descriptor(::open(path.c_str(), O_RDONLY | always));
    return file;
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

Result<std::optional<HeldFile>> HeldFile::hold(const std::string& path, bool make) {
    if (hasNul(path))
        return systemFailure(EINVAL);
    Descriptor file = openForHolding(path, make ? O_CREAT : 0);
    if (!file.isOpen() && !make && errno == ENOENT)
        return std::optional<HeldFile>();
    if (!file.isOpen())
        return systemFailure(errno);
    if (!isRegular(file))
        return Failure{"Not a regular file"};
    // The lock belongs to this opening of the file, so it also keeps this program from another.
    const bool isLocked = ::flock(file.number(), LOCK_EX | LOCK_NB) == 0;
    if (!isLocked && errno == EWOULDBLOCK)
        return std::optional<HeldFile>();
    if (!isLocked && !knowsNoLocks(errno))
        return systemFailure(errno);
    if (!isThere(file, path))
        return std::optional<HeldFile>();
    return std::optional(HeldFile(std::make_shared<Open>(Open{path, std::move(file), isLocked})));
}

Result<HeldFile> HeldFile::make(const std::string& path) {
    auto held = hold(path, true);
    if (!held)
        return Failure{held.reason()};
    return *held ? Result<HeldFile>(std::move(**held)) : systemFailure(EWOULDBLOCK);
}

Result<std::optional<HeldFile>> HeldFile::take(const std::string& path) {
    return hold(path, false);
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
    if (::fsync(file) != 0)
        return systemFailure(errno);
    return flushFolder(folderOf(open_->path));
}

Outcome HeldFile::remove() {
    if (::unlink(open_->path.c_str()) != 0)
        return systemFailure(errno);
    return flushFolder(folderOf(open_->path));
}

} // namespace vantrel
