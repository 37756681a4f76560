#include "app/commands/HelpCommands.h"

#include <gtest/gtest.h>

namespace vantrel::tests {
namespace {

TEST(VersionText, JoinsMinorAndRevisionWithoutASeparator) {
    EXPECT_EQ(versionText({1, 2, 3}), "1.23");
    EXPECT_EQ(versionText({1, 0, 0}), "1.00");
    EXPECT_EQ(versionText({2, 10, 4}), "2.104");
}

TEST(VersionText, TheProgramHasAVersion) {
    EXPECT_GE(programVersion().major, 1);
}

} // namespace
} // namespace vantrel::tests
