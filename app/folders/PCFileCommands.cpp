#include "app/folders/PCFileCommands.h"

#include "app/commands/MainCommands.h"
#include "app/folders/PCFolder.h"
#include "base/PathRules.h"
#include "base/TextCase.h"
#include "files/PaneWindow.h"
#include "files/Panes.h"
#include "files/TransferCommands.h"
#include "lang/MessageNumbers.h"
#include "lang/MessageTable.h"
#include "lang/SystemReasons.h"
#include "link/FetchMark.h"
#include "link/GroupMark.h"
#include "link/OperatorTalk.h"
#include "link/ShownText.h"
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
    const std::string folder = with_.state.PCPath;
    const auto name = prompts_.ask({.title = message::menuNewFolder,
                                    .label = with_.messages.getMessage(message::newFolderName),
                                    .problem = [this, folder](const std::string& text) {
                                        return problemOfName(folder, text, {});
                                    }});
    if (!name)
        return;
    if (const Outcome made = createFolder(PathRules().join(folder, *name)); !made)
        return tellFailure(*name, message::folderNotMade, made.reason());
    showNew(*name);
}

void PCFileCommands::rename() {
    const auto row = with_.window.list(ActiveSide::PC).selectedRow();
    const PaneRows& rows = std::as_const(with_.panes).rows(ActiveSide::PC);
    if (!row || rows.name(*row).empty())
        return;
    const std::string folder = with_.state.PCPath;
    const std::string old = rows.name(*row);
    const bool isFolder = rows.kind(*row) == FileKind::Folder;
    if (isBeingFetched(folder, old))
        return tellUnfinished(old);
    const auto name = prompts_.ask(
        {.title = message::menuRename,
         .label = with_.messages.getMessageWithInsertion(message::newNameOf, shownText(old)),
         .text = old,
         .selected = isFolder ? old.size() : endOfStem(old),
         .problem = [this, folder, old](const std::string& text) {
             return problemOfName(folder, text, old);
         }});
    if (!name || *name == old)
        return;
    // One may have begun while the name was typed.
    for (const std::string& either : {old, *name})
        if (isBeingFetched(folder, either))
            return tellUnfinished(either);
    const PathRules rules;
    const Outcome renamed = renameToFree(rules.join(folder, old), rules.join(folder, *name));
    if (!renamed)
        return tellFailure(old, message::notRenamed, renamed.reason());
    showNew(*name);
}

void PCFileCommands::tellUnfinished(const std::string& name) const {
    with_.talk.tell(bracketed(name) + with_.messages.getMessage(message::fetchNotFinished),
                    BoxIcon::Exclamation);
}

/// Whoever makes a name makes one that both systems can hold. Whether it is taken is left to the
/// system on a network, where it may answer slowly.
std::string PCFileCommands::problemOfName(const std::string& folder, const std::string& name,
                                          const std::string& old) const {
    if (name == old)
        return {};
    if (!PathRules::isPlainName(name) || FetchMark::isFileName(name))
        return with_.messages.getMessage(message::nameUnusable);
    if (isBeingFetched(folder, name))
        return bracketed(name) + with_.messages.getMessage(message::fetchNotFinished);
    const bool isOwn = comparedName(name) == comparedName(old);
    if (!isOwn && !source_.isOnNetwork(folder) && anythingExists(PathRules().join(folder, name)))
        return with_.messages.getMessage(message::nameTaken);
    return {};
}

/// A quick filter that hides it ends: the operator would look for it in vain.
void PCFileCommands::showNew(const std::string& name) {
    with_.transfers.refresh(ActiveSide::PC);
    with_.panes.selectOnly(ActiveSide::PC, {name});
    if (with_.panes.nameFilterHides(ActiveSide::PC, name)) {
        with_.view.closeQuickFilter(ActiveSide::PC);
        with_.panes.filterNames(ActiveSide::PC, {});
        with_.panes.selectOnly(ActiveSide::PC, {name});
    }
    commands_.workIn(ActiveSide::PC);
    commands_.updateStates();
}

