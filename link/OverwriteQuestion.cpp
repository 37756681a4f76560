#include "link/OverwriteQuestion.h"

#include "lang/MessageNumbers.h"
#include "lang/MessageTable.h"
#include "link/OperatorTalk.h"
#include "link/SessionServices.h"
#include "link/ShownText.h"

namespace vantrel {

std::string overwriteQuestion(const MessageTable& messages, const std::string& name,
                              const std::string& storedAs) {
    std::string text =
        shownText(name) + " " + messages.resourceMessage(message::resource::alreadyExists);
    if (!storedAs.empty())
        text += "\n[" + shownText(name) + "] > [" + shownText(storedAs) + "]" +
                messages.getMessage(message::storedUnderOtherName);
    return text;
}

TransferOutcome OverwriteQuestion::ask(const std::string& name, const std::string& storedAs) const {
    if (!properties_.DisplayMonitor)
        return TransferOutcome::Cancelled;
    const std::string question = overwriteQuestion(messages_, name, storedAs);
    switch (talk_.ask(properties_.MonitorTitle, question)) {
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
