#include "platform/DynamicLibrary.h"

#include "platform/Environment.h"
#include "platform/Files.h"
#include "support/TemporaryFolder.h"

#include <elf.h>
#include <gtest/gtest.h>

namespace vantrel {
namespace {

using tests::TemporaryFolder;

std::string reasonFor(const std::string& path) {
    const auto library = DynamicLibrary::load(path);
    return library ? "" : library.reason();
}

/// The test library with one byte of its file header changed.
std::string changedHeader(const TemporaryFolder& folder, std::size_t offset, char value) {
    std::string content = *readFile(VANTREL_TEST_LIBRARY);
    content[offset] = value;
    return folder.write("changed.so", content);
}

TEST(DynamicLibrary, GivesItsFunctions) {
    const auto library = DynamicLibrary::load(VANTREL_TEST_LIBRARY);
    ASSERT_TRUE(library) << library.reason();
    const auto answer = reinterpret_cast<int (*)()>((*library)->symbol("vantrelTestAnswer"));
    ASSERT_NE(answer, nullptr);
    EXPECT_EQ(answer(), 42);
}

TEST(DynamicLibrary, GivesNullForAMissingFunction) {
    const auto library = DynamicLibrary::load(VANTREL_TEST_LIBRARY);
    ASSERT_TRUE(library);
    EXPECT_EQ((*library)->symbol("noSuchFunction"), nullptr);
}

TEST(DynamicLibrary, IsLoadedByAbsolutePathOnly) {
    EXPECT_EQ(reasonFor("libm.so.6"), "not an absolute path");
    EXPECT_EQ(reasonFor("./libZurolink.so"), "not an absolute path");
    EXPECT_EQ(reasonFor(""), "not an absolute path");
}

TEST(DynamicLibrary, FailsWhenItIsMissing) {
    const TemporaryFolder folder;
    EXPECT_EQ(reasonFor(folder.path("libZurolink.so")), "No such file or directory");
}

TEST(DynamicLibrary, FailsForAFolder) {
    const TemporaryFolder folder;
    EXPECT_EQ(reasonFor(folder.path()), "Not a regular file");
}

TEST(DynamicLibrary, FailsForWhatIsNoLibrary) {
    const TemporaryFolder folder;
    EXPECT_EQ(reasonFor(folder.write("a.so", "")), "not a library of this system");
    EXPECT_EQ(reasonFor(folder.write("b.so", "\x7F"
                                             "ELF")),
              "not a library of this system");
    EXPECT_EQ(reasonFor(folder.write("c.so", "MZ" + std::string(100, '\0'))),
              "not a library of this system");
}

TEST(DynamicLibrary, SaysThatTheWordSizeIsWrong) {
    const TemporaryFolder folder;
    const bool isWide = sizeof(void*) == 8;
    const char other = isWide ? ELFCLASS32 : ELFCLASS64;
    EXPECT_EQ(reasonFor(changedHeader(folder, EI_CLASS, other)),
              isWide ? "32-bit library, 64-bit program" : "64-bit library, 32-bit program");
}

TEST(DynamicLibrary, SaysThatTheProcessorIsAnother) {
    const TemporaryFolder folder;
    constexpr std::size_t machine = EI_NIDENT + 2;
    EXPECT_EQ(reasonFor(changedHeader(folder, machine, 1)),
              "library for another kind of processor");
    EXPECT_EQ(reasonFor(changedHeader(folder, EI_DATA, ELFDATA2MSB)),
              "library for another kind of processor");
}

TEST(DynamicLibrary, GivesTheLoadersTextForABrokenOne) {
    const TemporaryFolder folder;
    const std::string start = readFile(VANTREL_TEST_LIBRARY)->substr(0, 100);
    EXPECT_FALSE(reasonFor(folder.write("cut.so", start)).empty());
}

TEST(DynamicLibrary, FailsForAPathWithNul) {
    EXPECT_FALSE(reasonFor(std::string(VANTREL_TEST_LIBRARY) + std::string("\0x", 2)).empty());
}

} // namespace
} // namespace vantrel
