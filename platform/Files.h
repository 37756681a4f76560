#pragma once

#include "base/DateText.h"
#include "base/Result.h"

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace vantrel {

/// File access by absolute UTF-8 path. Every failed open, write, flush and close is a `Failure`
/// with the system's reason.

/// Only a regular file is read: a pipe or a device could hang the caller or never end.
Result<std::string> readFile(const std::string& path);

/// The same, but refused while another program has the file open for writing, where the system can
/// tell: a reader that shares with no writer could not open it either, and what is read might be
/// half of what is being saved.
Result<std::string> readSettledFile(const std::string& path);

/// The same, but refused while another program has the file open at all, where the system can tell:
/// a reader that shares with nobody could not open it either.
Result<std::string> readUnsharedFile(const std::string& path);

/// Replaces the file whole: writes a temporary file beside it, flushes it to the disk and renames
/// it, so that the file is complete old or complete new whatever happens. A symbolic link is
/// followed, the file's permissions are kept, a write-protected file is refused.
Outcome replaceFile(const std::string& path, std::string_view content);

/// An existing `to` is replaced.
Outcome renameFile(const std::string& from, const std::string& to);
/// Fails when anything at all has the new name; another spelling of its own name in letter case is
/// free.
Outcome renameToFree(const std::string& from, const std::string& to);
Outcome removeFile(const std::string& path);
/// Removes the file when `mayGo` says so of its content; false when it stays. No file that somebody
/// saves under the name meanwhile is removed. `spare` is the path of a free name beside it, which
/// the file may have for that time; it still has it afterwards only when its own name was taken
/// meanwhile, which is a failure.
Result<bool> removeFileIf(const std::string& path, const std::string& spare,
                          const std::function<bool(const std::string& content)>& mayGo);

/// What somebody has written to the file is on the disk afterwards, and the file's name too.
Outcome flushFile(const std::string& path);
/// The same for several files of a folder, at much less than the cost of each: the names of those
/// that may not be on the disk.
std::vector<std::string> flushFiles(const std::string& folder,
                                    const std::vector<std::string>& names);
/// The same for the names in a folder. A disk on which that cannot be done is no failure, since
/// nothing better is to be had there; one that fails at it is.
Outcome flushFolder(const std::string& folder);

/// A regular file (or a link to one).
bool isRegularFile(const std::string& path);
bool isFolder(const std::string& path);
/// Whether anything at all has this name, a dangling link included.
bool anythingExists(const std::string& path);

/// The entry's own spelling in `folder` of a name given in any letter case, or an empty text. An
/// exact match wins, then the first in byte order.
std::string findIgnoringCase(const std::string& folder, std::string_view name);

/// The form in which the system compares the names of one folder: those with the same form are one
/// name.
std::string comparedName(std::string_view name);

struct FolderEntry {
    std::string_view name; ///< valid during the call only
    bool isFolder = false;
    std::uint64_t size = 0; ///< bytes
    DateText changed;
    bool detailsKnown = true; ///< false when the entry's details could not be read
};

/// Size and time of one file; what a link leads to is what counts. The name stays empty.
FolderEntry fileDetails(const std::string& path);

/// Calls `visit` for each entry but "." and "..", in the system's order. Fails only when the folder
/// itself cannot be opened. A name that is no valid UTF-8 is shown with U+FFFD.
Outcome visitFolder(const std::string& path, const std::function<void(const FolderEntry&)>& visit);
/// The same without looking at each entry's details: only names.
Outcome visitNames(const std::string& path, const std::function<void(std::string_view)>& visit);
/// The names of the folders only, and of links to folders. A folder's details are not asked for, so
/// that one on which a dead medium is mounted cannot hang the caller.
Outcome visitSubfolders(const std::string& path,
                        const std::function<void(std::string_view)>& visit);

/// Fails when anything has the name already.
Outcome createFolder(const std::string& path);
/// A new empty folder of its own among the system's temporary files, for this user alone.
Result<std::string> createTemporaryFolder();
/// Only an empty one.
Outcome removeFolder(const std::string& path);
/// When the folder's list of names last changed, in the system's finest unit: to be compared only.
/// 0 when it cannot be told.
std::int64_t namesChangedAt(const std::string& folder);

std::string currentFolder();
Outcome changeCurrentFolder(const std::string& path);

} // namespace vantrel
