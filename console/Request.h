#pragma once

#include "base/Connection.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace vantrel {

/// What becomes of a file that is already there.
enum class OverwritePolicy { Never, Always, Ask };

/// What the program is to do, as its arguments say it.
struct Request {
    enum class Task {
        Robots,
        List,
        Get,
        Put,
        Delete,
        GetVariables,
        PutVariables,
        GetJobs,
        PutJobs,
        Call,
        Doctor,
        Backup,
        HistoryLog,
        HistoryRestore
    };

    Task task = Task::Robots;
    std::string command{};             ///< the word for the task
    std::vector<std::string> names{};  ///< of files, with wildcards; the list file; the call
    std::vector<std::string> robots{}; ///< by name; none for the robot in force
    bool allRobots = false;
    std::optional<TransferMode> mode{};
    std::optional<std::int16_t> port{};
    std::optional<std::string> address{};
    std::optional<std::string> folder{}; ///< on the PC, as it was given
    std::optional<std::string> language{};
    OverwritePolicy overwrite = OverwritePolicy::Never;
    std::optional<std::string> history{}; ///< its folder, as it was given
    std::optional<std::string> report{};  ///< a file, as it was given
    std::string version{};                ///< of the history; empty for the latest
    std::optional<std::int32_t> most{};   ///< entries to list
    bool keepGoing = false;
    bool dryRun = false;
    bool check = false;
    bool json = false;
    std::optional<std::int32_t> parallel{}; ///< how many robots at a time, each in its own process
    std::optional<std::int32_t> timeout{};  ///< seconds that a robot's process may take
    /// The one machine of this process, which another one has started for it, as that one names it.
    std::string relay{};
    std::vector<std::string> arguments{}; ///< all of it, as it was given

    /// Whether it works without any machine.
    bool isAboutHistoryAlone() const { return task == Task::HistoryLog; }
    bool usesProcesses() const { return parallel || timeout; }
    /// Whether it may write into the PC folder.
    bool receives() const {
        return task == Task::Get || task == Task::GetVariables || task == Task::GetJobs ||
               task == Task::Call || task == Task::HistoryRestore;
    }
};

/// A request, or the text to show in place of one.
struct ParsedArguments {
    std::optional<Request> request{};
    std::string text{};
    bool isHelp = false; ///< the text was asked for
    bool json = false;   ///< even where the rest cannot be understood
};

/// `arguments` are UTF-8, without the program's own name. Nothing is looked at but them.
ParsedArguments parseArguments(const std::vector<std::string>& arguments);

} // namespace vantrel
