#include "link/OverwriteQuestion.h"

#include "lang/MessageNumbers.h"
#include "lang/MessageTable.h"
#include "link/OperatorDialog.h"
#include "link/SessionProperties.h"
#include "link/ShownText.h"

namespace vantrel {

TransferOutcome OverwriteQuestion::ask(const std::string& name) const {
    if (!properties_.DisplayMonitor)
        return TransferOutcome::Cancelled;
    const std::string question =
        shownText(name) + " " + messages_.resourceMessage(message::resource::alreadyExists);
    switch (dialog_.ask(properties_.MonitorTitle, question)) {
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
