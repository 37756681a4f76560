#include "platform/DynamicLibrary.h"
#include "platform/Files.h"
#include "platform/System_windows.h"
#include "support/SystemReasons.h"
#include "support/TemporaryFolder.h"

#include <cstring>

namespace vantrel {
namespace {

using namespace tests;

std::string reasonFor(const std::string& path) {
    const auto library = DynamicLibrary::load(path);
    return library ? "" : library.reason();
}

/// The test library as one for another machine.
std::string forMachine(const TemporaryFolder& folder, WORD machine) {
    std::string content = *readFile(VANTREL_TEST_LIBRARY);
    IMAGE_DOS_HEADER start{};
    std::memcpy(&start, content.data(), sizeof start);
    constexpr std::size_t markSize = 4;
    std::memcpy(&content[static_cast<std::size_t>(start.e_lfanew) + markSize], &machine,
                sizeof machine);
    return folder.write("changed.dll", content);
}

TEST(WindowsLibrary, GivesItsFunctions) {
    const auto library = DynamicLibrary::load(VANTREL_TEST_LIBRARY);
    ASSERT_TRUE(library) << library.reason();
    const auto answer = reinterpret_cast<int (*)()>((*library)->symbol("vantrelTestAnswer"));
    ASSERT_NE(answer, nullptr);
    EXPECT_EQ(answer(), 42);
    EXPECT_EQ((*library)->symbol("noSuchFunction"), nullptr);
}

TEST(WindowsLibrary, IsLoadedFromAJapaneseFolder) {
    const TemporaryFolder folder;
    const std::string path =
        folder.write("\u8868 \u20AC/test.dll", *readFile(VANTREL_TEST_LIBRARY));
    EXPECT_EQ(reasonFor(path), "");
}

TEST(WindowsLibrary, IsLoadedByAbsolutePathOnly) {
    for (const char* path : {"kernel32.dll", ".\\Zurolink.dll", "", "C:Zurolink.dll",
                             "\\Zurolink.dll", "/Zurolink.dll"})
        EXPECT_EQ(reasonFor(path), "not an absolute path") << path;
    EXPECT_EQ(reasonFor("C:\\a.dll" + std::string("\0x", 2)), "not an absolute path");
}

TEST(WindowsLibrary, FailsWhenItIsMissingOrAFolder) {
    const TemporaryFolder folder;
    EXPECT_EQ(reasonFor(folder.path("Zurolink.dll")), noSuchFile());
    EXPECT_FALSE(reasonFor(folder.path()).empty());
}

TEST(WindowsLibrary, FailsForWhatIsNoLibrary) {
    const TemporaryFolder folder;
    const std::string header = "MZ" + std::string(100, '\0');
    for (const std::string& content : {std::string(), std::string("MZ"), header,
                                       "MZ" + std::string(58, '\0') + "\xFF\xFF\xFF\xFF",
                                       "MZ" + std::string(58, '\0') + "\xFF\xFF\xFF\x7F"})
        EXPECT_EQ(reasonFor(folder.write("a.dll", content)), "not a library of this system");
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

TEST(WindowsLibrary, GivesTheLoadersTextForABrokenOne) {
    const TemporaryFolder folder;
    const std::string start = readFile(VANTREL_TEST_LIBRARY)->substr(0, 1000);
    EXPECT_FALSE(reasonFor(folder.write("cut.dll", start)).empty());
}

} // namespace
} // namespace vantrel
