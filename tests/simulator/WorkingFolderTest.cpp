#include "simulator/WorkingFolder.h"

#include "platform/Files.h"
#include "simulator/ResultCodes.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace vantrel::simulator {
namespace {

TEST(WorkingFolder, ReadsAndWritesFilesOfTheFolder) {
    const tests::TemporaryFolder folder;
    const WorkingFolder working(folder.path() + "/");

    EXPECT_EQ(working.write("A.JBI", std::string("a\0b\r\n", 5)), code::done);
    EXPECT_EQ(*working.read("A.JBI"), std::string("a\0b\r\n", 5));
}

TEST(WorkingFolder, SaysWhatIsWrong) {
    const tests::TemporaryFolder folder;
    folder.makeFolder("B.JBI");
    const WorkingFolder working(folder.path());
    const WorkingFolder missing(folder.path("missing"));

    EXPECT_EQ(working.read("A.JBI").code(), code::pcFileNotFound);
    EXPECT_EQ(working.read("B.JBI").code(), code::pcFileNotFound);
    EXPECT_EQ(working.read("../A.JBI").code(), code::nameInvalid);
    EXPECT_EQ(working.write("B.JBI", "x"), code::pcFolderNotAccessible);
    EXPECT_EQ(working.write("../A.JBI", "x"), code::nameInvalid);
    EXPECT_EQ(missing.write("A.JBI", "x"), code::pcFolderNotAccessible);
    EXPECT_EQ(missing.read("A.JBI").code(), code::pcFileNotFound);
}

TEST(WorkingFolder, ARelativeFolderStaysTheSameWhenTheCurrentOneChanges) {
    const tests::TemporaryFolder folder;
    folder.write("pc/A.JBI", "x");
    const auto before = currentFolder();
    ASSERT_TRUE(changeCurrentFolder(folder.path()));
    const WorkingFolder working("pc");
    ASSERT_TRUE(changeCurrentFolder(before));

    const auto content = working.read("A.JBI");
    ASSERT_TRUE(content);
    EXPECT_EQ(*content, "x");
}

} // namespace
} // namespace vantrel::simulator
