#include "platform/Files.h"
#include "support/LibraryFiles.h"
#include "support/TemporaryFolder.h"

#include <elf.h>
#include <link.h>

namespace vantrel {
namespace {

using namespace tests;

/// The test library with one byte of its file header changed.
std::string changedHeader(const TemporaryFolder& folder, std::size_t offset, char value) {
    std::string content = *readFile(VANTREL_TEST_LIBRARY);
    content[offset] = value;
    return folder.write("changed.so", content);
}

TEST(PosixLibrary, IsLoadedByAbsolutePathOnly) {
    EXPECT_EQ(reasonFor("libm.so.6"), "not an absolute path");
    EXPECT_EQ(reasonFor("./libZurolink.so"), "not an absolute path");
    EXPECT_EQ(reasonFor(""), "not an absolute path");
}

TEST(PosixLibrary, FailsForAFolder) {
    const TemporaryFolder folder;
    EXPECT_EQ(reasonFor(folder.path()), "Not a regular file");
}

TEST(PosixLibrary, SaysThatTheWordSizeIsWrong) {
    const TemporaryFolder folder;
    const bool isWide = sizeof(void*) == 8;
    const char other = isWide ? ELFCLASS32 : ELFCLASS64;
    EXPECT_EQ(reasonFor(changedHeader(folder, EI_CLASS, other)),
              isWide ? "32-bit library, 64-bit program" : "64-bit library, 32-bit program");
}

TEST(PosixLibrary, SaysThatTheProcessorIsAnother) {
    const TemporaryFolder folder;
    constexpr std::size_t machine = EI_NIDENT + 2;
    EXPECT_EQ(reasonFor(changedHeader(folder, machine, 1)),
              "library for another kind of processor");
    EXPECT_EQ(reasonFor(changedHeader(folder, EI_DATA, ELFDATA2MSB)),
              "library for another kind of processor");
}

TEST(PosixLibrary, SaysThatTheFileIsCutShort) {
    const TemporaryFolder folder;
    const std::string content = *readFile(VANTREL_TEST_LIBRARY);
    for (const std::size_t size : {std::size_t{60}, std::size_t{100}, std::size_t{1000}})
        EXPECT_EQ(reasonFor(folder.write("cut.so", content.substr(0, size))),
                  "the file is cut short");
}

TEST(PosixLibrary, GivesTheLoadersTextForABrokenOne) {
    const TemporaryFolder folder;
    constexpr std::size_t programHeaders = offsetof(ElfW(Ehdr), e_phnum);
    EXPECT_NE(reasonFor(changedHeader(folder, programHeaders, 0)).find("changed.so"),
              std::string::npos);
}

} // namespace
} // namespace vantrel
