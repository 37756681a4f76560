#include "base/Text.h"
#include "platform/Descriptor_posix.h"
#include "platform/Files.h"
#include "platform/LocalDates_posix.h"

#include <memory>

#include <dirent.h>
#include <fcntl.h>

namespace vantrel {

namespace {

struct CloseFolder {
    void operator()(DIR* folder) const { ::closedir(folder); }
};
using Folder = std::unique_ptr<DIR, CloseFolder>;

bool isOneself(std::string_view name) {
    return name == "." || name == "..";
}

/// Calls `visit` with the folder's descriptor and each entry as the system has it.
template <typename Visit>
Outcome visitEntries(const std::string& path, const Visit& visit) {
    if (hasNul(path))
        return systemFailure(EINVAL);
    const Folder folder(::opendir(path.c_str()));
    if (!folder)
        return systemFailure(errno);
    while (true) {
        errno = 0;
        const dirent* entry = ::readdir(folder.get());
        if (!entry)
            return errno == 0 ? Outcome(Done{}) : Outcome(systemFailure(errno));
        if (!isOneself(entry->d_name))
            visit(::dirfd(folder.get()), *entry);
    }
}

/// The name to show; `storage` holds it when it differs from the system's bytes.
std::string_view shownName(std::string_view name, std::string& storage) {
    if (isValidUtf8(name))
        return name;
    storage = utf8(codePoints(name));
    return storage;
}

/// What a link leads to is what counts; one that leads nowhere has no details.
void readEntry(int folder, const char* name, LocalDates& dates, FolderEntry& entry) {
    struct stat details {};
    if (::fstatat(folder, name, &details, 0) != 0) {
        entry.detailsKnown = false;
        return;
    }
    entry.isFolder = S_ISDIR(details.st_mode);
    entry.size = entry.isFolder ? 0 : static_cast<std::uint64_t>(details.st_size);
    entry.changed = dates.text(details.st_mtime);
}

/// Only links, and entries of file systems that do not tell the kind, have to be looked at.
bool leadsToFolder(int folder, const dirent& entry) {
    if (entry.d_type != DT_LNK && entry.d_type != DT_UNKNOWN)
        return entry.d_type == DT_DIR;
    struct stat details {};
    return ::fstatat(folder, entry.d_name, &details, 0) == 0 && S_ISDIR(details.st_mode);
}

} // namespace

FolderEntry fileDetails(const std::string& path) {
    LocalDates dates;
    FolderEntry entry;
    if (hasNul(path))
        entry.detailsKnown = false;
    else
        readEntry(AT_FDCWD, path.c_str(), dates, entry);
    return entry;
}

Outcome visitFolder(const std::string& path, const std::function<void(const FolderEntry&)>& visit) {
    LocalDates dates;
    std::string storage;
    return visitEntries(path, [&](int folder, const dirent& found) {
        FolderEntry entry;
        entry.name = shownName(found.d_name, storage);
        readEntry(folder, found.d_name, dates, entry);
        visit(entry);
    });
}

Outcome visitNames(const std::string& path, const std::function<void(std::string_view)>& visit) {
    std::string storage;
    return visitEntries(path,
                        [&](int, const dirent& found) { visit(shownName(found.d_name, storage)); });
}

Outcome visitSubfolders(const std::string& path,
                        const std::function<void(std::string_view)>& visit) {
    std::string storage;
    return visitEntries(path, [&](int folder, const dirent& found) {
        if (leadsToFolder(folder, found))
            visit(shownName(found.d_name, storage));
    });
}

} // namespace vantrel