void PCFileCommands::goToFolder() {
    const auto typed = prompts_.ask(
        {.title = message::menuGoToFolder,
         .label = with_.messages.getMessage(message::folderToOpen),
         .text = with_.state.PCPath,
         .selected = with_.state.PCPath.size(),
         .problem =
             [this](const std::string& text) {
                 const std::string folder = absolute(with_.state.PCPath, text);
                 return source_.isOnNetwork(folder) || isFolder(folder)
                            ? std::string()
                            : with_.messages.getMessage(message::noSuchFolder);
             },
         // One system completes in a thread of its own, which must not look at the state.
         .completions = [this, shown = with_.state.PCPath](
                            const std::string& text) { return completions(shown, text); }});
    if (!typed)
        return;
    const std::string folder = absolute(with_.state.PCPath, *typed);
    commands_.openPCFolder(folder, FolderTree::driveAndFolder(folder));
    commands_.workIn(ActiveSide::PC);
    commands_.updateStates();
}

/// In one spelling, since folders are told apart by it.
std::string PCFileCommands::absolute(const std::string& shown, const std::string& typed) {
    const PathRules rules;
    if (!rules.isAbsolute(typed))
        return rules.resolved(rules.join(shown, typed));
    // A path from the root is one on the drive that is shown.
    const bool hasDrive = !rules.drive(typed).empty();
    return rules.resolved(hasDrive ? typed : rules.drive(shown) + typed);
}

/// Nothing is read on a network while the operator types.
std::vector<std::string> PCFileCommands::completions(const std::string& shown,
                                                     const std::string& typed) const {
    const PathRules rules;
    std::size_t start = typed.size();
    while (start > 0 && !rules.isSeparator(typed[start - 1]))
        --start;
    const std::string head = typed.substr(0, start);
    const std::string folder = absolute(shown, head);
    std::vector<std::string> found;
    if (source_.isOnNetwork(folder))
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
    const std::string folder = history.neighbour(steps);
    if (!with_.folder.step(steps))
        with_.talk.tell(with_.messages.getMessage(message::folderNotOpened) + bracketed(folder),
                        BoxIcon::Exclamation);
    commands_.workIn(ActiveSide::PC);
    commands_.updateStates();
}

void PCFileCommands::takeDropped(const std::vector<std::string>& paths) {
    if (paths.empty() || with_.state.Busy)
        return;
    commands_.activate(ActiveSide::PC);
    if (paths.size() == 1 && isFolder(paths.front())) {
        const std::string folder = PathRules().resolved(paths.front());
        commands_.openPCFolder(folder, FolderTree::driveAndFolder(folder));
    } else {
        with_.transfers.copyIntoFolder(paths);
    }
    commands_.updateStates();
}

std::vector<std::string> PCFileCommands::selectedPaths() const {
    std::vector<std::string> paths = with_.panes.selectedNames(ActiveSide::PC);
    for (std::string& path : paths)
        path = PathRules().join(with_.state.PCPath, path);
    return paths;
}

void PCFileCommands::lookForChanges(bool closely) {
    // What is found may have to be told, and while that stands there the next look comes.
    if (looks_ || with_.state.Busy || !with_.state.StartupDone ||
        source_.isOnNetwork(with_.state.PCPath))
        return;
    looks_ = true;
    const bool looksAtAll = closely && with_.state.PCListing.Count <= mostLookedAt;
    if ((looksAtAll || with_.panes.hasPCChanged()) && with_.panes.rescanPC())
        commands_.updateStates();
    looks_ = false;
}

void PCFileCommands::tellFailure(const std::string& name, std::int32_t messageNumber,
                                 const std::string& reason) const {
    with_.talk.tell(bracketed(name) + with_.messages.getMessage(messageNumber) + "\n" +
                        reasonInLanguage(with_.messages, reason),
                    BoxIcon::Exclamation);
}

} // namespace vantrel
