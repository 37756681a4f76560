#include "console/Relay.h"

#include "base/Text.h"

#include <gtest/gtest.h>

namespace vantrel {
namespace {

using Kind = Relayed::Kind;

/// What the process that reads it makes of it.
std::optional<Relayed> readBack(const Relayed& relayed) {
    const std::string line = relayLine(relayed);
    EXPECT_TRUE(line.starts_with('\n') && line.ends_with('\n'));
    EXPECT_EQ(line.find('\n', 1), line.size() - 1) << "one line";
    return readRelayLine(std::string_view(line).substr(1, line.size() - 2));
}

TEST(RelayTest, EverythingArrivesAsItWasSaid) {
    for (const Relayed& relayed :
         {Relayed{.kind = Kind::Output, .text = "LINE1\tA \"B\".JBI\n溶接\n"},
          Relayed{.kind = Kind::Message, .text = ""},
          Relayed{.kind = Kind::Item, .end = ItemEnd::Skipped, .code = 12},
          Relayed{.kind = Kind::Item, .end = ItemEnd::NotTried, .code = 1},
          Relayed{.kind = Kind::End, .code = 130}})
        EXPECT_EQ(readBack(relayed), relayed);
}

TEST(RelayTest, WhatIsNoTextArrivesAllTheSame) {
    const auto relayed = readBack({.kind = Kind::Output, .text = "A\xFF"});
    ASSERT_TRUE(relayed);
    EXPECT_TRUE(isValidUtf8(relayed->text));
}

TEST(RelayTest, AnotherOnesLineIsNone) {
    for (const char* line : {"", "connecting...", "{}", "[1]", "{\"relay\":\"output\"}",
                             "{\"relay\":\"more\",\"text\":\"\",\"ended\":0,\"code\":0}",
                             "{\"relay\":\"item\",\"text\":\"\",\"ended\":4,\"code\":0}",
                             "{\"relay\":7,\"text\":\"\",\"ended\":\"0\",\"code\":0}"})
        EXPECT_FALSE(readRelayLine(line)) << line;
}

} // namespace
} // namespace vantrel
