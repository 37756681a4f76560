#include "app/results/ResultCommands.h"

#include "app/commands/MainCommands.h"
#include "app/commands/MainServices.h"
#include "app/viewer/ViewerCommands.h"
#include "base/ApplicationState.h"
#include "files/Panes.h"
#include "lang/MessageNumbers.h"
#include "lang/MessageTable.h"
#include "lang/SystemReasons.h"
#include "link/OperatorTalk.h"
#include "link/ShownText.h"
#include "platform/Files.h"

#include <algorithm>

namespace vantrel {
namespace {

bool isOfPanes(CommandKind kind) {
    switch (kind) {
    case CommandKind::SendCopy:
    case CommandKind::SendMove:
    case CommandKind::ReceiveCopy:
    case CommandKind::ReceiveMove:
    case CommandKind::DeleteOnController:
    case CommandKind::DeleteOnPC:
        return true;
    case CommandKind::LoadJobs:
    case CommandKind::SaveJobs:
    case CommandKind::LoadVariables:
    case CommandKind::SaveVariables:
        break;
    }
    return false;
}

void run(CommandKind kind, MainCommands& commands) {
    switch (kind) {
    case CommandKind::SendCopy:
    case CommandKind::ReceiveCopy:
        return commands.copy();
    case CommandKind::SendMove:
    case CommandKind::ReceiveMove:
        return commands.move();
    case CommandKind::DeleteOnController:
    case CommandKind::DeleteOnPC:
        return commands.remove();
    case CommandKind::LoadJobs:
    case CommandKind::SaveJobs:
    case CommandKind::LoadVariables:
    case CommandKind::SaveVariables:
        return;
    }
}

} // namespace

ResultCommands::ResultCommands(const MainServices& services, const ResultLog& results,
                               MainCommands& commands)
    : with_(services), results_(results), commands_(commands) {}

std::string ResultCommands::text() const {
    if (!last())
        return {};
    std::string text = resultLine(with_.messages, *last()) + "\n";
    for (const std::string& line : {last()->place, last()->folder})
        if (!line.empty())
            text += line + "\n";
    for (const ItemResult& item : last()->items)
        text += "\n" + shownText(item.name) + "\t" + endText(with_.messages, *last(), item.end) +
                (item.reason.empty() ? "" : "\t" + shownText(item.reason));
    return text + "\n";
}

void ResultCommands::save(const std::string& path) const {
    if (const Outcome saved = replaceFile(path, text()); !saved)
        with_.talk.tell(with_.messages.getMessage(message::resultNotSaved) + bracketed(path) + " " +
                            reasonInLanguage(with_.messages, saved.reason()),
                        BoxIcon::Exclamation);
}

void ResultCommands::print() const {
    const std::string title = with_.messages.getMessage(message::resultTitle);
    const PrintedFile heading{title, last() ? last()->folder : std::string(), {}};
    if (const Outcome printed = with_.printer.print(heading, text()); !printed)
        with_.talk.tell(with_.messages.getMessage(message::printFailed) + bracketed(title) + " " +
                            reasonInLanguage(with_.messages, printed.reason()),
                        BoxIcon::Exclamation);
}

bool ResultCommands::canTryAgain() const {
    return last() && isOfPanes(last()->kind) && last()->folder == with_.state.PCPath &&
           last()->place == placeOf(last()->kind, with_.state) && !last()->openRows().empty();
}

void ResultCommands::tryAgain() {
    if (!canTryAgain())
        return;
    const CommandKind kind = last()->kind;
    const std::vector<std::string> rows = last()->openRows();
    commands_.workIn(sourceOf(kind));
    with_.panes.selectNames(sourceOf(kind), rows);
    const auto selected = with_.panes.selectedNames(sourceOf(kind));
    const auto isSelected = [&](const std::string& row) {
        return std::ranges::find(selected, row) != selected.end();
    };
    const auto gone = std::ranges::find_if_not(rows, isSelected);
    if (gone != rows.end())
        with_.talk.tell(bracketed(*gone) + with_.messages.getMessage(message::resultRowGone),
                        BoxIcon::Exclamation);
    else
        run(kind, commands_);
}

} // namespace vantrel
