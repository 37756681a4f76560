#include "files/TransferCommands.h"

#include "files/CommandScopes.h"
#include "files/CopyCommand.h"
#include "files/DeleteCommand.h"
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

} // namespace

bool TransferCommands::sendCopy() {
    return run(ActiveSide::PC,
               [this](const Items& items) { return CopyCommand(with_).send(items); });
}

bool TransferCommands::receiveCopy() {
    return run(ActiveSide::Controller,
               [this](const Items& items) { return CopyCommand(with_).receive(items); });
}

bool TransferCommands::sendMove() {
    SentSources sent(with_);
    const bool succeeded = run(
        ActiveSide::PC, [&](const Items& items) { return MoveCommand(with_, sent).run(items); },
        [&] { sent.conclude(); });
    return succeeded && sent.allWent();
}

bool TransferCommands::receiveMove() {
    return run(ActiveSide::Controller,
               [this](const Items& items) { return MoveCommand(with_).run(items); });
}

bool TransferCommands::deleteOnController() {
    return run(ActiveSide::Controller, [this](const Items& items) {
        return DeleteCommand(with_, ActiveSide::Controller).run(items);
    });
}

bool TransferCommands::deleteOnPC() {
    return run(ActiveSide::PC, [this](const Items& items) {
        return DeleteCommand(with_, ActiveSide::PC).run(items);
    });
}

bool TransferCommands::refresh(ActiveSide side) {
    const PaneRefresh refresh(with_);
    const WindowLock lock(with_.window);
    return side == ActiveSide::PC ? refresh.refreshPC() : refresh.refreshController();
}

/// A list in a locked window cannot take the focus, so that comes after the lock.
bool TransferCommands::run(ActiveSide source, const Work& work,
                           const std::function<void()>& controllerRead) {
    const Items items = selectedItems(with_.panes, with_.window, source);
    if (items.empty())
        return true;
    CommandOutcome outcome;
    {
        const PaneRefresh refresh(with_);
        const WindowLock lock(with_.window);
        outcome = work(items);
        refresh.refreshTouched(outcome, controllerRead);
    }
    with_.window.list(source).focus();
    return outcome.succeeded;
}

} // namespace vantrel
