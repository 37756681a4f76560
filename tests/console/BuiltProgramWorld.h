#pragma once

#include "link/SimulatedWorld.h"
#include "support/ProjectFiles.h"

#include <cstdlib>
#include <filesystem>
#include <string>

#include <gtest/gtest.h>

#ifndef _WIN32
#include <sys/wait.h>
#endif

namespace vantrel::tests {

/// What a program says when it ends.
inline int exitCodeOf(int status) {
#ifdef _WIN32
    return status;
#else
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
#endif
}

/// The built program in a folder with the simulator and its two controllers, as a script starts it.
class BuiltProgramWorld : public testing::Test {
  protected:
    BuiltProgramWorld() {
        const auto& program = simulated_.program;
        const std::filesystem::path built(VANTREL_CONSOLE_PROGRAM);
        program_ = program.path(built.filename().string());
        std::filesystem::copy_file(built, program_);
        for (const char* file : {"English.lng", "Japanese.lng", "System.lng", "FileTable.tbl"})
            std::filesystem::copy_file(std::filesystem::path(dataFolder()) / file,
                                       program.path(file));
        program.write("Vantrel.ini", "[Vantrel]\r\nTransMode=16\r\n"
                                     "[Language Info]\r\nLanguage=English\r\nLangSelect=0\r\n");
        program.write("robot.ini", "[Boot]\r\nName=LINE1\r\n"
                                   "[Robot]\r\nName=LINE1\r\nIPaddr=10.0.0.1\r\nPath=one\r\n"
                                   "[Robot]\r\nName=LINE2\r\nIPaddr=10.0.0.2\r\nPath=two\r\n");
        program.write("first/OWN.JBI", job("OWN", "first"));
        program.write("first/SUB.JBI", job("SUB", "first"));
        program.write("second/OWN.JBI", job("OWN", "second"));
        program.makeFolder("one");
        program.makeFolder("two");
    }

    static std::string job(const std::string& name, const std::string& body) {
        return "/JOB\r\n//NAME " + name + "\r\n" + body + "\r\n";
    }

    /// Its exit code; what it has written is in `output_` and `messages_`.
    int run(const std::string& arguments) {
        const auto& folder = simulated_.program;
        std::string command = "\"" + program_ + "\" " + arguments + " >\"" + folder.path("out") +
                              "\" 2>\"" + folder.path("err") + "\"";
#ifdef _WIN32
        command = "\"" + command + " <NUL\"";
#else
        command += " </dev/null";
#endif
        const int code = exitCodeOf(std::system(command.c_str()));
        output_ = folder.read("out");
        messages_ = folder.read("err");
        return code;
    }

    SimulatedWorld simulated_;
    const TemporaryFolder& folder_ = simulated_.program;
    std::string program_, output_, messages_;
};

} // namespace vantrel::tests
