#include "base/Result.h"

#include <memory>

#include <gtest/gtest.h>

namespace vantrel {
namespace {

TEST(Result, HoldsAValue) {
    const Result<std::string> result(std::string("content"));
    ASSERT_TRUE(result);
    EXPECT_EQ(*result, "content");
    EXPECT_EQ(result->size(), 7u);
}

TEST(Result, HoldsTheReasonOfAFailure) {
    const Result<std::string> result(Failure{"No such file"});
    ASSERT_FALSE(result);
    EXPECT_EQ(result.reason(), "No such file");
}

TEST(Result, HandsOverAValueThatCannotBeCopied) {
    Result<std::unique_ptr<int>> result(std::make_unique<int>(7));
    const std::unique_ptr<int> taken = std::move(*result);
    EXPECT_EQ(*taken, 7);
}

TEST(Result, OutcomeIsDoneOrFailed) {
    const auto write = [](bool fits) -> Outcome {
        return fits ? Outcome(Done{}) : Outcome(Failure{"disk full"});
    };
    EXPECT_TRUE(write(true));
    EXPECT_EQ(write(false).reason(), "disk full");
}

} // namespace
} // namespace vantrel
