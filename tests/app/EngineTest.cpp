#include "app/start/Engine.h"

#include "ProgramWithoutWindows.h"
#include "lang/LanguageFiles.h"
#include "lang/MessageNumbers.h"
#include "lang/SystemReasons.h"
#include "platform/Environment.h"
#include "support/ProjectFiles.h"
#include "support/SystemReasons.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace vantrel {
namespace {

using testing::ElementsAre;

class EngineTest : public testing::Test {
  protected:
    EngineTest() {
        EXPECT_TRUE(LanguageFiles(tests::dataFolder()).readInto("Japanese", windowless_.messages));
    }

    std::string text(std::int32_t number) const { return windowless_.messages.getMessage(number); }

    tests::TemporaryFolder folder_;
    tests::ProgramWithoutWindows windowless_{folder_.path("Vantrel")};
};

TEST_F(EngineTest, WhyTheLibraryCannotBeUsedIsToldInTheLanguageInForce) {
    const std::string library = folder_.write(libraryFileName(), "no library at all");
    std::vector<std::string> names;
    EXPECT_FALSE(windowless_.engine.session.ReadDirectory(names));
    EXPECT_THAT(windowless_.boxes.texts(), ElementsAre(text(message::libraryUnusable) + library +
                                                       "\n" + text(message::reasonNoLibrary)));
}

// Where the system says it in the operator's own language, its words stay.
TEST_F(EngineTest, ALibraryThatIsMissingIsToldInTheLanguageInForce) {
    std::vector<std::string> names;
    EXPECT_FALSE(windowless_.engine.session.ReadDirectory(names));
    EXPECT_THAT(windowless_.boxes.texts(),
                ElementsAre(text(message::libraryUnusable) + folder_.path(libraryFileName()) +
                            "\n" + reasonInLanguage(windowless_.messages, tests::noSuchFile())));
}

TEST_F(EngineTest, TheProgressTellsTheTimeByAClock) {
    ProgressPanel& progress = windowless_.engine.progress;
    std::chrono::milliseconds seen{-1};
    progress.show("working");
    windowless_.now += std::chrono::seconds(5);
    progress.setPace([&seen](int, int, std::chrono::milliseconds worked) {
        seen = worked;
        return std::string();
    });
    windowless_.now += std::chrono::seconds(3);
    progress.step("still working", 0, 1, "");
    EXPECT_EQ(seen, std::chrono::seconds(3));
}

} // namespace
} // namespace vantrel
