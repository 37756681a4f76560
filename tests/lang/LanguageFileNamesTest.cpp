#include "lang/LanguageFiles.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace vantrel {
namespace {

TEST(LanguageFileNames, ThatOtherSystemsCannotHoldAreNoLanguages) {
    const tests::TemporaryFolder folder;
    const LanguageFiles files(folder.path());
    for (const char* name : {"a*b", "c:d", "CON", "x\\y"}) {
        folder.write(std::string(name) + ".lng", "Start:\n1 \"one\" \"eins\"\n");
        EXPECT_FALSE(files.exists(name)) << name;
    }
    EXPECT_TRUE(files.names().empty());
}

} // namespace
} // namespace vantrel
