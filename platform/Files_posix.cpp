#include "base/PathRules.h"
#include "base/Text.h"
#include "base/TextCase.h"
#include "platform/Descriptor_posix.h"
#include "platform/Files.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <new>
#include <stdexcept>

#include <fcntl.h>
#include <linux/magic.h>
#include <sys/vfs.h>

namespace vantrel {

namespace {

/// Reads until the end, whatever size the system told beforehand.
int readAll(int descriptor, std::size_t expectedSize, std::string& content) {
    constexpr std::size_t block = 65536;
    content.resize(expectedSize + 1);
    std::size_t used = 0;
    while (true) {
        if (used == content.size())
            content.resize(content.size() + content.size() / 2 + block);
        const auto count = ::read(descriptor, content.data() + used, content.size() - used);
        if (count == 0)
            break;
        if (count < 0 && errno != EINTR)
            return errno;
        used += count < 0 ? 0 : static_cast<std::size_t>(count);
    }
    content.resize(used);
    return 0;
}

Result<std::string> readOpenFile(const Descriptor& file) {
    struct stat details {};
    if (::fstat(file.number(), &details) != 0)
        return systemFailure(errno);
    if (S_ISDIR(details.st_mode))
        return systemFailure(EISDIR);
    if (!S_ISREG(details.st_mode))
        return Failure{"Not a regular file"};
    std::string content;
    const int error = readAll(file.number(), static_cast<std::size_t>(details.st_size), content);
    if (error != 0)
        return systemFailure(error);
    return content;
}

/// 0 or the error number.
int renameUnlessTaken(const std::string& from, const std::string& to) {
    if (::renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) == 0)
        return 0;
    if (errno != EINVAL && errno != ENOSYS)
        return errno;
    // What knows no such renaming mostly knows hard links, which replace nothing either.
    if (::link(from.c_str(), to.c_str()) == 0)
        return ::unlink(from.c_str()) == 0 ? 0 : errno;
    if (errno == EEXIST || anythingExists(to))
        return EEXIST;
    return ::rename(from.c_str(), to.c_str()) == 0 ? 0 : errno;
}

/// One entry of that very name: what leads out of the folder or to itself is none.
bool isEntryName(std::string_view name) {
    return !name.empty() && name != "." && name != ".." && !hasNul(name) &&
           name.find('/') == std::string_view::npos;
}

Descriptor openForFlushing(const std::string& path) {
    return Descriptor(
        ::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOFOLLOW | O_NOCTTY));
}

/// False with the error number in `errno`.
bool flushContent(const std::string& path) {
    const Descriptor file = openForFlushing(path);
    return file.isOpen() && ::fsync(file.number()) == 0;
}

/// Brings everything to the disk that is on the folder's file system. Only where that is known to
/// reach the disk itself: those of servers, of sticks, and those that a program makes may not pass
/// it on.
bool flushFileSystem(const std::string& folder) {
    constexpr std::array<std::uint32_t, 5> reaching{
        EXT4_SUPER_MAGIC, XFS_SUPER_MAGIC, BTRFS_SUPER_MAGIC, F2FS_SUPER_MAGIC, TMPFS_MAGIC};
    const Descriptor opened(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    struct statfs details {};
    if (!opened.isOpen() || ::fstatfs(opened.number(), &details) != 0)
        return false;
    const auto kind = static_cast<std::uint32_t>(details.f_type);
    return std::ranges::find(reaching, kind) != reaching.end() && ::syncfs(opened.number()) == 0;
}

/// After `flushFileSystem`, which older systems let succeed whatever became of a file: whether its
/// content has reached the disk. Flushes nothing.
bool wasWritten(const std::string& path) {
    const Descriptor file = openForFlushing(path);
    if (!file.isOpen())
        return false;
    if (::sync_file_range(file.number(), 0, 0, SYNC_FILE_RANGE_WAIT_BEFORE) == 0)
        return true;
    return (errno == ENOSYS || errno == EINVAL) && ::fsync(file.number()) == 0;
}

} // namespace

Result<std::string> readFile(const std::string& path) {
    if (hasNul(path))
        return systemFailure(EINVAL);
    // Without waiting: opening a pipe without a writer would hang.
    const Descriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY));
    if (!file.isOpen())
        return systemFailure(errno);
    try {
        return readOpenFile(file);
    } catch (const std::bad_alloc&) {
        return systemFailure(ENOMEM);
    } catch (const std::length_error&) {
        return systemFailure(EFBIG);
    }
}

/// No program shuts another one out here.
Result<std::string> readSettledFile(const std::string& path) {
    return readFile(path);
}

Result<std::string> readUnsharedFile(const std::string& path) {
    return readFile(path);
}

Outcome renameFile(const std::string& from, const std::string& to) {
    if (hasNul(from) || hasNul(to))
        return systemFailure(EINVAL);
    if (::rename(from.c_str(), to.c_str()) != 0)
        return systemFailure(errno);
    return Done{};
}

Outcome renameToFree(const std::string& from, const std::string& to) {
    if (hasNul(from) || hasNul(to))
        return systemFailure(EINVAL);
    const int error = renameUnlessTaken(from, to);
    return error == 0 ? Outcome(Done{}) : Outcome(systemFailure(error));
}

Outcome removeFile(const std::string& path) {
    if (hasNul(path))
        return systemFailure(EINVAL);
    if (::unlink(path.c_str()) != 0)
        return systemFailure(errno);
    return Done{};
}

