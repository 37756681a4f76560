#include "link/SessionErrorRecord.h"

#include <gtest/gtest.h>

namespace vantrel {
namespace {

TEST(SessionErrorRecordTest, IsEmptyAtFirst) {
    const SessionErrorRecord record;
    EXPECT_EQ(record.ErrorCode, 0);
    EXPECT_EQ(record.ErrorFunction, "");
    EXPECT_EQ(record.ErrorIndex, 0);
}

TEST(SessionErrorRecordTest, AnIndexIsReplacedOnlyByAnother) {
    SessionErrorRecord record;
    record.set(-5, "BscDownLoad", 12);
    record.set(7, "BscDisConnect");
    EXPECT_EQ(record.ErrorCode, 7);
    EXPECT_EQ(record.ErrorFunction, "BscDisConnect");
    EXPECT_EQ(record.ErrorIndex, 12);
    record.set(3, "", 0);
    EXPECT_EQ(record.ErrorFunction, "");
    EXPECT_EQ(record.ErrorIndex, 0);
}

} // namespace
} // namespace vantrel
