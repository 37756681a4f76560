#include "FolderNames.h"
#include "platform/ProfileFile.h"
#include "support/TemporaryFolder.h"

#include <chrono>

#include <gtest/gtest.h>

// What a power cut in the middle of a save leaves beside the file, as only this system's saves do.

namespace vantrel {
namespace {

using namespace tests;

void writeWithAge(const TemporaryFolder& folder, const std::string& name, std::chrono::hours age) {
    const std::filesystem::path path = folder.write(name, "left behind");
    std::filesystem::last_write_time(path, std::filesystem::file_time_type::clock::now() - age);
}

void save(const TemporaryFolder& folder, const std::string& value) {
    ProfileFile file(folder.path("Vantrel.ini"));
    ASSERT_TRUE(file.set("Section", "Key", value));
    const auto saved = file.save();
    ASSERT_TRUE(saved) << saved.reason();
}

TEST(WindowsProfileFile, ASaveRemovesWhatAnEarlierOneLeftBehind) {
    const TemporaryFolder folder;
    writeWithAge(folder, ".vantrel-12-3456-0.tmp", std::chrono::hours{25});
    save(folder, "value");
    EXPECT_EQ(namesIn(folder.path()), std::set<std::string>{"Vantrel.ini"});
}

TEST(WindowsProfileFile, ASaveLeavesWhatMayBeInUseOrIsNotItsOwn) {
    const TemporaryFolder folder;
    const std::set<std::string> old{"vantrel-12-3456-0.tmp", ".vantrel-12-3456-0.tmp.old",
                                    ".vantrel.tmp", ".vantrel-folder.tmp/job.jbi"};
    for (const auto& name : old)
        writeWithAge(folder, name, std::chrono::hours{25});
    writeWithAge(folder, ".vantrel-12-3456-1.tmp", std::chrono::hours{23});
    auto expected = namesIn(folder.path());
    expected.insert("Vantrel.ini");
    save(folder, "value");
    EXPECT_EQ(namesIn(folder.path()), expected);
    EXPECT_EQ(folder.read(".vantrel-folder.tmp/job.jbi"), "left behind");
}

} // namespace
} // namespace vantrel
