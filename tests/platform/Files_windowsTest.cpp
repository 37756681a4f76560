#include "FolderNames.h"
#include "base/PathRules.h"
#include "platform/Files.h"
#include "platform/System_windows.h"
#include "support/ReplacedImport.h"
#include "support/TemporaryFolder.h"

// What only Windows has: files open in other hands, an attribute for write-protection, and paths
// beyond the length that its functions take as they are.

namespace vantrel {
namespace {

using namespace tests;

void protect(const std::string& path, bool on) {
    ASSERT_TRUE(::SetFileAttributesW(wide(path).c_str(),
                                     on ? FILE_ATTRIBUTE_READONLY : FILE_ATTRIBUTE_NORMAL));
}

TEST(WindowsReplaceFile, ReplacesAFileThatIsOpenAndLeavesItsReaderTheOldBytes) {
    const TemporaryFolder folder;
    const std::string path = folder.write("file", "old");
    const Handle old(::CreateFileW(wide(path).c_str(), GENERIC_READ,
                                   FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                   OPEN_EXISTING, 0, nullptr));
    ASSERT_TRUE(replaceFile(path, "new"));
    char bytes[8] = {};
    DWORD count = 0;
    ASSERT_TRUE(::ReadFile(old.get(), bytes, sizeof bytes, &count, nullptr));
    EXPECT_EQ(std::string(bytes, count), "old");
}

TEST(WindowsReplaceFile, LeavesAWriteProtectedFileAlone) {
    const TemporaryFolder folder;
    const std::string path = folder.write("file", "old");
    protect(path, true);
    EXPECT_EQ(replaceFile(path, "new").reason(), systemFailure(ERROR_ACCESS_DENIED).reason);
    EXPECT_EQ(folder.read("file"), "old");
    EXPECT_EQ(namesIn(folder.path()), std::set<std::string>{"file"});
    protect(path, false);
}

/// A program that saves the file keeps the strictest reader out, and one that only reads it
/// doesn't.
TEST(WindowsFiles, AFileThatIsOpenForWritingIsNotSettled) {
    const TemporaryFolder folder;
    const std::string path = folder.write("file", "half");
    const auto open = [&path](DWORD access) {
        return Handle(::CreateFileW(wide(path).c_str(), access,
                                    FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                    OPEN_EXISTING, 0, nullptr));
    };
    {
        const Handle writer = open(GENERIC_WRITE);
        EXPECT_TRUE(readFile(path));
        const auto refused = readSettledFile(path);
        ASSERT_FALSE(refused);
        EXPECT_EQ(refused.reason(), systemFailure(ERROR_SHARING_VIOLATION).reason);
    }
    const Handle reader = open(GENERIC_READ);
    ASSERT_TRUE(readSettledFile(path));
    EXPECT_EQ(*readSettledFile(path), "half");
}

TEST(WindowsFiles, TakePathsOfAnyLength) {
    const TemporaryFolder folder;
    std::string deep = folder.path();
    for (int i = 0; i < 6; ++i) {
        deep += "\\" + std::string(60, static_cast<char>('a' + i));
        ASSERT_TRUE(::CreateDirectoryW(systemPath(deep).c_str(), nullptr)) << deep.size();
    }
    const std::string file = deep + "\\job.jbi";
    ASSERT_GT(file.size(), std::size_t{MAX_PATH});
    const auto written = replaceFile(file, "content");
    ASSERT_TRUE(written) << written.reason();
    EXPECT_TRUE(replaceFile(file, "more"));
    EXPECT_EQ(*readFile(file), "more");
    EXPECT_TRUE(isRegularFile(file) && isFolder(deep));
    std::string names;
    EXPECT_TRUE(visitNames(deep, [&](std::string_view name) { names += name; }));
    EXPECT_EQ(names, "job.jbi");
    EXPECT_EQ(findIgnoringCase(deep, "JOB.JBI"), "job.jbi");
    EXPECT_TRUE(renameFile(file, deep + "\\other.jbi"));
    EXPECT_TRUE(removeFile(deep + "\\other.jbi"));
    for (PathRules rules; deep.size() > folder.path().size(); deep = rules.parent(deep))
        ::RemoveDirectoryW(systemPath(rules.withoutTrailingSeparator(deep)).c_str());
}

TEST(WindowsFiles, NobodySavesAFileWhileItIsRemoved) {
    const TemporaryFolder folder;
    const std::string path = folder.write("A.JBI", "sent");
    const auto removed =
        removeFileIf(path, folder.path("A.JBI.sent-1"), [&](const std::string& content) {
            EXPECT_FALSE(renameFile(folder.write("saved", "new"), path));
            const Handle writer(
                ::CreateFileW(wide(path).c_str(), GENERIC_WRITE,
                              FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                              OPEN_EXISTING, 0, nullptr));
            EXPECT_FALSE(writer.isOpen());
            return content == "sent";
        });
    ASSERT_TRUE(removed) << removed.reason();
    EXPECT_TRUE(*removed);
    EXPECT_EQ(namesIn(folder.path()), std::set<std::string>{"saved"});
}

std::vector<DWORD> flagsOfRemovals;
HANDLE WINAPI noteRemoval(const wchar_t* path, DWORD access, DWORD sharing,
                          SECURITY_ATTRIBUTES* security, DWORD creation, DWORD flags,
                          HANDLE pattern) {
    if ((access & DELETE) != 0)
        flagsOfRemovals.push_back(flags);
    const auto systems = reinterpret_cast<decltype(&::CreateFileW)>(
        reinterpret_cast<void*>(::GetProcAddress(::GetModuleHandleW(L"kernel32"), "CreateFileW")));
    return systems(path, access, sharing, security, creation, flags, pattern);
}

DWORD WINAPI attributesOfALink(const wchar_t* /*path*/) {
    return FILE_ATTRIBUTE_REPARSE_POINT;
}

/// Not every system makes a link for everybody, so a file passes for one here: its name is to be
/// held and removed itself, and not what it leads to.
TEST(WindowsFiles, NobodyPutsAnotherFileInTheNameOfALinkWhileItIsRemoved) {
    using Function = ReplacedImport::Function;
    const TemporaryFolder folder;
    const std::string path = folder.write("LINK.JBI", "sent");
    const std::string saved = folder.write("saved", "new");
    flagsOfRemovals.clear();
    {
        const ReplacedImport open("CreateFileW", reinterpret_cast<Function>(&noteRemoval));
        const ReplacedImport look("GetFileAttributesW",
                                  reinterpret_cast<Function>(&attributesOfALink));
        ASSERT_TRUE(open.isFound() && look.isFound());
        const auto removed =
            removeFileIf(path, folder.path("LINK.JBI.sent-1"), [&](const std::string& content) {
                EXPECT_FALSE(renameFile(saved, path));
                return content == "sent";
            });
        ASSERT_TRUE(removed) << removed.reason();
        EXPECT_TRUE(*removed);
    }
    ASSERT_EQ(flagsOfRemovals.size(), 1u);
    EXPECT_NE(flagsOfRemovals[0] & FILE_FLAG_OPEN_REPARSE_POINT, 0u);
    EXPECT_EQ(namesIn(folder.path()), std::set<std::string>{"saved"});
}

/// Even a program that only reads the file keeps a reader out that shares it with nobody.
TEST(WindowsFiles, AFileThatIsOpenAtAllIsNotUnshared) {
    const TemporaryFolder folder;
    const std::string path = folder.write("file", "whole");
    {
        const Handle reader(::CreateFileW(wide(path).c_str(), GENERIC_READ,
                                          FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                                          nullptr, OPEN_EXISTING, 0, nullptr));
        const auto refused = readUnsharedFile(path);
        ASSERT_FALSE(refused);
        EXPECT_EQ(refused.reason(), systemFailure(ERROR_SHARING_VIOLATION).reason);
    }
    ASSERT_TRUE(readUnsharedFile(path));
    EXPECT_EQ(*readUnsharedFile(path), "whole");
}

TEST(WindowsFiles, NamesKnowNoLetterCase) {
    EXPECT_EQ(comparedName("aB.jbi"), comparedName("Ab.JBI"));
}

} // namespace
} // namespace vantrel
