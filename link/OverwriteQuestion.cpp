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

/// A language file that was made for an earlier version lacks some.
void addLine(std::string& lines, const std::string& line) {
    if (!lines.empty() && !line.empty())
        lines += '\n';
    lines += line;
}

std::string itemFacts(const MessageTable& messages, const ProgressPanel& progress) {
    const int left = progress.count() - progress.item() - 1;
    if (progress.count() <= 1 || left < 0)
        return {};
    const std::string item =
        messages.getMessage(message::progressItem) + std::to_string(progress.item() + 1) +
        messages.getMessage(message::progressOf) + std::to_string(progress.count());
    if (left == 0)
        return item;
    return item + "  " + messages.getMessageWithInsertion(message::allMeans, std::to_string(left));
}

} // namespace

std::string overwriteQuestion(const MessageTable& messages, const Overwrite& overwrite) {
    std::string text = shownText(overwrite.name) + " " +
                       messages.resourceMessage(message::resource::alreadyExists);
    if (!overwrite.storedAs.empty())
        text += "\n" + bracketed(overwrite.name) + " > " + bracketed(overwrite.storedAs) +
                messages.getMessage(message::storedUnderOtherName);
    return text;
}

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

TransferOutcome OverwriteQuestion::ask(const Overwrite& overwrite) const {
    if (!properties_.DisplayMonitor)
        return TransferOutcome::Cancelled;
    const std::string question = overwriteQuestion(messages_, overwrite);
    const std::string facts = overwriteFacts(messages_, overwrite, talk_.progress());
    switch (talk_.ask(properties_.MonitorTitle, question, facts)) {
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
