#include "app/start/DeliveredFiles.h"

#include "platform/Environment.h"
#include "platform/Files.h"
#include "support/TemporaryFolder.h"

#include <filesystem>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace vantrel {
namespace {

using testing::ElementsAre;

class DeliveredFilesTest : public testing::Test {
  protected:
    void deliver(const std::string& name, const std::string& content) {
        folder_.write(".installed/" + name + ".new", content);
    }
    /// As an earlier version has left it.
    void inPlace(const std::string& name, const std::string& content) {
        folder_.write(name, content);
        folder_.write(".installed/" + name, content);
    }
    std::vector<std::string> takePlaces() const {
        std::vector<std::string> failed;
        for (const auto& file : DeliveredFiles(folder_.path()).takePlaces())
            failed.push_back(file.path + ": " + file.reason);
        return failed;
    }
    bool isWaiting(const std::string& name) const {
        return folder_.has(".installed/" + name + ".new");
    }

    const std::string library_ = libraryFileName();
    const std::string simulator_ = std::string("\0binary ZurolinkSimulator\0", 26);
    tests::TemporaryFolder folder_;
};

TEST_F(DeliveredFilesTest, AFirstStartPutsEverythingInPlaceAndRemembersIt) {
    deliver("English.lng", "one");
    deliver(library_, simulator_);
    EXPECT_THAT(takePlaces(), ElementsAre());
    EXPECT_EQ(folder_.read("English.lng"), "one");
    EXPECT_EQ(folder_.read(".installed/English.lng"), "one");
    EXPECT_EQ(folder_.read(library_), simulator_);
    EXPECT_FALSE(isWaiting("English.lng"));
    EXPECT_FALSE(isWaiting(library_));
}

TEST_F(DeliveredFilesTest, WithoutADeliveryNothingChanges) {
    inPlace("English.lng", "one");
    folder_.write("English.lng", "mine");
    EXPECT_THAT(takePlaces(), ElementsAre());
    EXPECT_EQ(folder_.read("English.lng"), "mine");
    EXPECT_FALSE(folder_.has("English.lng.old"));
}

TEST_F(DeliveredFilesTest, AFolderThatNothingWasDeliveredToIsNoFailure) {
    EXPECT_THAT(takePlaces(), ElementsAre());
    EXPECT_FALSE(folder_.has(".installed"));
}

TEST_F(DeliveredFilesTest, ADeletedTextComesBackWithTheNextVersionOnly) {
    inPlace("English.lng", "one");
    ASSERT_TRUE(removeFile(folder_.path("English.lng")));
    takePlaces();
    EXPECT_FALSE(folder_.has("English.lng"));
    deliver("English.lng", "two");
    takePlaces();
    EXPECT_EQ(folder_.read("English.lng"), "two");
}

TEST_F(DeliveredFilesTest, AnUnchangedTextIsRenewedAndLeavesNothing) {
    inPlace("FileTable.tbl", "one");
    deliver("FileTable.tbl", "two");
    takePlaces();
    EXPECT_EQ(folder_.read("FileTable.tbl"), "two");
    EXPECT_EQ(folder_.read(".installed/FileTable.tbl"), "two");
    EXPECT_FALSE(folder_.has("FileTable.tbl.old"));
}

TEST_F(DeliveredFilesTest, AChangedTextStaysBesideTheNewOne) {
    inPlace("English.lng", "one");
    folder_.write("English.lng", "mine");
    deliver("English.lng", "two");
    takePlaces();
    EXPECT_EQ(folder_.read("English.lng"), "two");
    EXPECT_EQ(folder_.read("English.lng.old"), "mine");
}

TEST_F(DeliveredFilesTest, WhatNobodyRemembersCountsAsChanged) {
    folder_.write("English.lng", "mine");
    deliver("English.lng", "two");
    takePlaces();
    EXPECT_EQ(folder_.read("English.lng.old"), "mine");
}

TEST_F(DeliveredFilesTest, ATextThatIsTheNewOneAlreadyIsNotKept) {
    folder_.write("English.lng", "two");
    deliver("English.lng", "two");
    takePlaces();
    EXPECT_FALSE(folder_.has("English.lng.old"));
    EXPECT_EQ(folder_.read(".installed/English.lng"), "two");
}

TEST_F(DeliveredFilesTest, ChangedTextsOfSeveralVersionsAllStay) {
    for (int version = 1; version <= 3; ++version) {
        folder_.write("English.lng", "mine " + std::to_string(version));
        deliver("English.lng", "version " + std::to_string(version));
        takePlaces();
    }
    EXPECT_EQ(folder_.read("English.lng.old"), "mine 1");
    EXPECT_EQ(folder_.read("English.lng.old2"), "mine 2");
    EXPECT_EQ(folder_.read("English.lng.old3"), "mine 3");
    EXPECT_FALSE(folder_.has("English.lng.old4"));
}

TEST_F(DeliveredFilesTest, WhatIsKeptAlreadyIsNotKeptTwice) {
    folder_.write("English.lng.old", "other");
    folder_.write("English.lng.old2", "mine");
    folder_.write("English.lng", "mine");
    deliver("English.lng", "two");
    takePlaces();
    EXPECT_FALSE(folder_.has("English.lng.old3"));
}

TEST_F(DeliveredFilesTest, NoKeptTextEverGivesWay) {
    folder_.write("English.lng.old", "kept");
    for (int number = 2; number <= 11; ++number)
        folder_.write("English.lng.old" + std::to_string(number), "kept");
    folder_.write("English.lng", "mine");
    deliver("English.lng", "two");
    EXPECT_THAT(takePlaces(), ElementsAre());
    for (int number = 2; number <= 11; ++number)
        EXPECT_EQ(folder_.read("English.lng.old" + std::to_string(number)), "kept") << number;
    EXPECT_EQ(folder_.read("English.lng.old12"), "mine");
    EXPECT_EQ(folder_.read("English.lng"), "two");
}

TEST_F(DeliveredFilesTest, AChangedTextIsKeptBesideAFolderOfItsName) {
    folder_.makeFolder("English.lng.old");
    folder_.write("English.lng", "mine");
    deliver("English.lng", "two");
    EXPECT_THAT(takePlaces(), ElementsAre());
    EXPECT_EQ(folder_.read("English.lng.old2"), "mine");
    EXPECT_EQ(folder_.read("English.lng"), "two");
}

// Else each later start would find the operator's next change and undo that one too.
TEST_F(DeliveredFilesTest, NothingIsTouchedUnlessItCanBeRememberedAfterwards) {
    folder_.makeFolder(".installed/English.lng");
    folder_.write("English.lng", "mine");
    deliver("English.lng", "two");
    const auto failed = takePlaces();
    ASSERT_EQ(failed.size(), 1u);
    EXPECT_THAT(failed[0], testing::StartsWith(folder_.path("English.lng") + ": "));
    EXPECT_EQ(folder_.read("English.lng"), "mine");
    EXPECT_FALSE(folder_.has("English.lng.old"));
    EXPECT_TRUE(isWaiting("English.lng"));
}

TEST_F(DeliveredFilesTest, WhatIsRememberedAndWriteProtectedLeavesTheTextAlone) {
    inPlace("English.lng", "one");
    folder_.write("English.lng", "mine");
    deliver("English.lng", "two");
    const std::filesystem::path remembered = folder_.path(".installed/English.lng");
    std::filesystem::permissions(remembered, std::filesystem::perms::owner_read);
    // Some users may write what is write-protected.
    const bool bindsUs = !replaceFile(remembered.string(), "one");
    EXPECT_EQ(takePlaces().size(), bindsUs ? 1u : 0u);
    EXPECT_EQ(folder_.read("English.lng"), bindsUs ? "mine" : "two");
    EXPECT_EQ(folder_.has("English.lng.old"), !bindsUs);
    EXPECT_EQ(isWaiting("English.lng"), bindsUs);
    std::filesystem::permissions(remembered, std::filesystem::perms::owner_all);
}

TEST_F(DeliveredFilesTest, NothingIsTouchedWhereThePlacingCannotBegin) {
    folder_.makeFolder(".installed/English.lng.placing/inner");
    inPlace("English.lng", "one");
    folder_.write("English.lng", "mine");
    deliver("English.lng", "two");
    EXPECT_EQ(takePlaces().size(), 1u) << "named once";
    EXPECT_EQ(folder_.read("English.lng"), "mine");
    EXPECT_FALSE(folder_.has("English.lng.old"));
    EXPECT_TRUE(isWaiting("English.lng"));
}

TEST_F(DeliveredFilesTest, APlacingThatWasCutShortIsEndedAtTheNextStart) {
    inPlace("English.lng", "one");
    folder_.write("English.lng", "mine");
    folder_.write(".installed/English.lng.placing", "two");
    EXPECT_THAT(takePlaces(), ElementsAre());
    EXPECT_EQ(folder_.read("English.lng"), "two");
    EXPECT_EQ(folder_.read("English.lng.old"), "mine");
    EXPECT_EQ(folder_.read(".installed/English.lng"), "two");
    EXPECT_FALSE(folder_.has(".installed/English.lng.placing"));
}

TEST_F(DeliveredFilesTest, APlacingThatOnlyLacksItsMemoryKeepsNothing) {
    inPlace("English.lng", "one");
    folder_.write("English.lng", "two");
    folder_.write(".installed/English.lng.placing", "two");
    EXPECT_THAT(takePlaces(), ElementsAre());
    EXPECT_EQ(folder_.read(".installed/English.lng"), "two");
    EXPECT_FALSE(folder_.has(".installed/English.lng.placing"));
    EXPECT_FALSE(folder_.has("English.lng.old"));
}

TEST_F(DeliveredFilesTest, ANewerVersionTakesThePlaceOfOneThatWasCutShort) {
    inPlace("English.lng", "one");
    folder_.write("English.lng", "two");
    folder_.write(".installed/English.lng.placing", "two");
    deliver("English.lng", "three");
    EXPECT_THAT(takePlaces(), ElementsAre());
    EXPECT_EQ(folder_.read("English.lng"), "three");
    EXPECT_EQ(folder_.read(".installed/English.lng"), "three");
    EXPECT_FALSE(folder_.has(".installed/English.lng.placing"));
    EXPECT_FALSE(folder_.has("English.lng.old")) << "the second version is nobody's change";
}

TEST_F(DeliveredFilesTest, WhatAnotherProgramHasPlacedMeanwhileIsNoFailure) {
    inPlace("English.lng", "one");
    deliver("English.lng", "two");
    deliver(library_, simulator_);
    const DeliveredFiles slower(folder_.path());
    const auto waiting = slower.waiting();
    EXPECT_EQ(waiting.size(), 2u);
    takePlaces();
    EXPECT_TRUE(slower.takePlaces(waiting).empty());
    EXPECT_EQ(folder_.read("English.lng"), "two");
    EXPECT_EQ(folder_.read(library_), simulator_);
}

TEST_F(DeliveredFilesTest, AnEmptyDeliveryReplacesNothingAndIsNamed) {
    inPlace("English.lng", "one");
    folder_.write(library_, "older, ZurolinkSimulator too");
    deliver("English.lng", "");
    deliver(library_, "");
    EXPECT_THAT(takePlaces(),
                ElementsAre(folder_.path("English.lng") + ": The delivered file is empty",
                            folder_.path(library_) + ": The delivered file is empty"));
    EXPECT_EQ(folder_.read("English.lng"), "one");
    EXPECT_EQ(folder_.read(".installed/English.lng"), "one");
    EXPECT_EQ(folder_.read(library_), "older, ZurolinkSimulator too");
}

TEST_F(DeliveredFilesTest, OnlyWhatWaitsUnderANameIsPlaced) {
    folder_.write(".installed/.new", "nameless");
    folder_.write(".installed/English.lng.part", "half of it");
    EXPECT_THAT(takePlaces(), ElementsAre());
    EXPECT_FALSE(folder_.has("English.lng"));
    EXPECT_TRUE(folder_.has(".installed/English.lng.part"));
}

TEST_F(DeliveredFilesTest, FailuresAreNamedInTheOrderOfTheirNames) {
    for (const char* name : {"d", "b", "f", "a", "e", "c"}) {
        folder_.makeFolder(name);
        deliver(name, "two");
    }
    std::string order;
    for (const auto& file : DeliveredFiles(folder_.path()).takePlaces())
        order += file.path.back();
    EXPECT_EQ(order, "abcdef");
}

TEST_F(DeliveredFilesTest, AnOlderSimulatorIsReplaced) {
    folder_.write(library_, "older, ZurolinkSimulator too");
    deliver(library_, simulator_);
    takePlaces();
    EXPECT_EQ(folder_.read(library_), simulator_);
    EXPECT_FALSE(folder_.has(library_ + ".old"));
}

TEST_F(DeliveredFilesTest, TheMakersLibraryStaysInForce) {
    folder_.write(library_, "the maker's own");
    deliver(library_, simulator_);
    EXPECT_THAT(takePlaces(), ElementsAre());
    EXPECT_EQ(folder_.read(library_), "the maker's own");
    EXPECT_FALSE(isWaiting(library_));
}

TEST_F(DeliveredFilesTest, WhatCannotBePlacedIsNamedAndTriedAgain) {
    folder_.makeFolder("English.lng");
    deliver("English.lng", "two");
    deliver("Japanese.lng", "two");
    const auto failed = takePlaces();
    ASSERT_EQ(failed.size(), 1u);
    EXPECT_THAT(failed[0], testing::StartsWith(folder_.path("English.lng") + ": "));
    EXPECT_TRUE(isWaiting("English.lng"));
    EXPECT_EQ(folder_.read("Japanese.lng"), "two");
    std::filesystem::remove(folder_.path("English.lng"));
    EXPECT_THAT(takePlaces(), ElementsAre());
    EXPECT_EQ(folder_.read("English.lng"), "two");
}

} // namespace
} // namespace vantrel
