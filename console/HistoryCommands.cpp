#include "console/HistoryCommands.h"

#include "app/history/RobotSnapshot.h"
#include "app/robots/RobotFile.h"
#include "app/start/Engine.h"
#include "base/PathRules.h"
#include "base/Text.h"
#include "console/ConsoleMessages.h"
#include "console/ItemReport.h"
#include "console/NamePatterns.h"
#include "history/HistoryStore.h"
#include "lang/SystemReasons.h"
#include "link/ShownText.h"
#include "platform/Files.h"
#include "platform/Links.h"
#include "platform/ProfileFile.h"

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <optional>
#include <utility>

namespace vantrel {
namespace {

std::string padded(std::int64_t number, std::size_t width) {
    const std::string digits = std::to_string(number);
    return std::string(width - std::min(width, digits.size()), '0') + digits;
}

std::string textOf(const Desk& desk, std::int32_t number) {
    return desk.engine.messages.getMessage(number);
}

/// Only a backup makes one. Where it cannot be used `reason` says why.
std::optional<HistoryStore> openHistory(Desk& desk, std::string& reason) {
    const std::string folder = historyFolder(desk);
    auto history = desk.request.task == Request::Task::Backup ? HistoryStore::openOrMake(folder)
                                                              : HistoryStore::open(folder);
    if (history)
        return std::move(*history);
    reason = textOf(desk, message::historyNotOpened) + " " +
             reasonInLanguage(desk.engine.messages, history.reason());
    return std::nullopt;
}

/// How the history calls a robot: by the exact name that it is registered with. What is at the end
/// of a serial line nobody knows unless it is named.
std::string nameInHistory(const Desk& desk, const Target& target) {
    const bool isNamed =
        desk.targets.mode == TransferMode::HispeedLink || !desk.request.robots.empty();
    if (!isNamed)
        return "COM" + std::to_string(desk.targets.port);
    return target.robot.Name.empty() ? target.robot.IPaddr : target.robot.Name;
}

/// What two machines have would be one robot's history.
bool isNameShared(const Desk& desk, const std::string& name) {
    const auto& robots = desk.engine.state.RobotList;
    std::size_t owners = 0;
    for (std::size_t index = 0; index < robotCount(robots); ++index)
        owners += robots[index].Name == name ? 1 : 0;
    return owners > 1;
}

/// The lines of output for one robot's snapshot.
class BackupReport {
  public:
    BackupReport(Desk& desk, MachineDesk& machine)
        : desk_(desk), machine_(machine), items_(desk, machine, CommandKind::ReceiveCopy) {}

    /// Nothing of this robot is in the history after it.
    void fail(const std::string& reason, int cause) {
        const bool isTried = !desk_.world.isInterrupted();
        desk_.tally.add(isTried ? ItemEnd::Failed : ItemEnd::NotTried, cause);
        write(textOf(desk_, message::snapshotFailed), reason,
              {{"end", isTried ? "failed" : "not-tried"}, {"reason", reason}});
    }
    void add(const SnapshotResult& result) {
        for (std::size_t file = 0; file < result.fetched; ++file)
            desk_.tally.add(ItemEnd::Done);
        const Recorded& recorded = result.recorded;
        const bool isNew = recorded.end == Recorded::End::Committed;
        write(textOf(desk_, isNew ? message::snapshotRecorded : message::snapshotUnchanged),
              counts(result),
              {{"end", isNew ? "recorded" : "unchanged"},
               {"reason", std::string()},
               {"version", recorded.version},
               {"complete", result.isWhole()},
               {"changed", recorded.changes.changed},
               {"new", recorded.changes.added},
               {"gone", recorded.changes.gone}});
        for (const UnreadFile& file : result.unread)
            items_.add({file.name, file.name, ItemEnd::Failed, file.reason});
        for (const NotStored& file : recorded.notStored)
            items_.add({file.name, file.name, ItemEnd::Failed,
                        file.reason.empty()
                            ? textOf(desk_, message::nameTooLongForHistory)
                            : reasonInLanguage(desk_.engine.messages, file.reason)});
        for (const std::string& path : recorded.setAside)
            desk_.report.message(textOf(desk_, message::historyFileKept) + "\n" + path);
        if (!recorded.treeProblem.empty())
            desk_.report.message(textOf(desk_, message::historyFilesBehind) + "\n" +
                                 reasonInLanguage(desk_.engine.messages, recorded.treeProblem));
    }

