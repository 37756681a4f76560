// The yardstick of vantrelctl: the same calls of the library for the same files, and nothing else.
//   vantrel_bare_calls LIBRARY_FOLDER ADDRESS put|get FOLDER
// For each job it reads the controller's directory before it sends, as is prescribed; for each file
// of the directory it fetches into FOLDER.

#include "link/ZurolinkBinding.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <filesystem>
#include <functional>
#include <iostream>
#include <stdexcept>
#include <string>
#include <vector>

namespace vantrel::bench {
namespace {

constexpr std::int16_t ethernet = 16;

void require(bool holds, const char* what) {
    if (!holds)
        throw std::runtime_error(what);
}

class BareController {
  public:
    BareController(Zurolink& library, std::string folder, std::string address)
        : library_(library), folder_(std::move(folder)), address_(std::move(address)) {}

    std::vector<std::string> directory() {
        std::vector<std::string> names;
        linked([&](std::int16_t link) {
            std::array<char, 256> entry{};
            auto found = library_.BscFindFirst(link, entry.data(), 255);
            for (; found == 0; found = library_.BscFindNext(link, entry.data(), 255))
                names.emplace_back(entry.data());
            require(found == -1, "BscFind");
        });
        return names;
    }
    void send(const std::string& name) {
        linked([&](std::int16_t link) {
            require(library_.BscDownLoad(link, name.c_str()) == 0, "BscDownLoad");
        });
    }
    void fetch(const std::string& name) {
        linked([&](std::int16_t link) {
            require(library_.BscUpLoad(link, name.c_str()) == 0, "BscUpLoad");
        });
    }

  private:
    void linked(const std::function<void(std::int16_t link)>& work) {
        const auto link = library_.BscOpen(folder_.c_str(), ethernet);
        require(link >= 0, "BscOpen");
        require(library_.BscSetEther(link, address_.c_str(), 0, nullptr) == 1, "BscSetEther");
        require(library_.BscConnect(link) == 1, "BscConnect");
        work(link);
        require(library_.BscDisConnect(link) == 1, "BscDisConnect");
        require(library_.BscClose(link) == 0, "BscClose");
    }

    Zurolink& library_;
    std::string folder_;
    std::string address_;
};

void putAll(BareController& controller, const std::string& folder) {
    std::vector<std::string> names;
    for (const auto& file : std::filesystem::directory_iterator(folder))
        names.push_back(file.path().filename().string());
    std::ranges::sort(names);
    (void)controller.directory(); // what would be replaced
    (void)controller.directory(); // as the batch begins
    for (const auto& name : names)
        controller.send(name);
    (void)controller.directory(); // what has arrived
}

int run(const std::vector<std::string>& arguments) {
    require(arguments.size() == 4, "LIBRARY_FOLDER ADDRESS put|get FOLDER");
    ZurolinkBinding library(arguments[0],
                            [](const LibraryProblem& problem) { std::cerr << problem.path; });
    BareController controller(library, arguments[3], arguments[1]);
    if (arguments[2] == "put")
        putAll(controller, arguments[3]);
    else
        for (const auto& name : controller.directory())
            controller.fetch(name);
    return 0;
}

} // namespace
} // namespace vantrel::bench

int main(int count, char** values) {
    try {
        return vantrel::bench::run({values + 1, values + count});
    } catch (const std::exception& error) {
        std::cerr << error.what() << '\n';
        return 1;
    }
}
