#include "app/folders/PCFileCommands.h"

#include "app/commands/MainCommands.h"
#include "app/folders/PCFolder.h"
#include "base/PathRules.h"
#include "base/TextCase.h"
#include "files/PaneRefresh.h"
#include "files/PaneWindow.h"
#include "files/Panes.h"
#include "files/TransferCommands.h"
#include "lang/MessageNumbers.h"
#include "lang/MessageTable.h"
#include "lang/SystemReasons.h"
#include "link/OperatorTalk.h"
#include "link/ShownText.h"
#include "platform/Drives.h"
#include "platform/Files.h"

namespace vantrel {
namespace {

/// Where a name's ending begins that says what kind of file it is.
std::size_t endOfStem(const std::string& name) {
    const std::size_t point = name.rfind('.');
    return point == std::string::npos || point == 0 ? name.size() : point;
}

} // namespace

void PCFileCommands::newFolder() {
    const auto name = prompts_.ask(
        {.title = message::menuNewFolder,
         .label = with_.messages.getMessage(message::newFolderName),
         .problem = [this](const std::string& text) { return problemOfName(text, {}); }});
    if (!name)
        return;
    if (const Outcome made = createFolder(PathRules().join(with_.state.PCPath, *name)); !made)
        return tellFailure(*name, message::folderNotMade, made.reason());
    showNew(*name);
}

void PCFileCommands::rename() {
    const auto row = with_.window.list(ActiveSide::PC).selectedRow();
    const PaneRows& rows = std::as_const(with_.panes).rows(ActiveSide::PC);
    if (!row || rows.name(*row).empty())
        return;
    const std::string old = rows.name(*row);
    const bool isFolder = rows.kind(*row) == FileKind::Folder;
    const auto name = prompts_.ask(
        {.title = message::menuRename,
         .label = with_.messages.getMessageWithInsertion(message::newNameOf, shownText(old)),
         .text = old,
         .selected = isFolder ? old.size() : endOfStem(old),
         .problem = [this, old](const std::string& text) { return problemOfName(text, old); }});
    if (!name || *name == old)
        return;
    const PathRules rules;
    if (const Outcome renamed = renameToFree(rules.join(with_.state.PCPath, old),
                                             rules.join(with_.state.PCPath, *name));
        !renamed)
        return tellFailure(old, message::notRenamed, renamed.reason());
    showNew(*name);
}

/// Whoever makes a name makes one that both systems can hold.
std::string PCFileCommands::problemOfName(const std::string& name, const std::string& old) const {
    if (name == old)
        return {};
    if (!PathRules::isPlainName(name))
        return with_.messages.getMessage(message::nameUnusable);
    const bool isOwn = comparedName(name) == comparedName(old);
    if (!isOwn && anythingExists(PathRules().join(with_.state.PCPath, name)))
        return with_.messages.getMessage(message::nameTaken);
    return {};
}

void PCFileCommands::showNew(const std::string& name) {
    with_.transfers.refresh(ActiveSide::PC);
    with_.panes.selectNames(ActiveSide::PC, {name});
    commands_.workIn(ActiveSide::PC);
    commands_.updateStates();
}

void PCFileCommands::goToFolder() {
    const PathRules rules;
    const auto typed = prompts_.ask(
        {.title = message::menuGoToFolder,
         .label = with_.messages.getMessage(message::folderToOpen),
         .text = with_.state.PCPath,
         .selected = with_.state.PCPath.size(),
         .problem =
             [this](const std::string& text) {
                 return isFolder(absolute(text)) ? std::string()
                                                 : with_.messages.getMessage(message::noSuchFolder);
             },
         .completions = [this](const std::string& text) { return completions(text); }});
    if (!typed)
        return;
    const std::string folder = rules.withoutTrailingSeparator(absolute(*typed));
    commands_.openPCFolder(folder, FolderTree::driveAndFolder(folder));
    commands_.workIn(ActiveSide::PC);
    commands_.updateStates();
}

std::string PCFileCommands::absolute(const std::string& typed) const {
    const PathRules rules;
    return rules.isAbsolute(typed) ? typed : rules.join(with_.state.PCPath, typed);
}

/// Nothing is read on a network while the operator types.
std::vector<std::string> PCFileCommands::completions(const std::string& typed) const {
    const PathRules rules;
    std::size_t start = typed.size();
    while (start > 0 && !rules.isSeparator(typed[start - 1]))
        --start;
    const std::string head = typed.substr(0, start);
    const std::string folder = absolute(head);
    std::vector<std::string> found;
    if (isOnNetwork(folder))
        return found;
    const std::string part = upperCase(typed.substr(start));
    for (const std::string& name : source_.subfolders(folder))
        if (upperCase(name).starts_with(part))
            found.push_back(head + name);
    return found;
}

void PCFileCommands::step(int steps) {
    const FolderHistory& history = with_.folder.history();
    if (steps < 0 ? !history.hasBack() : !history.hasForward())
        return;
    if (!with_.folder.step(steps))
        with_.talk.tell(folderNotRead, BoxIcon::Exclamation);
    commands_.workIn(ActiveSide::PC);
    commands_.updateStates();
}

void PCFileCommands::takeDropped(const std::vector<std::string>& paths) {
    if (paths.empty() || with_.state.Busy)
        return;
    commands_.activate(ActiveSide::PC);
    if (paths.size() == 1 && isFolder(paths.front()))
        commands_.openPCFolder(paths.front(), FolderTree::driveAndFolder(paths.front()));
    else
        with_.transfers.copyIntoFolder(paths);
    commands_.updateStates();
}

std::vector<std::string> PCFileCommands::selectedPaths() const {
    std::vector<std::string> paths = with_.panes.selectedNames(ActiveSide::PC);
    for (std::string& path : paths)
        path = PathRules().join(with_.state.PCPath, path);
    return paths;
}

void PCFileCommands::lookForChanges(bool closely) {
    constexpr std::int32_t mostLookedAt = 5000; // some 10 ms
    if (with_.state.Busy || !with_.state.StartupDone || isOnNetwork(with_.state.PCPath))
        return;
    const bool looksAtAll = closely && with_.state.PCListing.Count <= mostLookedAt;
    if (looksAtAll || with_.panes.hasPCChanged())
        if (with_.panes.rescanPC())
            commands_.updateStates();
}

void PCFileCommands::tellFailure(const std::string& name, std::int32_t messageNumber,
                                 const std::string& reason) const {
    with_.talk.tell(bracketed(name) + with_.messages.getMessage(messageNumber) + "\n" +
                        reasonInLanguage(with_.messages, reason),
                    BoxIcon::Exclamation);
}

} // namespace vantrel
