#include "base/Text.h"
#include "console/BuiltProgramWorld.h"
#include "platform/Files.h"
#include "support/ProjectFiles.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

namespace vantrel {
namespace {

/// A command of the transcript in the README, and the lines that it answers.
struct Step {
    std::string command;
    std::string answer;
};

std::vector<Step> transcript() {
    const auto read = readFile(tests::sourceFolder() + "/README.md");
    EXPECT_TRUE(read);
    const std::string readme = read ? *read : std::string();
    std::vector<Step> steps;
    bool isInside = false;
    for (const std::string_view line : lines(readme)) {
        if (line.starts_with("```"))
            isInside = line == "```console";
        else if (isInside && line.starts_with("$ "))
            steps.push_back({std::string(line.substr(2)), {}});
        else if (isInside && !steps.empty())
            (steps.back().answer += line) += '\n';
    }
    return steps;
}

class ReadmeTranscriptTest : public tests::BuiltProgramWorld {
  protected:
    /// As a shell of the system the tests run on wants it.
    static std::string quoted(std::string arguments) {
        std::ranges::replace(arguments, '\'', '"');
        return arguments;
    }
    std::string said() const {
        std::string all = output_ + messages_;
        std::erase(all, '\r');
        return all;
    }
};

TEST_F(ReadmeTranscriptTest, IsWhatTheProgramSays) {
    constexpr std::string_view program = "vantrelctl ";
    folder_.write("one/NEW.JBI", job("NEW", "pc"));
    const auto steps = transcript();
    EXPECT_GT(steps.size(), 3U);
    int code = -1;
    for (const auto& [command, answer] : steps) {
        if (command == "echo $?") {
            EXPECT_EQ(answer, std::to_string(code) + "\n");
            continue;
        }
        ASSERT_TRUE(command.starts_with(program)) << command;
        code = run(quoted(command.substr(program.size())));
        EXPECT_EQ(said(), answer) << command;
    }
}

} // namespace
} // namespace vantrel
