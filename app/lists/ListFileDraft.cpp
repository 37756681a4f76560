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

#include <algorithm>
#include <utility>

namespace vantrel {
namespace {

/// Characters of the folder's text.
constexpr std::size_t shownFolderLength = 48;

bool holdsWildcard(std::string_view name) {
    return name.find_first_of("*?") != std::string_view::npos;
}

bool isListFile(const std::string& name) {
    constexpr std::string_view ending = ".lst";
    return name.size() > ending.size() && PathRules::isPlainName(name) &&
           equalsIgnoringAsciiCase(std::string_view(name).substr(name.size() - ending.size()),
                                   ending) &&
           !equalsIgnoringAsciiCase(name, "LocalJob.lst");
}

} // namespace

ListFileDraft::ListFileDraft(ApplicationState& state, Snappy& session, MessageBoxes& boxes,
                             const MessageTable& messages, std::string_view mode)
    : state_(state), session_(session), boxes_(boxes), messages_(messages), mode_(mode) {
    const auto& last = isForVariables() ? state_.VarListFile : state_.JobListFile;
    if (!holdsWildcard(last))
        name_ = last;
    findOffered();
}

void ListFileDraft::findOffered() {
    const FolderListing& listing = state_.PCListing;
    for (std::size_t entry = 0; entry < listing.Names.size(); ++entry)
        if (listing.Sizes[entry] != FolderListing::folderSize && isListFile(listing.Names[entry]))
            offered_.push_back(listing.Names[entry]);
    std::ranges::sort(offered_, {},
                      [](const std::string& name) { return std::pair(asciiUpper(name), name); });
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

std::string ListFileDraft::offeredLabel() const {
    return messages_.getMessage(message::listFilesOffered);
}

std::optional<std::size_t> ListFileDraft::nearest() const {
    const auto same = std::ranges::find(offered_, completedName());
    if (same != offered_.end())
        return std::size_t(same - offered_.begin());
    const std::string begun = asciiUpper(trimmed(name_));
    const auto first = std::ranges::find_if(offered_, [&begun](const std::string& name) {
        return asciiUpper(name).starts_with(begun);
    });
    return first == offered_.end() ? std::nullopt
                                   : std::optional(std::size_t(first - offered_.begin()));
}

bool ListFileDraft::isOffered(std::size_t place) const {
    return place < offered_.size() && offered_[place] == completedName();
}

std::optional<std::string> ListFileDraft::neighbour(int step) const {
    const auto place = nearest();
    if (!place)
        return std::nullopt;
    const bool atEnd = step < 0 ? *place == 0 : *place + 1 == offered_.size();
    if (!isOffered(*place) || atEnd)
        return offered_[*place];
    return offered_[step < 0 ? *place - 1 : *place + 1];
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
