#include "platform/Descriptor_posix.h"
#include "platform/Files.h"

#include <array>
#include <chrono>
#include <cstdio>

#include <fcntl.h>

namespace vantrel {

namespace {

constexpr mode_t permissionBits = 07777;

/// With the separator at its end.
std::string folderOf(const std::string& path) {
    const auto last = path.rfind('/');
    return last == std::string::npos ? "./" : path.substr(0, last + 1);
}

/// The target of a symbolic link, or nothing when `path` is none.
std::string linkTarget(const std::string& path) {
    std::array<char, 4096> buffer{};
    const auto length = ::readlink(path.c_str(), buffer.data(), buffer.size());
    if (length <= 0)
        return {};
    const std::string target(buffer.data(), static_cast<std::size_t>(length));
    return target.front() == '/' ? target : folderOf(path) + target;
}

/// Where a chain of links ends, be there a file or not; empty when it runs in a circle.
std::string followLinks(std::string path) {
    constexpr int longestChain = 40;
    for (int i = 0; i < longestChain; ++i) {
        std::string target = linkTarget(path);
        if (target.empty())
            return path;
        path = std::move(target);
    }
    return {};
}

/// The permissions for the new file, or why the old one must not be replaced: a write-protected
/// file stays, although the folder's permissions would let it be renamed away.
Result<mode_t> permissionsFor(const std::string& path) {
    struct stat old {};
    if (!readDetails(path, old)) {
        if (errno != ENOENT)
            return systemFailure(errno);
        const mode_t mask = ::umask(0);
        ::umask(mask);
        return static_cast<mode_t>(0666) & ~mask;
    }
    if (S_ISDIR(old.st_mode))
        return systemFailure(EISDIR);
    if (!S_ISREG(old.st_mode))
        return Failure{"Not a regular file"};
    // Asked for the identity that would write, which may be another than the one logged in.
    if (::faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS) != 0)
        return systemFailure(errno);
    return old.st_mode & permissionBits;
}

/// A new file of a name that nobody else uses; it is gone with the object unless it was kept.
class TemporaryFile {
  public:
    explicit TemporaryFile(const std::string& folder) {
        constexpr int attempts = 100;
        // Short, whatever the length of the name to replace, which may be the longest possible.
        const auto ticks = std::chrono::steady_clock::now().time_since_epoch().count();
        const std::string start =
            folder + ".vantrel-" + std::to_string(::getpid()) + "-" + std::to_string(ticks) + "-";
        for (int i = 0; i < attempts && !isOpen() && (i == 0 || error_ == EEXIST); ++i) {
            path_ = start + std::to_string(i) + ".tmp";
            file_ =
                Descriptor(::open(path_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600));
            error_ = file_.isOpen() ? 0 : errno;
        }
        kept_ = !isOpen();
    }
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;
    ~TemporaryFile() {
        if (!kept_)
            ::unlink(path_.c_str());
    }

    bool isOpen() const { return file_.isOpen(); }
    int error() const { return error_; }

    /// Everything on the disk and the file closed; 0 or the error number.
    int fill(std::string_view content, mode_t permissions) {
        if (const int error = writeAll(file_.number(), content); error != 0)
            return error;
        if (::fchmod(file_.number(), permissions) != 0 || ::fsync(file_.number()) != 0)
            return errno;
        return file_.close();
    }

    /// 0 or the error number.
    int become(const std::string& path) {
        if (::rename(path_.c_str(), path.c_str()) != 0)
            return errno;
        kept_ = true;
        return 0;
    }

  private:
    std::string path_;
    Descriptor file_{-1};
    int error_ = 0;
    bool kept_ = false;
};

} // namespace

Outcome replaceFile(const std::string& path, std::string_view content) {
    if (hasNul(path))
        return systemFailure(EINVAL);
    const std::string target = followLinks(path);
    if (target.empty())
        return systemFailure(ELOOP);
    const auto permissions = permissionsFor(target);
    if (!permissions)
        return Failure{permissions.reason()};
    TemporaryFile temporary(folderOf(target));
    if (!temporary.isOpen())
        return systemFailure(temporary.error());
    int error = temporary.fill(content, *permissions);
    if (error == 0)
        error = temporary.become(target);
    if (error != 0)
        return systemFailure(error);
    // The new name is on the disk only with the folder. The file is complete all the same.
    static_cast<void>(flushFolder(folderOf(target)));
    return Done{};
}

} // namespace vantrel
