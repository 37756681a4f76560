#include "files/FolderScan.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>

namespace vantrel::tests {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(Subfolders, ComeInTheOrderOfTheirNamesWithoutRegardToCase) {
    const TemporaryFolder folder;
    for (const char* name : {"b", "A", "C", ".hidden", ".installed", "\u00E4", "\u00C4b"})
        folder.makeFolder(name);
    folder.write("file.JBI", "");
    EXPECT_THAT(subfolders(folder.path()),
                ElementsAre(".hidden", "A", "b", "C", "\u00E4", "\u00C4b"));
}

TEST(Subfolders, OfAFolderThatCannotBeReadAreNone) {
    const TemporaryFolder folder;
    EXPECT_THAT(subfolders(folder.path("gone")), IsEmpty());
    EXPECT_THAT(subfolders(folder.write("file", "")), IsEmpty());
    EXPECT_THAT(subfolders(""), IsEmpty());
}

} // namespace
} // namespace vantrel::tests
