#include "console/Request.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace vantrel {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using Task = Request::Task;

Request understood(const std::vector<std::string>& arguments) {
    const auto parsed = parseArguments(arguments);
    EXPECT_TRUE(parsed.request) << parsed.text;
    return parsed.request.value_or(Request());
}

std::string refused(const std::vector<std::string>& arguments) {
    const auto parsed = parseArguments(arguments);
    EXPECT_FALSE(parsed.request);
    EXPECT_FALSE(parsed.isHelp);
    EXPECT_NE(parsed.text, "");
    return parsed.text;
}

TEST(Request, SeveralRobotsAtATimeAreProcesses) {
    EXPECT_FALSE(understood({"list"}).usesProcesses());
    EXPECT_EQ(understood({"list", "--all-robots", "--parallel", "8"}).parallel, 8);
    EXPECT_EQ(understood({"get", "A.JBI", "--timeout=30"}).timeout, 30);
    EXPECT_TRUE(understood({"get", "A.JBI", "--timeout=30"}).usesProcesses());
    refused({"list", "--parallel", "0"});
    refused({"list", "--parallel", "many"});
    refused({"list", "--timeout", "-1"});
    EXPECT_THAT(refused({"get", "A.JBI", "--parallel", "2", "--overwrite", "ask"}),
                HasSubstr("nobody could answer"));
    EXPECT_THAT(refused({"get", "A.JBI", "--timeout", "2", "--overwrite", "ask"}),
                HasSubstr("nobody could answer"));
    EXPECT_EQ(parseArguments({"list", "--help"}).text.find("relay"), std::string::npos);
}

TEST(Request, WhatIsNotSaidIsTheSafeWay) {
    const Request request = understood({"get", "MAIN.JBI"});
    EXPECT_EQ(request.task, Task::Get);
    EXPECT_EQ(request.command, "get");
    EXPECT_THAT(request.names, ElementsAre("MAIN.JBI"));
    EXPECT_EQ(request.overwrite, OverwritePolicy::Never);
    EXPECT_FALSE(request.keepGoing || request.dryRun || request.json || request.allRobots);
    EXPECT_FALSE(request.mode || request.port || request.address || request.folder);
}

TEST(Request, TakesOptionsBeforeAndBehindTheNames) {
    const Request request = understood({"put", "--robot", "R1", "A.JBI", "--robot", "R 2", "B*.JBI",
                                        "--overwrite", "always", "--keep-going", "--dry-run",
                                        "--json", "--folder", "x/y", "--lang", "Japanese"});
    EXPECT_EQ(request.task, Task::Put);
    EXPECT_THAT(request.names, ElementsAre("A.JBI", "B*.JBI"));
    EXPECT_THAT(request.robots, ElementsAre("R1", "R 2"));
    EXPECT_EQ(request.overwrite, OverwritePolicy::Always);
    EXPECT_TRUE(request.keepGoing && request.dryRun && request.json);
    EXPECT_EQ(request.folder, "x/y");
    EXPECT_EQ(request.language, "Japanese");
}

TEST(Request, KnowsEveryCommand) {
    EXPECT_EQ(understood({"robots", "--check"}).task, Task::Robots);
    EXPECT_TRUE(understood({"robots", "--check"}).check);
    EXPECT_EQ(understood({"list"}).task, Task::List);
    EXPECT_EQ(understood({"delete", "X"}).task, Task::Delete);
    EXPECT_EQ(understood({"get-vars", "V"}).task, Task::GetVariables);
    EXPECT_EQ(understood({"put-vars", "V", "--keep-going"}).task, Task::PutVariables);
    EXPECT_EQ(understood({"call", "JobDelete", "A.JBI"}).task, Task::Call);
    EXPECT_EQ(understood({"doctor"}).task, Task::Doctor);
}

TEST(Request, AListRunsInTheDirectionThatIsNamed) {
    EXPECT_EQ(understood({"jobs-run", "L", "--send"}).task, Task::PutJobs);
    EXPECT_EQ(understood({"jobs-run", "--receive", "L"}).task, Task::GetJobs);
    EXPECT_EQ(understood({"vars-run", "L", "--send"}).task, Task::PutVariables);
    EXPECT_EQ(understood({"vars-run", "L", "--receive"}).task, Task::GetVariables);
    EXPECT_EQ(understood({"vars-run", "L", "--receive"}).command, "vars-run");
    refused({"jobs-run", "L"});
    refused({"jobs-run", "L", "--send", "--receive"});
    refused({"put", "A.JBI", "--send"});
}

