#include "app/lists/SelectionList.h"

#include "app/lists/ListTransferCommands.h"
#include "base/ApplicationState.h"
#include "base/PathRules.h"
#include "base/Text.h"
#include "files/CommandScopes.h"
#include "files/PaneRefresh.h"
#include "files/PaneWindow.h"
#include "files/Panes.h"
#include "files/TransferReports.h"
#include "lang/MessageNumbers.h"
#include "lang/MessageTable.h"
#include "lang/SystemReasons.h"
#include "link/JobNameSet.h"
#include "link/OperatorTalk.h"
#include "link/SessionErrorRecord.h"
#include "link/ShownText.h"
#include "platform/Files.h"
#include "platform/TextEncoding.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace vantrel {
namespace {

struct Selection {
    std::vector<std::string> jobs;
    std::vector<std::string> others;
};

Selection selectionOf(const TransferServices& with) {
    const ActiveSide side = with.state.Active;
    const PaneRows& rows = std::as_const(with.panes).rows(side);
    Selection selection;
    for (const std::size_t row : with.window.list(side).selectedRows())
        if (row < rows.size())
            (isJobRow(rows, row) ? selection.jobs : selection.others).push_back(rows.name(row));
    return selection;
}

/// Whether the line of a list file gives the name back as it is, and a transfer would take it.
bool isListable(const std::string& name) {
    return trimmed(name) == name && PathRules::isPlainName(name) && toCodePage(name);
}

std::vector<std::string> unlistable(const std::vector<std::string>& jobs) {
    std::vector<std::string> names;
    std::ranges::remove_copy_if(jobs, std::back_inserter(names), isListable);
    return names;
}

/// In the code page as long as that is read back, for the list files that controllers' other
/// programs read too.
std::optional<std::string> contentOf(const std::vector<std::string>& jobs) {
    std::string text;
    for (const std::string& job : jobs)
        text += job + "\r\n";
    return encodeReadably(text, TextEncoding::CodePage);
}

/// As the list-file dialog completes what is typed there.
std::string completed(const std::string& path) {
    return PathRules().lastName(path).find('.') == std::string::npos ? path + ".lst" : path;
}

} // namespace

bool isJobRow(const PaneRows& rows, std::size_t row) {
    return rows.kind(row) != FileKind::Folder && isJobFileName(rows.name(row));
}

void SelectionList::save() const {
    const Selection selection = selectionOf(with_);
    if (selection.jobs.empty())
        return;
    const TransferReports reports(with_);
    if (const auto names = unlistable(selection.jobs); !names.empty())
        return reports.aboutFiles(message::selectionNotListable, names);
    reports.aboutFiles(message::selectionLeftOut, selection.others);
    if (const auto path = askPath(selection.jobs.front()))
        write(*path, selection.jobs);
    with_.window.list(with_.state.Active).focus();
}

/// The name proposed is a new one rather than that of the last list: an operator who presses Enter
/// twice keeps his old lists.
std::optional<std::string> SelectionList::askPath(const std::string& firstJob) const {
    std::string name = firstJob.substr(0, firstJob.rfind('.')) + ".lst";
    std::string folder = with_.state.PCPath;
    while (const auto chosen = dialog_.askNewList(folder, name)) {
        const std::string path = completed(*chosen);
        if (mayWrite(path))
            return path;
        folder = PathRules().parent(path);
        name = PathRules().lastName(path);
    }
    return std::nullopt;
}

bool SelectionList::mayWrite(const std::string& path) const {
    const std::string name = PathRules().lastName(path);
    // A list of that name keeps its jobs from every transfer.
    if (!PathRules::isPlainName(name) || equalsIgnoringAsciiCase(name, "LocalJob.lst")) {
        tellNotWritten(path, with_.messages.errorText(session_code::nameRefused));
        return false;
    }
    return !anythingExists(path) ||
           with_.talk.askYesNo(bracketed(path) + " " +
                                   with_.messages.resourceMessage(message::resource::alreadyExists),
                               BoxIcon::Question);
}

void SelectionList::write(const std::string& path, const std::vector<std::string>& jobs) const {
    const auto content = contentOf(jobs);
    if (!content)
        return TransferReports(with_).aboutFiles(message::selectionNotListable, jobs);
    if (const Outcome written = replaceFile(path, *content); !written)
        return tellNotWritten(path, reasonInLanguage(with_.messages, written.reason()));
    showWritten(path);
}

void SelectionList::tellNotWritten(const std::string& path, const std::string& reason) const {
    with_.talk.tell(with_.messages.getMessage(message::listFileNotWritten) + bracketed(path) + " " +
                        reason,
                    BoxIcon::Exclamation);
}

/// A list in the PC folder is shown there, and is the one that the list-file dialog begins with.
void SelectionList::showWritten(const std::string& path) const {
    const PathRules rules;
    const auto compared = [&rules](const std::string& folder) {
        return comparedName(rules.resolved(folder));
    };
    if (compared(rules.parent(path)) != compared(with_.state.PCPath))
        return;
    with_.state.JobListFile = rules.lastName(path);
    const PaneRefresh refresh(with_);
    const WindowLock lock(with_.window);
    refresh.refreshPC();
}

} // namespace vantrel