  private:
    std::string counts(const SnapshotResult& result) const {
        const std::pair<std::int32_t, std::size_t> parts[] = {
            {message::snapshotChanged, result.recorded.changes.changed.size()},
            {message::snapshotNew, result.recorded.changes.added.size()},
            {message::snapshotGone, result.recorded.changes.gone.size()},
            {message::snapshotUnread, result.unread.size() + result.recorded.notStored.size()}};
        std::string text;
        for (const auto& [number, count] : parts)
            if (count > 0)
                text +=
                    (text.empty() ? "" : textOf(desk_, message::resultJoint)) +
                    desk_.engine.messages.getMessageWithInsertion(number, std::to_string(count));
        return text;
    }
    void write(const std::string& end, const std::string& more, Report::Members members) {
        members.insert(members.begin(), {"robot", machine_.name()});
        std::vector<std::string> cells{machine_.name(), end};
        if (!more.empty())
            cells.push_back(more);
        desk_.report.line(cells, "snapshot", members);
    }

    Desk& desk_;
    MachineDesk& machine_;
    ItemReport items_;
};

HistoryFilter filterOf(const Request& request, const std::string& robot) {
    HistoryFilter filter{.robot = robot};
    if (!request.names.empty())
        filter.file = request.names.front();
    if (request.most)
        filter.most = static_cast<std::size_t>(*request.most);
    return filter;
}

void listEntry(Desk& desk, const HistoryEntry& entry) {
    const std::string time = isoTime(entry.by.time, entry.by.offset);
    const auto lineEnd = entry.message.find('\n');
    desk.report.line(
        {entry.version.substr(0, 10), time, entry.by.name, entry.message.substr(0, lineEnd)},
        "history-entry",
        {{"version", entry.version},
         {"time", time},
         {"by", entry.by.name},
         {"mail", entry.by.mail},
         {"message", entry.message},
         {"before", entry.before}});
    desk.tally.add(ItemEnd::Done);
}

/// One for all files, whatever is recorded meanwhile.
Result<std::string> versionToRestore(const Desk& desk, const HistoryStore& history) {
    if (!desk.request.version.empty()) {
        auto version = history.version(desk.request.version);
        return version ? std::move(version) : Failure{textOf(desk, message::versionUnknown)};
    }
    const auto latest = history.log({.most = 1});
    if (!latest)
        return Failure{latest.reason()};
    return latest->empty() ? std::string() : latest->front().version;
}

/// `history restore` in one folder.
class Restoring {
  public:
    Restoring(Desk& desk, MachineDesk& machine, HistoryStore& history, std::string robot,
              std::string version)
        : desk_(desk), history_(history), robot_(std::move(robot)), version_(std::move(version)),
          items_(desk, machine, CommandKind::ReceiveCopy) {}

    void run(const std::string& folder) {
        const auto files = history_.files(robot_, version_);
        if (!files)
            return items_.addAll(desk_.request.names, ItemEnd::Failed, files.reason());
        const auto matched = matchNames(desk_.request.names, *files);
        for (const std::string& name : matched.names)
            restore(name, PathRules().join(folder, name));
        items_.addAll(matched.unmatched, ItemEnd::Failed, textOf(desk_, message::fileNotInHistory));
    }

  private:
    void restore(const std::string& name, const std::string& path) {
        const auto add = [&](ItemEnd end, const std::string& reason = {}) {
            items_.add({name, name, end, reason});
        };
        if (desk_.world.isInterrupted())
            return add(ItemEnd::NotTried);
        if (!PathRules::isPlainName(name))
            return add(ItemEnd::Failed,
                       std::string(trimmed(textOf(desk_, message::controllerNameRefused))));
        if (desk_.request.overwrite != OverwritePolicy::Always && anythingExists(path))
            return add(ItemEnd::Skipped, textOf(desk_, message::consoleKept));
        const auto content = history_.read(robot_, name, version_);
        if (!content || !*content)
            return add(ItemEnd::Failed,
                       content ? textOf(desk_, message::fileNotInHistory) : content.reason());
        const auto written = desk_.request.dryRun ? Outcome(Done{}) : write(path, **content);
        add(written ? ItemEnd::Done : ItemEnd::Failed,
            written ? std::string() : reasonInLanguage(desk_.engine.messages, written.reason()));
    }