TEST(Request, AListIsOneFile) {
    for (const char* command : {"get-vars", "put-vars"}) {
        refused({command});
        refused({command, "A.lst", "B.lst"});
        refused({command, "*.lst"});
        refused({command, "../A.lst"});
    }
    EXPECT_THAT(understood({"jobs-run", "A.lst", "--send"}).names, ElementsAre("A.lst"));
}

TEST(Request, WhatAListOfVariablesCannotDoIsRefused) {
    refused({"put-vars", "L", "--overwrite", "always"});
    refused({"vars-run", "L", "--send", "--overwrite", "always"});
    refused({"get-vars", "L", "--keep-going"});
    refused({"vars-run", "L", "--receive", "--keep-going"});
    EXPECT_EQ(understood({"vars-run", "L", "--receive", "--overwrite", "always"}).overwrite,
              OverwritePolicy::Always);
}

TEST(Request, TakesAWayToTheController) {
    EXPECT_EQ(understood({"list", "--mode", "hispeed"}).mode, TransferMode::HispeedLink);
    EXPECT_EQ(understood({"list", "--mode", "bsc", "--port", "3"}).port, 3);
    EXPECT_EQ(understood({"list", "--address", "10.0.0.255"}).address, "10.0.0.255");
    EXPECT_EQ(understood({"get", "A", "--overwrite", "ask"}).overwrite, OverwritePolicy::Ask);
}

TEST(Request, AWayThatLeadsElsewhereThanWhatWasAskedForIsRefused) {
    refused({"list", "--port", "1", "--mode", "hispeed"});
    refused({"list", "--address", "10.0.0.1", "--mode", "bsc"});
    refused({"list", "--address", "10.0.0.1", "--port", "1"});
    refused({"list", "--address", "10.0.0.1", "--robot", "A", "--robot", "B"});
    refused({"list", "--address", "10.0.0.1", "--all-robots"});
    refused({"list", "--port", "1", "--robot", "A", "--robot", "B"});
    refused({"list", "--mode", "bsc", "--all-robots"});
    refused({"list", "--robot", "A", "--all-robots"});
}

TEST(Request, ValuesThatMakeNoSenseAreRefused) {
    refused({"list", "--port", "0"});
    refused({"list", "--port", "COM1"});
    refused({"list", "--mode", "16"});
    refused({"list", "--address", "10.0.0"});
    refused({"list", "--address", "10.0.0.256"});
    refused({"get", "A", "--overwrite", "1"});
}

TEST(Request, ANameThatIsNoPlainOneIsRefused) {
    for (const char* name : {"../A.JBI", "sub/A.JBI", "C:A.JBI", "..", "A\\B", "", "CON"})
        refused({"get", name});
    EXPECT_THAT(understood({"get", "*", "A?.*"}).names, ElementsAre("*", "A?.*"));
    EXPECT_THAT(refused({"get", "../A\x1B[2J"}), Not(HasSubstr("\x1B")));
}

TEST(Request, WhatIsMissingOrUnknownIsRefused) {
    refused({});
    refused({"get"});
    refused({"format"});
    refused({"list", "A.JBI"});
    refused({"list", "--overwrite", "always"});
    refused({"get", "A", "--folder"});
    refused({"/EXIT"});
}

TEST(Request, JsonIsKnownEvenWhereTheRestIsNot) {
    EXPECT_TRUE(parseArguments({"format", "--json"}).json);
    EXPECT_FALSE(parseArguments({"format"}).json);
}

TEST(Request, HelpNamesEveryCommandOptionAndExitCode) {
    const auto help = parseArguments({"--help"});
    EXPECT_TRUE(help.isHelp);
    for (const char* word : {"robots", "list", "get", "put", "delete", "get-vars", "put-vars",
                             "jobs-run", "vars-run", "call", "doctor", " 70 ", "130"})
        EXPECT_THAT(help.text, HasSubstr(word));
    const auto ofCommand = parseArguments({"get", "--help"});
    EXPECT_TRUE(ofCommand.isHelp);
    for (const char* word : {"vantrelctl get", "--overwrite never|always|ask", "--mode bsc|hispeed",
                             "--robot", "--folder", "--dry-run", "--keep-going", "--json"})
        EXPECT_THAT(ofCommand.text, HasSubstr(word));
}

} // namespace
} // namespace vantrel
