#pragma once

#include "base/Text.h"
#include "console/ConsoleWorld.h"
#include "support/CurrentFolderKept.h"
#include "support/FakeZurolink.h"
#include "support/ProjectFiles.h"
#include "support/TemporaryFolder.h"

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

namespace vantrel::tests {

/// The program in a folder of its own with two robots, whose controllers are in memory.
class ConsoleProgramWorld : public testing::Test {
  protected:
    ConsoleProgramWorld() {
        for (const char* file : {"English.lng", "Japanese.lng", "FileTable.tbl"})
            std::filesystem::copy_file(std::filesystem::path(dataFolder()) / file,
                                       program_.path(file));
        program_.write("Vantrel.ini", settings_);
        program_.write("robot.ini", robots_);
        program_.makeFolder("one");
        program_.makeFolder("two");
        one_.put("OWN.JBI", job("OWN", "first"));
        one_.put("SUB1.JBI", job("SUB1", "first"));
        one_.put("SUB2.JBI", job("SUB2", "first"));
        two_.put("OWN.JBI", job("OWN", "second"));
    }

    static std::string job(const std::string& name, const std::string& body) {
        return "/JOB\r\n//NAME " + name + "\r\n" + body + "\r\n";
    }

    int run(const std::vector<std::string>& arguments) {
        output_.clear();
        messages_.clear();
        library_.forgetCalls();
        return runConsole(arguments, world_);
    }

    /// The values that the objects of this type have under this name.
    std::string values(const std::string& type, const std::string& name) const {
        std::string found;
        for (const std::string_view line : lines(output_)) {
            if (line.find("\"type\":\"" + type + "\"") == line.npos)
                continue;
            const std::string start = "\"" + name + "\":";
            const auto at = line.find(start);
            if (at == line.npos)
                continue;
            const auto value = line.substr(at + start.size());
            found += std::string(trimmed(value.substr(0, value.find_first_of(",}")), "\"")) + " ";
        }
        return found;
    }

    const std::string settings_ = "[Vantrel]\r\nTransMode=16\r\nPath=settings\r\n"
                                  "[Language Info]\r\nLanguage=English\r\nLangSelect=0\r\n";
    const std::string robots_ = "[Boot]\r\nName=first\r\n"
                                "[Robot]\r\nName=first\r\nIPaddr=10.0.0.1\r\nPath=one\r\n"
                                "[Robot]\r\nName=second\r\nIPaddr=10.0.0.2\r\nPath=two\r\n";

    CurrentFolderKept kept_;
    TemporaryFolder program_;
    FakeZurolink library_;
    FakeController& one_ = library_.at("10.0.0.1");
    FakeController& two_ = library_.at("10.0.0.2");
    std::string output_, messages_;
    ConsoleWorld world_{.executable = program_.path("Vantrel"),
                        .workingFolder = program_.path(),
                        .output = [this](std::string_view text) { output_ += text; },
                        .messages = [this](std::string_view text) { messages_ += text; },
                        .library = &library_};
};

} // namespace vantrel::tests
