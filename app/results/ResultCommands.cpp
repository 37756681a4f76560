#include "app/results/ResultCommands.h"

#include "app/commands/MainCommands.h"
#include "app/commands/MainServices.h"
#include "app/viewer/ViewerCommands.h"
#include "base/ApplicationState.h"
#include "files/Panes.h"
#include "files/TransferCommands.h"
#include "lang/MessageNumbers.h"
#include "lang/MessageTable.h"
#include "lang/SystemReasons.h"
#include "link/OperatorTalk.h"
#include "link/ShownText.h"
#include "platform/Files.h"

#include <algorithm>
#include <string_view>
#include <unordered_set>

namespace vantrel {
namespace {

using Repeat = bool (TransferCommands::*)();

/// Null where the files are those of a list file.
Repeat repeatOf(CommandKind kind) {
    switch (kind) {
    case CommandKind::SendCopy:
        return &TransferCommands::sendCopy;
    case CommandKind::SendMove:
        return &TransferCommands::sendMove;
    case CommandKind::ReceiveCopy:
        return &TransferCommands::receiveCopy;
    case CommandKind::ReceiveMove:
        return &TransferCommands::receiveMove;
    case CommandKind::DeleteOnController:
        return &TransferCommands::deleteOnController;
    case CommandKind::DeleteOnPC:
        return &TransferCommands::deleteOnPC;
    case CommandKind::LoadJobs:
    case CommandKind::SaveJobs:
    case CommandKind::LoadVariables:
    case CommandKind::SaveVariables:
    case CommandKind::CopyIntoFolder:
        break;
    }
    return nullptr;
}

/// With the mark of UTF-8 and line ends that Windows' older editors know too.
std::string forAnyEditor(std::string_view text) {
    std::string marked = "\xEF\xBB\xBF";
    for (const char character : text)
        marked += character == '\n' ? std::string("\r\n") : std::string(1, character);
    return marked;
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
    if (const Outcome saved = replaceFile(path, forAnyEditor(text())); !saved)
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
    if (!last() || !repeatOf(last()->kind) || last()->openRows().empty())
        return false;
    const ApplicationState& state = with_.state;
    // The controller pane cannot be worked in below the viewer.
    const bool isCovered = sourceOf(last()->kind) == ActiveSide::Controller && state.ViewerShown;
    return !isCovered && last()->folder == state.PCPath && last()->JBR == state.JBR &&
           last()->place == placeOf(last()->kind, state);
}

void ResultCommands::tryAgain() {
    if (!canTryAgain())
        return;
    const CommandKind kind = last()->kind;
    const ActiveSide source = sourceOf(kind);
    const std::vector<std::string> rows = last()->openRows();
    if (const auto missing = firstMissing(source, rows))
        return with_.talk.tell(bracketed(*missing) +
                                   with_.messages.getMessage(message::resultRowGone),
                               BoxIcon::Exclamation);
    commands_.workIn(source);
    with_.panes.selectNames(source, rows);
    (with_.transfers.*repeatOf(kind))();
    commands_.updateStates();
}

std::optional<std::string>
ResultCommands::firstMissing(ActiveSide side, const std::vector<std::string>& names) const {
    const PaneRows& rows = with_.panes.rows(side);
    std::unordered_set<std::string> shown;
    for (std::size_t row = 0; row < rows.size(); ++row)
        shown.insert(rows.name(row));
    const auto missing = std::ranges::find_if_not(
        names, [&](const std::string& name) { return shown.contains(name); });
    return missing == names.end() ? std::nullopt : std::optional(*missing);
}

} // namespace vantrel
