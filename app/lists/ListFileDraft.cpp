#include "app/lists/ListFileDraft.h"

#include "app/window/AnswerCaptions.h"
#include "base/ApplicationState.h"
#include "base/PathRules.h"
#include "base/Text.h"
#include "lang/FormCaptions.h"
#include "lang/MessageBoxes.h"
#include "lang/MessageNumbers.h"
#include "lang/MessageTable.h"
#include "lang/SystemReasons.h"
#include "link/ShownText.h"
#include "link/Snappy.h"

namespace vantrel {
namespace {

/// Characters of the folder's text.
constexpr std::size_t shownFolderLength = 48;

bool holdsWildcard(std::string_view name) {
    return name.find_first_of("*?") != std::string_view::npos;
}

} // namespace

ListFileDraft::ListFileDraft(ApplicationState& state, Snappy& session, MessageBoxes& boxes,
                             const MessageTable& messages, std::string_view mode)
    : state_(state), session_(session), boxes_(boxes), messages_(messages), mode_(mode) {
    const auto& last = isForVariables() ? state_.VarListFile : state_.JobListFile;
    if (!holdsWildcard(last))
        name_ = last;
}

bool ListFileDraft::isForVariables() const {
    return mode_ == list_file_mode::saveVariables || mode_ == list_file_mode::loadVariables;
}

std::string ListFileDraft::title() const {
    if (isForVariables())
        return messages_.getMessage(mode_ == list_file_mode::saveVariables
                                        ? message::saveVariablesTitle
                                        : message::loadVariablesTitle);
    if (mode_ == list_file_mode::saveJobs)
        return formCaption(messages_, message::saveJobsTitle, "ジョブの一括セーブ");
    return messages_.getMessage(message::loadJobsTitle);
}

std::string ListFileDraft::fieldLabel() const {
    return messages_.getMessage(isForVariables() ? message::variableListField
                                                 : message::jobListField);
}

std::string ListFileDraft::hint() const {
    return messages_.getMessage(message::listFileHint);
}

std::string ListFileDraft::shownFolder() const {
    return PathRules().shorten(state_.PCPath, shownFolderLength);
}

const std::string& ListFileDraft::folder() const {
    return state_.PCPath;
}

std::string ListFileDraft::okCaption() const {
    return formCaption(messages_, message::ok);
}

std::string ListFileDraft::cancelCaption() const {
    return formCaption(messages_, message::cancel, answerCaption(messages_, Answer::Cancel));
}

bool ListFileDraft::canConfirm() const {
    return !trimmed(name_).empty() && PathRules::isPlainName(completedName());
}

std::string ListFileDraft::completedName() const {
    std::string name(trimmed(name_));
    if (name.find('.') == std::string::npos)
        name += ".lst";
    return name;
}

void ListFileDraft::confirm() {
    if (!canConfirm())
        return;
    const auto file = completedName();
    session_.path = state_.PCPath;
    const bool read = readList(file);
    result_ = read ? list_file_result::listRead : list_file_result::listNotRead;
    if (read)
        (isForVariables() ? state_.VarListFile : state_.JobListFile) = file;
    else
        tellWhyNotRead(file);
}

bool ListFileDraft::readList(const std::string& file) {
    if (isForVariables()) {
        session_.SetVarListFile(file);
        return session_.ReadVarListFile();
    }
    // Jobs that are about to be fetched need not be on the PC yet.
    return session_.SetJobListFile(file, mode_ == list_file_mode::saveJobs);
}

/// The operator who left a list need not be told.
void ListFileDraft::tellWhyNotRead(const std::string& file) const {
    if (session_.wasCancelled())
        return;
    const std::string& reason = session_.systemReason();
    boxes_.tell(messages_.getMessage(message::listFileNotRead) + bracketed(file) + " " +
                    (reason.empty() ? messages_.errorText(session_.ErrorCode())
                                    : reasonInLanguage(messages_, reason)),
                BoxIcon::Exclamation);
}

void ListFileDraft::abandon() {
    result_ = list_file_result::listNotRead;
}

} // namespace vantrel
