#include "console/FileCommands.h"

#include "app/start/Engine.h"
#include "base/PathRules.h"
#include "console/ConsoleMessages.h"
#include "console/NamePatterns.h"
#include "files/AmbiguousNames.h"
#include "files/CopyCommand.h"
#include "files/PaneWindow.h"
#include "files/TransferCommands.h"
#include "files/TransferPermission.h"
#include "link/JobFile.h"
#include "link/ShownText.h"
#include "platform/Files.h"

#include <algorithm>
#include <iterator>

namespace vantrel {
namespace {

using Task = Request::Task;

CommandKind kindOf(Task task) {
    if (task == Task::Put)
        return CommandKind::SendCopy;
    return task == Task::Get ? CommandKind::ReceiveCopy : CommandKind::DeleteOnController;
}

const char* keyOf(ItemEnd end) {
    switch (end) {
    case ItemEnd::Done:
        return "done";
    case ItemEnd::Skipped:
        return "skipped";
    case ItemEnd::Failed:
        return "failed";
    case ItemEnd::NotTried:
        break;
    }
    return "not-tried";
}

std::vector<std::string> filesOf(const PaneRows& rows) {
    std::vector<std::string> names;
    for (std::size_t row = 0; row < rows.size(); ++row)
        if (rows.kind(row) != FileKind::Folder)
            names.push_back(rows.name(row));
    return names;
}

std::vector<SelectedItem> itemsOf(const std::vector<std::string>& names) {
    std::vector<SelectedItem> items;
    for (const std::string& name : names)
        items.push_back({name, false});
    return items;
}

std::vector<std::string> untried(const CommandResult& result) {
    std::vector<std::string> names;
    for (const ItemResult& item : result.items)
        if (item.end == ItemEnd::NotTried)
            names.push_back(item.row);
    return names;
}

} // namespace

FileCommands::FileCommands(Desk& desk, const Target& target)
    : desk_(desk), machine_(desk, target), kind_(kindOf(desk.request.task)) {}

void FileCommands::run() {
    if (desk_.world.isInterrupted())
        return reportAll(desk_.request.names, ItemEnd::NotTried, {}, exit_code::nothingDone);
    if (!read())
        return;
    const auto matched =
        matchNames(desk_.request.names, filesOf(machine_.panes.rows(sourceOf(kind_))));
    const std::vector<std::string> names = withoutKept(matched.names);
    desk_.request.dryRun ? plan(names) : perform(names);
    reportAll(matched.unmatched, ItemEnd::Failed, text(message::consoleNoMatch),
              exit_code::nothingDone);
}

/// Before anything is sent the directory shows what would be replaced unasked.
bool FileCommands::read() {
    if (kind_ != CommandKind::DeleteOnController && !machine_.readFolder(!desk_.request.dryRun)) {
        reportAll(desk_.request.names, ItemEnd::Failed, text(message::folderNotOpened),
                  exit_code::nothingDone);
        return false;
    }
    if (machine_.readController()) {
        controller_.assign(desk_.engine.state.CtrlListing.Names);
        return true;
    }
    const bool isCancelled = desk_.world.isInterrupted();
    reportAll(desk_.request.names, isCancelled ? ItemEnd::NotTried : ItemEnd::Failed,
              isCancelled ? std::string() : machine_.reason(), causeOf(desk_.engine.session));
    return false;
}

/// The controller takes a data file in place of the one that it has without a word, and the session
/// asks about jobs only.
std::vector<std::string> FileCommands::withoutKept(const std::vector<std::string>& names) {
    if (kind_ != CommandKind::SendCopy || desk_.request.overwrite == OverwritePolicy::Always)
        return names;
    std::vector<std::string> left;
    for (const std::string& name : names)
        if (isJobFileName(name) || !isAtDestination(name) || mayReplace(name))
            left.push_back(name);
        else
            report({name, name, ItemEnd::Skipped, text(message::resultKept)},
                   exit_code::nothingDone);
    return left;
}

bool FileCommands::mayReplace(const std::string& name) {
    if (desk_.request.dryRun || desk_.request.overwrite != OverwritePolicy::Ask)
        return desk_.request.overwrite == OverwritePolicy::Ask;
    const std::string question =
        shownText(name) + " " +
        desk_.engine.messages.resourceMessage(message::resource::alreadyExists);
    const Answer answer = desk_.engine.talk.ask(text(message::transferTitle), question);
    return answer == Answer::Yes || answer == Answer::All;
}

/// As the session finds out what a file would replace: a job by the file's name and by the one that
/// it has inside.
bool FileCommands::isAtDestination(const std::string& name) const {
    if (kind_ == CommandKind::ReceiveCopy) {
        const std::string arrives = desk_.engine.state.JBR ? nameOfRelatedJob(name) : name;
        return anythingExists(PathRules().join(desk_.engine.state.PCPath, arrives));
    }
    if (!isJobFileName(name))
        return controller_.hasFile(name);
    const auto job = JobFile::read(PathRules().join(desk_.engine.state.PCPath, name));
    const std::string inside = job ? job->name().text : std::string();
    return !controller_.jobEntry(name).empty() ||
           (!inside.empty() && !controller_.jobEntry(inside).empty());
}

/// A selection stays where none of the names is there, so it is taken away before.
void FileCommands::select(const std::vector<std::string>& names) {
    machine_.services.window.list(sourceOf(kind_)).select({});
    machine_.panes.selectNames(sourceOf(kind_), names);
}

/// A copy ends at its first failure, so what it has not tried is a copy of its own, unless there is
/// no controller to reach.
void FileCommands::perform(const std::vector<std::string>& names) {
    std::vector<std::string> open = names;
    while (!open.empty()) {
        const bool isRunning = performOnce(open);
        const int cause = isRunning ? exit_code::nothingDone : causeOf(desk_.engine.session);
        if (!machine_.results.last())
            return reportAll(open, ItemEnd::NotTried, text(message::consoleOtherFolder), cause);
        const CommandResult& result = *machine_.results.last();
        const auto left = untried(result);
        const bool goesOn = desk_.request.keepGoing && cause == exit_code::nothingDone &&
                            left.size() < open.size() && !desk_.world.isInterrupted();
        for (const ItemResult& item : result.items)
            if (item.end != ItemEnd::NotTried || !goesOn)
                report(item, cause);
        if (!goesOn)
            return;
        open = left;
    }
}

bool FileCommands::performOnce(const std::vector<std::string>& names) {
    select(names);
    TransferCommands commands(machine_.services);
    if (kind_ == CommandKind::SendCopy)
        return commands.sendCopy();
    return kind_ == CommandKind::ReceiveCopy ? commands.receiveCopy()
                                             : commands.deleteOnController();
}

/// What the commands look at before they touch anything, and no more.
void FileCommands::plan(const std::vector<std::string>& names) {
    const bool isDeletion = kind_ == CommandKind::DeleteOnController;
    machine_.results.begin(kind_, {}, desk_.engine.state.PCPath, names);
    std::vector<std::string> passed;
    if (isDeletion)
        for (const SelectedItem& item : withoutAmbiguousNames(machine_.services, itemsOf(names)))
            passed.push_back(item.name);
    else
        passed = TransferPermission(machine_.services, kind_ == CommandKind::SendCopy
                                                           ? Direction::Send
                                                           : Direction::Receive)
                     .permitted(itemsOf(names));
    for (const std::string& name : passed) {
        const bool isKept = !isDeletion && desk_.request.overwrite == OverwritePolicy::Never &&
                            isAtDestination(name);
        machine_.results.note(name, isKept ? ItemEnd::Skipped : ItemEnd::Done,
                              isKept ? text(message::resultKept) : std::string());
    }
    machine_.results.end(false);
    for (const ItemResult& item : machine_.results.last()->items)
        report(item, exit_code::nothingDone);
}

void FileCommands::reportAll(const std::vector<std::string>& names, ItemEnd end,
                             const std::string& reason, int cause) {
    for (const std::string& name : names)
        report({name, name, end, reason}, cause);
}

void FileCommands::report(const ItemResult& item, int cause) {
    desk_.tally.add(item.end, cause);
    const std::string reason = shownReason(item);
    const bool isPlan = desk_.request.dryRun;
    std::vector<std::string> cells{machine_.name(), item.name, endWord(item.end)};
    if (!reason.empty())
        cells.push_back(reason);
    desk_.report.line(cells, "file",
                      {{"robot", machine_.name()},
                       {"name", item.row},
                       {"transferred_as", item.name},
                       {"end", keyOf(item.end)},
                       {"reason", reason},
                       {"dry_run", isPlan}});
}

/// Nobody was asked where a rule gave the answer.
std::string FileCommands::shownReason(const ItemResult& item) const {
    const bool isRule = item.reason == text(message::resultKept) &&
                        desk_.request.overwrite == OverwritePolicy::Never;
    return isRule ? text(message::consoleKept) : item.reason;
}

std::string FileCommands::endWord(ItemEnd end) const {
    if (desk_.request.dryRun && end == ItemEnd::Done)
        return text(message::consoleWouldBeDone);
    return endText(desk_.engine.messages, CommandResult{.kind = kind_}, end);
}

std::string FileCommands::text(std::int32_t number) const {
    return desk_.engine.messages.getMessage(number);
}

} // namespace vantrel