// Nobody can be kept from the file here, but under its other name nobody looks for it: whoever
// saves it makes another file of its own name, which stays. What is left is a program that has had
// the file open since before it was renamed and writes into it after it was read: nobody is told of
// such writers. A program that ends here leaves the file under its other name.
Result<bool> removeFileIf(const std::string& path, const std::string& spare,
                          const std::function<bool(const std::string& content)>& mayGo) {
    struct stat details {};
    if (!readDetails(path, details) || hasNul(spare))
        return systemFailure(hasNul(spare) ? EINVAL : errno);
    if (!S_ISREG(details.st_mode))
        return Failure{"Not a regular file"};
    // What is renamed is whatever has the name by then. Nobody else makes names such as the spare
    // one.
    if (anythingExists(spare))
        return systemFailure(EEXIST);
    // Only what may go is ever seen under the spare name, so that a program that ends here hides
    // nothing else.
    const auto found = readFile(path);
    if (!found)
        return Failure{found.reason()};
    if (!mayGo(*found))
        return false;
    if (::rename(path.c_str(), spare.c_str()) != 0)
        return systemFailure(errno);
    const auto content = readFile(spare);
    const bool goes = content && mayGo(*content);
    if (goes && ::unlink(spare.c_str()) == 0)
        return true;
    const int error = goes ? errno : 0;
    if (const int kept = renameUnlessTaken(spare, path); kept != 0)
        return systemFailure(kept);
    if (!content)
        return Failure{content.reason()};
    return error == 0 ? Result<bool>(false) : systemFailure(error);
}

Outcome flushFile(const std::string& path) {
    if (hasNul(path))
        return systemFailure(EINVAL);
    if (!flushContent(path))
        return systemFailure(errno);
    const auto last = path.rfind('/');
    return flushFolder(last == std::string::npos ? "." : path.substr(0, last + 1));
}

// One that was not written is not flushed again: the system tells of each failure once, and of a
// second try that it went well.
std::vector<std::string> flushFiles(const std::string& folder,
                                    const std::vector<std::string>& names) {
    constexpr std::size_t few = 3;
    const bool isAtOnce = names.size() > few && flushFileSystem(folder);
    std::vector<std::string> failed;
    for (const std::string& name : names) {
        const std::string path = PathRules().join(folder, name);
        if (hasNul(path) || !(isAtOnce ? wasWritten(path) : flushContent(path)))
            failed.push_back(name);
    }
    return flushFolder(folder) ? failed : names;
}

Outcome flushFolder(const std::string& folder) {
    if (hasNul(folder))
        return systemFailure(EINVAL);
    const Descriptor opened(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    // A folder that may be written to but not listed, or a file system that knows no such thing.
    if (!opened.isOpen())
        return errno == EACCES ? Outcome(Done{}) : Outcome(systemFailure(errno));
    const bool flushed = ::fsync(opened.number()) == 0;
    const bool isUnknown = !flushed && (errno == EINVAL || errno == EBADF || errno == EROFS ||
                                        errno == ENOSYS || errno == EOPNOTSUPP);
    return flushed || isUnknown ? Outcome(Done{}) : Outcome(systemFailure(errno));
}

bool isRegularFile(const std::string& path) {
    struct stat details {};
    return readDetails(path, details) && S_ISREG(details.st_mode);
}

bool isFolder(const std::string& path) {
    struct stat details {};
    return readDetails(path, details) && S_ISDIR(details.st_mode);
}

bool anythingExists(const std::string& path) {
    struct stat details {};
    return !hasNul(path) && ::lstat(path.c_str(), &details) == 0;
}

std::string findIgnoringCase(const std::string& folder, std::string_view name) {
    if (!isEntryName(name))
        return {};
    if (anythingExists(folder + '/' + std::string(name)))
        return std::string(name);
    const std::string wanted = upperCase(name);
    std::string found;
    visitNames(folder, [&](std::string_view entry) {
        // Of several spellings the first in byte order, so that the answer never depends on the
        // order in which the system lists them.
        if (upperCase(entry) == wanted && (found.empty() || entry < found))
            found = entry;
    });
    return found;
}

std::string comparedName(std::string_view name) {
    return std::string(name);
}

Outcome createFolder(const std::string& path) {
    if (hasNul(path))
        return systemFailure(EINVAL);
    constexpr mode_t asTheUserWants = 0777;
    if (::mkdir(path.c_str(), asTheUserWants) != 0)
        return systemFailure(errno);
    return Done{};
}

Result<std::string> createTemporaryFolder() {
    const char* const place = std::getenv("TMPDIR");
    std::string path = place && *place == '/' ? place : "/tmp";
    path += "/vantrel-XXXXXX"; // mkdtemp demands six X and puts letters of its own in their place
    if (!::mkdtemp(path.data()))
        return systemFailure(errno);
    return path;
}

Outcome removeFolder(const std::string& path) {
    if (hasNul(path))
        return systemFailure(EINVAL);
    if (::rmdir(path.c_str()) != 0)
        return systemFailure(errno);
    return Done{};
}

std::int64_t namesChangedAt(const std::string& folder) {
    struct stat details {};
    if (!readDetails(folder, details))
        return 0;
    constexpr std::int64_t nanoseconds = 1'000'000'000;
    return details.st_mtim.tv_sec * nanoseconds + details.st_mtim.tv_nsec;
}

std::string currentFolder() {
    const std::unique_ptr<char, decltype(&std::free)> path(::getcwd(nullptr, 0), &std::free);
    return path ? path.get() : "";
}

Outcome changeCurrentFolder(const std::string& path) {
    if (hasNul(path))
        return systemFailure(EINVAL);
    if (::chdir(path.c_str()) != 0)
        return systemFailure(errno);
    return Done{};
}

} // namespace vantrel
