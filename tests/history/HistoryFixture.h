#pragma once

#include "history/HistoryStore.h"
#include "support/TemporaryFolder.h"

#include <map>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include <gmock/gmock.h>

namespace vantrel::tests {

/// A history in a folder of its own, and robots to record.
class HistoryFixture : public testing::Test {
  protected:
    using Files = std::map<std::string, std::string>; ///< contents by name

    HistoryStore open() {
        auto store = HistoryStore::openOrMake(place());
        if (!store)
            throw std::runtime_error(store.reason());
        return std::move(*store);
    }
    std::string place() const { return folder.path("history"); }

    /// The state of a robot whose files have all been fetched.
    RobotState stateOf(const std::string& robot, const Files& files) {
        RobotState state{.robot = robot};
        for (const auto& [name, content] : files)
            state.files.push_back(
                {name, folder.write("fetched/" + std::to_string(++fetched_), content)});
        return state;
    }
    Recorded record(HistoryStore& store, const RobotState& state) {
        by.time += 60;
        auto recorded = store.record(state, by, [this](const Recorded&) { return message; });
        EXPECT_TRUE(recorded) << (recorded ? "" : recorded.reason());
        if (!recorded)
            return {};
        EXPECT_EQ(recorded->treeProblem, "");
        return std::move(*recorded);
    }
    Recorded record(HistoryStore& store, const std::string& robot, const Files& files) {
        return record(store, stateOf(robot, files));
    }
    static Files filesIn(const HistoryStore& store, const std::string& robot,
                         const std::string& version = {}) {
        Files files;
        const auto names = store.files(robot, version);
        EXPECT_TRUE(names);
        for (const std::string& name : names ? *names : std::vector<std::string>{}) {
            const auto content = store.read(robot, name, version);
            EXPECT_TRUE(content && *content) << name;
            files[name] = content && *content ? **content : std::string("unread");
        }
        return files;
    }

    TemporaryFolder folder;
    HistorySignature by{"Operator", "operator@pc", 1'700'000'000, 540};
    std::string message = "LINE1: changed";

  private:
    int fetched_ = 0;
};

} // namespace vantrel::tests