    /// Nothing but a plain file is replaced, and nothing at all that was not agreed to.
    Outcome write(const std::string& path, const std::string& content) const {
        if (anythingExists(path) && (isLink(path) || !isRegularFile(path)))
            return Failure{"Not a regular file"};
        if (desk_.request.overwrite == OverwritePolicy::Always)
            return replaceFile(path, content);
        std::string spare = path + ".restored";
        while (anythingExists(spare))
            spare += "-";
        if (auto written = replaceFile(spare, content); !written)
            return written;
        auto named = renameToFree(spare, path);
        if (!named)
            static_cast<void>(removeFile(spare));
        return named;
    }

    Desk& desk_;
    HistoryStore& history_;
    std::string robot_;
    std::string version_;
    ItemReport items_;
};

} // namespace

std::string isoTime(std::int64_t time, int offset) {
    using namespace std::chrono;
    const sys_seconds local{seconds(time) + minutes(offset)};
    const auto day = floor<days>(local);
    const year_month_day date(day);
    const hh_mm_ss<seconds> clock(local - day);
    const int zone = std::abs(offset);
    return padded(int(date.year()), 4) + "-" + padded(unsigned(date.month()), 2) + "-" +
           padded(unsigned(date.day()), 2) + "T" + padded(clock.hours().count(), 2) + ":" +
           padded(clock.minutes().count(), 2) + ":" + padded(clock.seconds().count(), 2) +
           (offset < 0 ? "-" : "+") + padded(zone / 60, 2) + ":" + padded(zone % 60, 2);
}

std::string historyFolder(const Desk& desk) {
    constexpr std::size_t longestPath = 4096;
    const PathRules rules;
    if (desk.request.history)
        return rules.isAbsolute(*desk.request.history)
                   ? *desk.request.history
                   : rules.resolved(rules.join(desk.world.workingFolder, *desk.request.history));
    const std::string folder =
        ProfileFile(desk.engine.settings.path()).text("History", "Folder", "history", longestPath);
    return rules.isAbsolute(folder) ? folder : rules.join(desk.engine.programFolder, folder);
}

void backUp(Desk& desk, const Target& target) {
    MachineDesk machine(desk, target);
    BackupReport report(desk, machine);
    if (desk.world.isInterrupted())
        return report.fail({}, exit_code::interrupted);
    const std::string robot = nameInHistory(desk, target);
    if (isNameShared(desk, robot))
        return report.fail(bracketed(robot) + textOf(desk, message::consoleRobotShared),
                           exit_code::nothingDone);
    std::string reason;
    auto history = openHistory(desk, reason);
    if (!history)
        return report.fail(reason, exit_code::nothingDone);
    if (!machine.readController())
        return report.fail(desk.world.isInterrupted() ? std::string() : machine.reason(),
                           causeOf(desk.engine.session));
    const auto result = RobotSnapshot(machine.services, *history, robot).take();
    if (!result)
        return report.fail(reasonInLanguage(desk.engine.messages, result.reason()),
                           exit_code::nothingDone);
    if (result->recorded.end == Recorded::End::InUse)
        return report.fail(textOf(desk, message::historyInUse), exit_code::inUse);
    report.add(*result);
}

void listHistory(Desk& desk) {
    std::string reason;
    auto history = openHistory(desk, reason);
    const std::string robot =
        desk.request.robots.empty() ? std::string() : desk.request.robots.front();
    const auto entries = history ? history->log(filterOf(desk.request, robot))
                                 : Result<std::vector<HistoryEntry>>(Failure{reason});
    if (!entries) {
        desk.report.message(entries.reason());
        return desk.tally.add(ItemEnd::Failed);
    }
    for (const HistoryEntry& entry : *entries)
        listEntry(desk, entry);
}

void restoreFiles(Desk& desk, const Target& target) {
    MachineDesk machine(desk, target);
    ItemReport items(desk, machine, CommandKind::ReceiveCopy);
    std::string reason;
    auto history = openHistory(desk, reason);
    if (!history)
        return items.addAll(desk.request.names, ItemEnd::Failed, reason);
    const std::string robot = nameInHistory(desk, target);
    if (isNameShared(desk, robot))
        return items.addAll(desk.request.names, ItemEnd::Failed,
                            bracketed(robot) + textOf(desk, message::consoleRobotShared));
    const auto version = versionToRestore(desk, *history);
    if (!version)
        return items.addAll(desk.request.names, ItemEnd::Failed, version.reason());
    Restoring(desk, machine, *history, robot, *version).run(target.folder);
}

} // namespace vantrel
