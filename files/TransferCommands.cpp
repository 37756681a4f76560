#include "files/TransferCommands.h"

#include "base/PathRules.h"
#include "files/CommandScopes.h"
#include "files/ControllerPeek.h"
#include "files/CopyCommand.h"
#include "files/CopyIntoFolder.h"
#include "files/DeleteCommand.h"
#include "files/FolderOwner.h"
#include "files/MoveCommand.h"
#include "files/PaneRefresh.h"
#include "files/PaneWindow.h"
#include "files/Panes.h"
#include "files/SentSources.h"

namespace vantrel {

namespace {

/// Taken before anything yields: from here on a command works with names, not with rows.
std::vector<SelectedItem> selectedItems(const Panes& panes, PaneWindow& window, ActiveSide side) {
    const PaneRows& rows = panes.rows(side);
    std::vector<SelectedItem> items;
    for (const std::size_t row : window.list(side).selectedRows())
        if (row < rows.size())
            items.push_back({rows.name(row), rows.kind(row) == FileKind::Folder});
    return items;
}

std::vector<std::string> namesOf(const CommandResult& result, ItemEnd end) {
    std::vector<std::string> names;
    for (const ItemResult& item : result.items)
        if (item.end == end)
            names.push_back(item.name);
    return names;
}

} // namespace

bool TransferCommands::sendCopy() {
    return run(CommandKind::SendCopy,
               [this](const Items& items) { return CopyCommand(with_).send(items); });
}

bool TransferCommands::receiveCopy() {
    return run(CommandKind::ReceiveCopy,
               [this](const Items& items) { return CopyCommand(with_).receive(items); });
}

bool TransferCommands::sendMove() {
    SentSources sent(with_);
    const bool succeeded = run(
        CommandKind::SendMove,
        [&](const Items& items) { return MoveCommand(with_, sent).run(items); },
        [&] { sent.conclude(); });
    return succeeded && sent.allWent();
}

bool TransferCommands::receiveMove() {
    return run(CommandKind::ReceiveMove,
               [this](const Items& items) { return MoveCommand(with_).run(items); });
}

bool TransferCommands::deleteOnController() {
    return run(CommandKind::DeleteOnController, [this](const Items& items) {
        return DeleteCommand(with_, ActiveSide::Controller).run(items);
    });
}

bool TransferCommands::deleteOnPC() {
    return run(CommandKind::DeleteOnPC, [this](const Items& items) {
        return DeleteCommand(with_, ActiveSide::PC).run(items);
    });
}

bool TransferCommands::copyIntoFolder(const std::vector<std::string>& paths) {
    Items items;
    for (const std::string& path : paths)
        items.push_back({PathRules().lastName(path)});
    CommandOutcome outcome;
    {
        const PaneRefresh refresh(with_);
        const WindowLock lock(with_.window);
        beginResult(CommandKind::CopyIntoFolder, items);
        outcome = CopyIntoFolder(with_).run(paths);
        refresh.refreshTouched(outcome);
        showResult(outcome.cancelled);
        with_.panes.selectOnly(ActiveSide::PC, namesOf(*with_.results.last(), ItemEnd::Done));
    }
    with_.window.list(ActiveSide::PC).focus();
    return outcome.succeeded;
}

std::optional<std::string> TransferCommands::peek(const std::string& name) {
    const WindowLock lock(with_.window);
    return peekAtController(with_, name);
}

bool TransferCommands::refresh(ActiveSide side) {
    const PaneRefresh refresh(with_);
    const WindowLock lock(with_.window);
    return side == ActiveSide::PC ? refresh.refreshPC() : refresh.refreshController();
}

/// A list in a locked window cannot take the focus, so that comes after the lock.
bool TransferCommands::run(CommandKind kind, const Work& work,
                           const std::function<void()>& controllerRead) {
    const ActiveSide source = sourceOf(kind);
    const Items items = selectedItems(with_.panes, with_.window, source);
    if (items.empty())
        return true;
    const bool isSend = kind == CommandKind::SendCopy || kind == CommandKind::SendMove;
    if (isSend && !mayLeaveFolder(with_))
        return false;
    CommandOutcome outcome;
    {
        const PaneRefresh refresh(with_);
        const WindowLock lock(with_.window);
        beginResult(kind, items);
        outcome = work(items);
        refresh.refreshTouched(outcome, controllerRead);
        showResult(outcome.cancelled);
    }
    with_.window.list(source).focus();
    return outcome.succeeded;
}

void TransferCommands::beginResult(CommandKind kind, const Items& items) {
    std::vector<std::string> names;
    names.reserve(items.size());
    for (const SelectedItem& item : items)
        names.push_back(item.name);
    with_.results.begin(kind, placeOf(kind, with_.state), with_.state.PCPath, names,
                        with_.state.JBR);
}

void TransferCommands::showResult(bool cancelled) {
    with_.results.end(cancelled);
    const CommandResult& result = *with_.results.last();
    with_.window.setResult(resultLine(with_.messages, result));
    if (const auto rows = result.openRows(); !rows.empty())
        with_.panes.selectNames(sourceOf(result.kind), rows);
}

} // namespace vantrel
