#include "link/FetchFiles.h"
#include "link/FetchMark.h"
#include "link/ReplacedFile.h"
#include "link/SessionErrorRecord.h"
#include "platform/HeldFile.h"
#include "support/TemporaryFolder.h"

#include <filesystem>
#include <iterator>

#include <gtest/gtest.h>

namespace vantrel {
namespace {

/// Looks into the mark of a fetch that runs, and takes it away: on Windows nobody can do either.
struct HeldMarkTest : testing::Test {
    tests::TemporaryFolder folder;
    FetchFiles files;
};

TEST_F(HeldMarkTest, TheFolderIsMarkedAsLongAsNothingIsDecided) {
    folder.write("A.JBI", "old");
    const std::string name = FetchMark::fileNameFor("A.JBI");
    EXPECT_EQ(name.find('.'), std::string::npos) << "filters show names with a point only";
    {
        const ReplacedFile file(files, folder.path(), "A.JBI");
        const auto mark = FetchMark::parse(folder.read(name));
        ASSERT_TRUE(mark);
        EXPECT_EQ(mark->name, "A.JBI");
        EXPECT_EQ(mark->aside, "A.JBI.replaced-1");
        EXPECT_TRUE(mark->describes(folder.path("A.JBI.replaced-1")));
        EXPECT_FALSE(*HeldFile::take(folder.path(name)));
    }
    EXPECT_FALSE(folder.has(name));
}

TEST_F(HeldMarkTest, WhatSomebodyElseHasSettledIsNotKept) {
    folder.write("A.JBI", "old");
    {
        ReplacedFile file(files, folder.path(), "A.JBI");
        std::filesystem::rename(folder.path("A.JBI.replaced-1"), folder.path("A.JBI"));
        std::filesystem::remove(folder.path(FetchMark::fileNameFor("A.JBI")));
        EXPECT_EQ(file.keep(), session_code::fileDidNotArrive);
    }
    EXPECT_EQ(folder.read("A.JBI"), "old");
    const std::filesystem::directory_iterator found(folder.path());
    EXPECT_EQ(std::distance(begin(found), end(found)), 1);
}

} // namespace
} // namespace vantrel
