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

} // namespace
} // namespace vantrel
