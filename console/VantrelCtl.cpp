#include "base/PathRules.h"
#include "console/ConsoleWorld.h"
#include "console/Interruption.h"
#include "console/Tally.h"
#include "platform/Environment.h"
#include "platform/Files.h"
#include "platform/Terminal.h"

#include <exception>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace vantrel {
namespace {

/// Writes to a standard stream, and remembers that something could not be written.
class Written {
  public:
    explicit Written(TextStream::Kind kind) : stream_(kind) {}

    void operator()(std::string_view text) { failed_ = !stream_.write(text) || failed_; }
    bool hasFailed() const { return failed_; }
    bool isTerminal() const { return stream_.isTerminal(); }

  private:
    TextStream stream_;
    bool failed_ = false;
};

int run(const std::vector<std::string>& arguments, Written& output, Written& messages) {
    const PathRules rules;
    ConsoleWorld world{.executable = rules.join(rules.parent(programPath()), "Vantrel"),
                       .workingFolder = currentFolder(),
                       .output = std::ref(output),
                       .messages = std::ref(messages),
                       .program = executablePath(),
                       .showsProgress = messages.isTerminal(),
                       .isInterrupted = Interruption::isWanted,
                       .window = unseenWindow};
    if (canReadTerminal() && messages.isTerminal())
        world.readLine = [] { return readTerminalLine(Interruption::isWanted); };
    Interruption::watch();
    return runConsole(arguments, world);
}

int guardedRun(const std::vector<std::string>& arguments) {
    Written output(TextStream::Kind::Output);
    Written messages(TextStream::Kind::Messages);
    int code = exit_code::nothingDone;
    try {
        code = run(arguments, output, messages);
    } catch (const std::exception& error) {
        messages(std::string("vantrelctl: ") + error.what() + "\n");
        return exit_code::unexpected;
    }
    if (!output.hasFailed())
        return code;
    messages("vantrelctl: the output could not be written\n");
    return code == exit_code::allDone ? exit_code::partlyDone : code;
}

} // namespace
} // namespace vantrel

int main(int count, char** values) {
    return vantrel::guardedRun(vantrel::programArguments(count, values));
}
