#include "files/FolderScan.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>

namespace vantrel::tests {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(FolderFiles, ComeInTheOrderOfTheirNamesWithoutRegardToCaseAndWithoutFolders) {
    const TemporaryFolder folder;
    for (const char* name : {"b.JBI", "A.JBI", ".hidden", "C.jbi"})
        folder.write(name, "");
    folder.makeFolder("AB");
    EXPECT_THAT(folderFiles(folder.path()), ElementsAre(".hidden", "A.JBI", "b.JBI", "C.jbi"));
}

TEST(FolderFiles, OfAFolderThatCannotBeReadAreNone) {
    const TemporaryFolder folder;
    EXPECT_THAT(folderFiles(folder.path("gone")), IsEmpty());
    EXPECT_THAT(folderFiles(folder.write("file", "")), IsEmpty());
}

} // namespace
} // namespace vantrel::tests
