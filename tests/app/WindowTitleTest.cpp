#include "AppFakes.h"
#include "app/commands/ModeCommands.h"

#include <gtest/gtest.h>

namespace vantrel {
namespace {

TEST(WindowTitleTest, NamesTheMode) {
    const MessageTable messages = tests::numberedMessages();
    EXPECT_EQ(windowTitle(TransferMode::Bsc, messages), "m0  -- m191 --");
    EXPECT_EQ(windowTitle(TransferMode::HispeedLink, messages), "m0  -- m190 --");
}

} // namespace
} // namespace vantrel
