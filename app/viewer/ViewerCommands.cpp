#include "app/viewer/ViewerCommands.h"

#include "base/ApplicationState.h"
#include "base/PathRules.h"
#include "files/CommandScopes.h"
#include "files/PaneWindow.h"
#include "files/Panes.h"
#include "files/ViewerText.h"
#include "lang/MessageNumbers.h"
#include "lang/MessageTable.h"
#include "lang/SystemReasons.h"
#include "link/OperatorTalk.h"
#include "link/ShownText.h"
#include "platform/Files.h"

#include <utility>

namespace vantrel {

void ViewerCommands::showOrHide() {
    if (with_.state.ViewerShown)
        hide();
    else if (const auto name = selectedJobFile())
        show(*name);
}

void ViewerCommands::show(const std::string& name) {
    Result<std::string> text = Failure{};
    {
        const BusyPointer busy(with_.window);
        const std::string path = PathRules().join(with_.state.PCPath, name);
        const std::string changed(fileDetails(path).changed.view());
        text = readViewerText(path, with_.state.Headder);
        if (text) {
            file_ = {name, with_.state.PCPath, changed};
            text_ = std::move(*text);
            showInPane();
        }
    }
    with_.state.ViewerShown = bool(text);
    if (!text)
        tell(message::viewerFailed, name, text.reason());
}

void ViewerCommands::showText(const std::string& name, const std::string& folder,
                              std::string text) {
    file_ = {name, folder, {}};
    text_ = std::move(text);
    showInPane();
    with_.state.ViewerShown = true;
}

void ViewerCommands::showLineNumbers(bool shown) {
    lineNumbers_ = shown;
    if (with_.state.ViewerShown)
        showInPane();
}

void ViewerCommands::showInPane() {
    numbered_ = lineNumbers_ ? numberedText(text_) : std::string();
    with_.viewerPane.showFile(file_.name, lineNumbers_ ? numbered_ : text_);
}

void ViewerCommands::hide() {
    with_.viewerPane.hideFile();
    with_.state.ViewerShown = false;
    text_ = numbered_ = std::string(); // they may be large
}

void ViewerCommands::print() {
    if (!with_.state.ViewerShown)
        return with_.talk.tell(with_.messages.getMessage(message::nothingToPrint),
                               BoxIcon::Exclamation);
    const auto question = with_.messages.getMessage(message::askPrint) + bracketed(file_.name);
    if (!with_.talk.askYesNo(question, BoxIcon::Question))
        return;
    Outcome printed = Done{};
    {
        // The system's print dialog and its work let events run, and the text is borrowed
        // meanwhile.
        const WindowLock lock(with_.window);
        printed = with_.printer.print(file_, text_);
    }
    if (!printed)
        tell(message::printFailed, file_.name, printed.reason());
}

std::optional<std::string> ViewerCommands::selectedJobFile() const {
    const auto row = with_.window.list(ActiveSide::PC).selectedRow();
    const auto& rows = with_.panes.rows(ActiveSide::PC);
    if (!row || *row >= rows.size() || rows.kind(*row) != FileKind::JobFile)
        return std::nullopt;
    return rows.name(*row);
}

void ViewerCommands::tell(std::int32_t messageNumber, const std::string& name,
                          const std::string& reason) const {
    with_.talk.tell(with_.messages.getMessage(messageNumber) + bracketed(name) + "\n" +
                        reasonInLanguage(with_.messages, reason),
                    BoxIcon::Exclamation);
}

} // namespace vantrel
