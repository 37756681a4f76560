#include "console/FileCommands.h"

#include "app/start/Engine.h"
#include "console/ConsoleMessages.h"
#include "console/NamePatterns.h"
#include "console/Replacement.h"
#include "files/PaneWindow.h"
#include "files/TransferCommands.h"

#include <utility>

namespace vantrel {
namespace {

using Task = Request::Task;

CommandKind kindOf(Task task) {
    if (task == Task::Put)
        return CommandKind::SendCopy;
    return task == Task::Get ? CommandKind::ReceiveCopy : CommandKind::DeleteOnController;
}

std::vector<std::string> filesOf(const PaneRows& rows) {
    std::vector<std::string> names;
    for (std::size_t row = 0; row < rows.size(); ++row)
        if (rows.kind(row) != FileKind::Folder)
            names.push_back(rows.name(row));
    return names;
}

} // namespace

FileCommands::FileCommands(Desk& desk, const Target& target)
    : desk_(desk), machine_(desk, target), kind_(kindOf(desk.request.task)),
      items_(desk, machine_, kind_) {}

void FileCommands::run() {
    if (desk_.world.isInterrupted())
        return items_.addAll(desk_.request.names, ItemEnd::NotTried);
    if (!read())
        return;
    const auto matched =
        matchNames(desk_.request.names, filesOf(machine_.panes.rows(sourceOf(kind_))));
    Replacement replacement(desk_, kind_);
    std::vector<std::string> names = kind_ == CommandKind::DeleteOnController
                                         ? matched.names
                                         : replacement.withoutKept(matched.names, items_);
    if (desk_.request.dryRun)
        replacement.rehearse(machine_, names, items_);
    else
        perform(std::move(names));
    items_.addAll(matched.unmatched, ItemEnd::Failed, text(message::consoleNoMatch));
}

/// Before anything is sent the directory shows what would be replaced unasked.
bool FileCommands::read() {
    if (kind_ != CommandKind::DeleteOnController && !machine_.readFolder(!desk_.request.dryRun)) {
        items_.addAll(desk_.request.names, ItemEnd::Failed, text(message::folderNotOpened));
        return false;
    }
    return items_.readController(desk_.request.names);
}

/// A selection stays where none of the names is there, so it is taken away before.
void FileCommands::select(const std::vector<std::string>& names) {
    machine_.services.window.list(sourceOf(kind_)).select({});
    machine_.panes.selectNames(sourceOf(kind_), names);
}

void FileCommands::perform(std::vector<std::string> names) {
    while (!names.empty()) {
        const bool isRunning = performOnce(names);
        const int cause = isRunning ? exit_code::nothingDone : causeOf(desk_.engine.session);
        if (!machine_.results.last())
            return items_.addAll(names, ItemEnd::NotTried, text(message::consoleOtherFolder),
                                 cause);
        names = items_.addResult(*machine_.results.last(), cause);
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

std::string FileCommands::text(std::int32_t number) const {
    return desk_.engine.messages.getMessage(number);
}

} // namespace vantrel
