#include "platform/Files.h"
#include "platform/System_windows.h"
#include "support/LibraryFiles.h"
#include "support/TemporaryFolder.h"

#include <cstring>

namespace vantrel {
namespace {

using namespace tests;

/// The test library as one for another machine.
std::string forMachine(const TemporaryFolder& folder, WORD machine) {
    std::string content = *readFile(VANTREL_TEST_LIBRARY);
    IMAGE_DOS_HEADER start{};
    std::memcpy(&start, content.data(), sizeof start);
    constexpr std::size_t signatureSize = 4;
    std::memcpy(&content[static_cast<std::size_t>(start.e_lfanew) + signatureSize], &machine,
                sizeof machine);
    return folder.write("changed.dll", content);
}

TEST(WindowsLibrary, IsLoadedByAbsolutePathOnly) {
    for (const char* path : {"kernel32.dll", ".\\Zurolink.dll", "", "C:Zurolink.dll",
                             "\\Zurolink.dll", "/Zurolink.dll"})
        EXPECT_EQ(reasonFor(path), "not an absolute path") << path;
    EXPECT_EQ(reasonFor("C:\\a.dll" + std::string("\0x", 2)), "not an absolute path");
}

TEST(WindowsLibrary, SaysThatTheMachineIsWrong) {
    const TemporaryFolder folder;
    const bool isWide = sizeof(void*) == 8;
    const WORD other = isWide ? IMAGE_FILE_MACHINE_I386 : IMAGE_FILE_MACHINE_AMD64;
    EXPECT_EQ(reasonFor(forMachine(folder, other)),
              isWide ? "32-bit library, 64-bit program" : "64-bit library, 32-bit program");
    EXPECT_EQ(reasonFor(forMachine(folder, IMAGE_FILE_MACHINE_ARM64)),
              "library for another kind of processor");
}

} // namespace
} // namespace vantrel
