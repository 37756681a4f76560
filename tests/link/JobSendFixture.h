#pragma once

#include "SessionWorld.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace vantrel::tests {

/// A PC with WELD.JBI and a controller to send it to.
struct JobSendFixture : testing::Test {
    SessionWorld world;
    const std::string weld = SessionWorld::job("WELD");
    const std::string older = SessionWorld::job("WELD", "OLD");

    JobSendFixture() { world.pc.write("WELD.JBI", weld); }

    bool send(const std::string& file, bool overwriteAll = false) {
        return world.session->JobDownLoad(file, overwriteAll);
    }

    /// The directory's link with that many entries, as number `handle`.
    std::vector<std::string> directory(int handle, int entries) const {
        const std::string arguments = "(" + std::to_string(handle) + ", 255)";
        std::vector<std::string> calls{"BscFindFirst" + arguments};
        for (int i = 0; i < entries; ++i)
            calls.push_back("BscFindNext" + arguments);
        return wholeLink(world, handle, calls);
    }
};

} // namespace vantrel::tests
