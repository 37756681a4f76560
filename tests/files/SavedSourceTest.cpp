#include "CommandFixture.h"
#include "files/SentSources.h"
#include "platform/Files.h"

#include <filesystem>

#include <gmock/gmock.h>

namespace vantrel {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// Somebody saves the file in the moment between the look at what is on the disk and its removal.
struct SavedSourceTest : tests::CommandFixture {
    std::function<void()> save;
    int savesAtLook = 2; ///< the first is at the file under its own name
    int looks = 0;
    SentSources sources{{state, session, panes, window, table, messages, progress, talk, results},
                        [this](const std::string& path, const std::string& spare,
                               const std::function<bool(const std::string&)>& mayGo) {
                            return removeFileIf(path, spare, [&](const std::string& content) {
                                const bool goes = mayGo(content);
                                if (++looks == savesAtLook)
                                    save();
                                return goes;
                            });
                        }};

    void sendAndRemove() {
        robot();
        ASSERT_TRUE(session.JobDownLoad("A.JBI"));
        sources.add("A.JBI");
        std::vector<std::string> names;
        ASSERT_TRUE(session.ReadDirectory(names));
        sources.conclude();
    }
};

TEST_F(SavedSourceTest, WhatNobodyTouchesGoes) {
    pcJob("A");
    save = [] {};
    sendAndRemove();
    EXPECT_TRUE(sources.allWent());
    EXPECT_TRUE(std::filesystem::is_empty(pc.path()));
    EXPECT_THAT(boxes.shown, IsEmpty());
}

TEST_F(SavedSourceTest, WhatIsSavedThenStaysAndIsTold) {
    pcJob("A");
    save = [this] { pcJob("A", "2"); };
    sendAndRemove();
    EXPECT_FALSE(sources.allWent());
    EXPECT_EQ(pc.read("A.JBI"), job("A", "2"));
    EXPECT_FALSE(pc.has("A.JBI.sent-1"));
    EXPECT_THAT(boxes.texts(), ElementsAre("[A.JBI] changed meanwhile, stays"));
}

TEST_F(SavedSourceTest, WhatIsSavedBeforeTheFileIsSetAsideStaysAndIsTold) {
    pcJob("A");
    savesAtLook = 1;
    save = [this] { pcJob("A", "2"); };
    sendAndRemove();
    EXPECT_FALSE(sources.allWent());
    EXPECT_EQ(pc.read("A.JBI"), job("A", "2"));
    EXPECT_FALSE(pc.has("A.JBI.sent-1"));
    EXPECT_THAT(boxes.texts(), ElementsAre("[A.JBI] changed meanwhile, stays"));
}

TEST_F(SavedSourceTest, OfTwoNewerVersionsNoneIsLost) {
    pcJob("A");
    int saved = 1;
    save = [&] {
        pcJob("A", std::to_string(++saved));
        savesAtLook = 2;
    };
    savesAtLook = 1;
    sendAndRemove();
    EXPECT_FALSE(sources.allWent());
    EXPECT_EQ(pc.read("A.JBI"), job("A", "3"));
    EXPECT_EQ(pc.read("A.JBI.sent-1"), job("A", "2"));
    EXPECT_THAT(boxes.texts(), ElementsAre("[A.JBI] kept as [A.JBI.sent-1]"));
}

TEST_F(SavedSourceTest, AnotherReasonForStayingIsTold) {
    pcJob("A");
    SentSources refused({state, session, panes, window, table, messages, progress, talk, results},
                        [](const auto&, const auto&, const auto&) { return Failure{"no"}; });
    robot();
    ASSERT_TRUE(session.JobDownLoad("A.JBI"));
    refused.add("A.JBI");
    std::vector<std::string> names;
    ASSERT_TRUE(session.ReadDirectory(names));
    refused.conclude();
    EXPECT_FALSE(refused.allWent());
    EXPECT_THAT(boxes.texts(), ElementsAre("[A.JBI] original not deleted ( no )"));
}

} // namespace
} // namespace vantrel
