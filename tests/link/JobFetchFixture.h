#pragma once

#include "SessionWorld.h"

#include <filesystem>
#include <string>
#include <string_view>

namespace vantrel::tests {

/// A session whose controller holds the job WELD.
struct JobFetchTest : testing::Test {
    SessionWorld world;
    const std::string weld = SessionWorld::job("WELD");

    JobFetchTest() { world.controller().put("WELD.JBI", weld); }

    bool fetch(const std::string& name, bool overwriteAll = false) {
        return world.session->JobUpLoad(name, overwriteAll);
    }

    std::size_t fileCount() const {
        const std::filesystem::directory_iterator files(world.pc.path());
        return static_cast<std::size_t>(std::distance(begin(files), end(files)));
    }

    /// What is in the job's place cannot be replaced: nothing is transferred, and it stays.
    void expectBlocked() {
        const auto before = fileCount();
        const auto content = contentOfWeld();
        EXPECT_FALSE(fetch("WELD.JBI", true));
        EXPECT_EQ(world.error(), " 26 0");
        EXPECT_EQ(world.library.callCount("BscUpLoad"), 0);
        EXPECT_EQ(world.library.openLinks(), 0);
        EXPECT_EQ(fileCount(), before);
        EXPECT_EQ(contentOfWeld(), content);
    }

  private:
    std::string contentOfWeld() const {
        const bool isFolder = std::filesystem::is_directory(world.pc.path("WELD.JBI"));
        return isFolder ? "a folder" : world.pc.read("WELD.JBI");
    }
};

} // namespace vantrel::tests
