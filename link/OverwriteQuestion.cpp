#include "link/OverwriteQuestion.h"

#include "lang/MessageNumbers.h"
#include "lang/MessageTable.h"
#include "link/OperatorTalk.h"
#include "link/ProgressPanel.h"
#include "link/SessionServices.h"
#include "link/ShownText.h"
#include "platform/Files.h"

namespace vantrel {

namespace {

/// An empty line leaves nothing: a language file made for an earlier version lacks some texts.
void addLine(std::string& lines, const std::string& line) {
    if (!lines.empty() && !line.empty())
        lines += '\n';
    lines += line;
}

std::string itemFacts(const MessageTable& messages, const ProgressPanel& progress) {
    const int left = progress.count() - progress.item() - 1;
    if (progress.count() <= 1 || left < 0)
        return {};
    const std::string item = itemText(messages, progress.item(), progress.count());
    if (left == 0)
        return item;
    return item + "  " + messages.getMessageWithInsertion(message::allMeans, std::to_string(left));
}

std::string questionText(const MessageTable& messages, const Overwrite& overwrite) {
    std::string text = shownText(overwrite.name) + " " +
                       messages.resourceMessage(message::resource::alreadyExists);
    if (!overwrite.storedAs.empty())
        text += "\n" + bracketed(overwrite.name) + " > " + bracketed(overwrite.storedAs) +
                messages.getMessage(message::storedUnderOtherName);
    return text;
}

} // namespace

std::string overwriteFacts(const MessageTable& messages, const Overwrite& overwrite,
                           const ProgressPanel& progress) {
    std::string facts;
    if (const FolderEntry file = fileDetails(overwrite.pcFile); file.detailsKnown)
        facts = messages.getMessageWithInsertion(message::factsOfPCFile, std::to_string(file.size),
                                                 file.changed.view());
    addLine(facts,
            messages.getMessage(overwrite.isOnPC ? message::pcLoses : message::controllerLoses));
    addLine(facts, itemFacts(messages, progress));
    return facts;
}

Answer askOverwrite(OperatorTalk& talk, const MessageTable& messages, const std::string& title,
                    const Overwrite& overwrite) {
    return talk.ask(title, questionText(messages, overwrite),
                    overwriteFacts(messages, overwrite, talk.progress()));
}

TransferOutcome OverwriteQuestion::ask(const Overwrite& overwrite) const {
    if (!properties_.DisplayMonitor)
        return TransferOutcome::Cancelled;
    switch (askOverwrite(talk_, messages_, properties_.MonitorTitle, overwrite)) {
    case Answer::Yes:
        return TransferOutcome::Done;
    case Answer::No:
        return TransferOutcome::Refused;
    case Answer::All:
        return TransferOutcome::DoneAll;
    case Answer::Cancel:
        break;
    }
    return TransferOutcome::Cancelled;
}

} // namespace vantrel
