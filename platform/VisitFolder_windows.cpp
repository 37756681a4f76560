#include "platform/Files.h"
#include "platform/LocalDates_windows.h"
#include "platform/System_windows.h"

namespace vantrel {

namespace {

/// A search through a folder; ended with the object.
class FolderSearch {
  public:
    explicit FolderSearch(const std::wstring& pattern)
        : handle_(::FindFirstFileExW(pattern.c_str(), FindExInfoBasic, &entry_,
                                     FindExSearchNameMatch, nullptr, FIND_FIRST_EX_LARGE_FETCH)) {}
    FolderSearch(const FolderSearch&) = delete;
    FolderSearch& operator=(const FolderSearch&) = delete;
    ~FolderSearch() {
        if (isOpen())
            ::FindClose(handle_);
    }

    bool isOpen() const { return handle_ != INVALID_HANDLE_VALUE; }
    const WIN32_FIND_DATAW& entry() const { return entry_; }
    bool next() { return ::FindNextFileW(handle_, &entry_) != 0; }

  private:
    WIN32_FIND_DATAW entry_{};
    HANDLE handle_;
};

bool isOneself(std::wstring_view name) {
    return name == L"." || name == L"..";
}

bool isFolderEntry(const WIN32_FIND_DATAW& entry) {
    return (entry.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

bool isLinkToFile(const WIN32_FIND_DATAW& entry) {
    return (entry.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0 &&
           entry.dwReserved0 == IO_REPARSE_TAG_SYMLINK && !isFolderEntry(entry);
}

/// Calls `visit` for each entry as the system has it.
template <typename Visit>
Outcome visitEntries(const std::string& path, const Visit& visit) {
    if (hasNul(path))
        return systemFailure(ERROR_INVALID_NAME);
    // With the separator below it no folder at all would become the root of the current drive.
    if (path.empty())
        return systemFailure(ERROR_PATH_NOT_FOUND);
    FolderSearch search(systemPath(path + "\\*"));
    if (!search.isOpen()) {
        const DWORD error = ::GetLastError();
        // An empty drive has not even an entry for itself.
        const bool isEmptyDrive = error == ERROR_FILE_NOT_FOUND && isFolder(path);
        return isEmptyDrive ? Outcome(Done{}) : Outcome(systemFailure(error));
    }
    do {
        if (!isOneself(search.entry().cFileName))
            visit(search.entry());
    } while (search.next());
    const DWORD error = ::GetLastError();
    return error == ERROR_NO_MORE_FILES ? Outcome(Done{}) : Outcome(systemFailure(error));
}

void readEntry(const WIN32_FIND_DATAW& found, FolderEntry& entry) {
    entry.isFolder = isFolderEntry(found);
    if (!entry.isFolder)
        entry.size = (std::uint64_t{found.nFileSizeHigh} << 32u) | found.nFileSizeLow;
    entry.changed = localDateText(found.ftLastWriteTime);
}

/// What a link leads to is what counts; one that leads nowhere has no details.
void readLinkedFile(const std::string& path, FolderEntry& entry) {
    const auto details = readDetails(systemPath(path));
    entry.detailsKnown = details.error == 0;
    entry.size = details.size;
    entry.changed = entry.detailsKnown ? localDateText(details.changed) : DateText();
}

} // namespace

FolderEntry fileDetails(const std::string& path) {
    FolderEntry entry;
    if (hasNul(path))
        entry.detailsKnown = false;
    else
        readLinkedFile(path, entry);
    return entry;
}

Outcome visitFolder(const std::string& path, const std::function<void(const FolderEntry&)>& visit) {
    return visitEntries(path, [&](const WIN32_FIND_DATAW& found) {
        const std::string name = narrow(found.cFileName);
        FolderEntry entry;
        entry.name = name;
        readEntry(found, entry);
        if (isLinkToFile(found))
            readLinkedFile(path + '\\' + name, entry);
        visit(entry);
    });
}

Outcome visitNames(const std::string& path, const std::function<void(std::string_view)>& visit) {
    return visitEntries(path,
                        [&](const WIN32_FIND_DATAW& found) { visit(narrow(found.cFileName)); });
}

Outcome visitSubfolders(const std::string& path,
                        const std::function<void(std::string_view)>& visit) {
    return visitEntries(path, [&](const WIN32_FIND_DATAW& found) {
        if (isFolderEntry(found))
            visit(narrow(found.cFileName));
    });
}

} // namespace vantrel
