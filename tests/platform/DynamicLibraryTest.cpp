#include "platform/Files.h"
#include "support/LibraryFiles.h"
#include "support/SystemReasons.h"
#include "support/TemporaryFolder.h"

namespace vantrel {
namespace {

using namespace tests;

TEST(DynamicLibrary, GivesItsFunctions) {
    const auto library = DynamicLibrary::load(VANTREL_TEST_LIBRARY);
    ASSERT_TRUE(library) << library.reason();
    const auto answer = reinterpret_cast<int (*)()>((*library)->symbol("vantrelTestAnswer"));
    ASSERT_NE(answer, nullptr);
    EXPECT_EQ(answer(), 42);
}

TEST(DynamicLibrary, GivesNullForAMissingFunction) {
    const auto library = DynamicLibrary::load(VANTREL_TEST_LIBRARY);
    ASSERT_TRUE(library) << library.reason();
    EXPECT_EQ((*library)->symbol("noSuchFunction"), nullptr);
}

TEST(DynamicLibrary, IsLoadedFromAJapaneseFolder) {
    const TemporaryFolder folder;
    const std::string path =
        folder.write("\u8868 \u20AC/test.dll", *readFile(VANTREL_TEST_LIBRARY));
    EXPECT_EQ(reasonFor(path), "");
}

TEST(DynamicLibrary, FailsWhenItIsMissingOrAFolder) {
    const TemporaryFolder folder;
    EXPECT_EQ(reasonFor(folder.path("Zurolink")), noSuchFile());
    EXPECT_FALSE(reasonFor(folder.path()).empty());
}

TEST(DynamicLibrary, FailsForWhatIsNoLibrary) {
    const TemporaryFolder folder;
    for (const std::string& content :
         {std::string(), std::string("MZ"),
          std::string("\x7F"
                      "ELF"),
          "MZ" + std::string(100, '\0'), "MZ" + std::string(58, '\0') + "\xFF\xFF\xFF\xFF",
          "MZ" + std::string(58, '\0') + "\xFF\xFF\xFF\x7F"})
        EXPECT_EQ(reasonFor(folder.write("a", content)), "not a library of this system");
}

TEST(DynamicLibrary, FailsWhenItIsCutShort) {
    const TemporaryFolder folder;
    const std::string content = *readFile(VANTREL_TEST_LIBRARY);
    for (const std::size_t size : {std::size_t{30}, std::size_t{100}, std::size_t{1000},
                                   std::size_t{5000}, content.size() / 2})
        EXPECT_FALSE(reasonFor(folder.write("cut.dll", content.substr(0, size))).empty()) << size;
}

TEST(DynamicLibrary, FailsForAPathWithNul) {
    EXPECT_FALSE(reasonFor(std::string(VANTREL_TEST_LIBRARY) + std::string("\0x", 2)).empty());
}

} // namespace
} // namespace vantrel
