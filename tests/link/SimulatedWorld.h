#pragma once

#include "link/ZurolinkBinding.h"
#include "platform/Environment.h"
#include "support/ProjectFiles.h"
#include "support/TemporaryFolder.h"

#include <filesystem>
#include <string>

#include <gtest/gtest.h>

namespace vantrel::tests {

/// A program's folder with the simulator in it and two controllers: "first" on COM1 and 10.0.0.1,
/// "second" on 10.0.0.2. The library is a copy, so each folder's is loaded apart from the others.
class SimulatedWorld {
  public:
    SimulatedWorld() {
        std::filesystem::copy_file(simulatorFile(), program.path(libraryFileName()));
        program.makeFolder("first");
        program.makeFolder("second");
        script("");
    }

    /// Lines of the simulator's script.
    void script(const std::string& lines) {
        program.write("simulator.ini", "[Controller1]\nFolder=first\nPort=1\nAddress=10.0.0.1\n"
                                       "[Controller2]\nFolder=second\nAddress=10.0.0.2\n"
                                       "[Script]\n" +
                                           lines);
    }

    TemporaryFolder program;
    ZurolinkBinding library{program.path(), [](const LibraryProblem& problem) {
                                ADD_FAILURE() << problem.path << ": " << problem.reason;
                            }};
};

} // namespace vantrel::tests
