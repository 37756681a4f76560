// A program for the tests of those that run beside another one. Its first argument says what it
// does.

#include "platform/Environment.h"
#include "platform/Files.h"
#include "platform/HeldFile.h"
#include "platform/Terminal.h"

#include <chrono>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

namespace vantrel {
namespace {

[[noreturn]] void hang() {
    while (true)
        std::this_thread::sleep_for(std::chrono::hours(1));
}

int work(const std::vector<std::string>& arguments) {
    TextStream output(TextStream::Kind::Output);
    const auto say = [&output](std::string_view text) { static_cast<void>(output.write(text)); };
    const std::string& task = arguments.at(0);
    if (task == "hold") {
        auto held = HeldFile::lock(arguments.at(1));
        const bool isHeld = held && *held && (*held)->write(arguments.at(2));
        say(isHeld ? "held\n" : "not held\n");
        hang();
    }
    if (task == "arguments")
        for (std::size_t at = 1; at < arguments.size(); ++at)
            say("<" + arguments[at] + ">\n");
    if (task == "folder")
        say(currentFolder());
    if (task == "much")
        for (int line = 0; line < 10'000; ++line)
            say(std::string(99, 'x') + "\n");
    if (task == "hang") {
        say("hangs\n");
        hang();
    }
    return task == "seven" ? 7 : 0;
}

} // namespace
} // namespace vantrel

int main(int count, char** values) {
    return vantrel::work(vantrel::programArguments(count, values));
}
