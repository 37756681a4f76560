#include "app/history/RobotSnapshot.h"

#include "base/ApplicationState.h"
#include "base/PathRules.h"
#include "base/Text.h"
#include "base/TextCase.h"
#include "files/CommandScopes.h"
#include "files/ControllerModels.h"
#include "files/ControllerPlace.h"
#include "files/FetchFolder.h"
#include "files/TransferReports.h"
#include "files/TransferTable.h"
#include "lang/MessageNumbers.h"
#include "lang/MessageTable.h"
#include "link/SentFile.h"
#include "link/Snappy.h"
#include "platform/Environment.h"
#include "platform/Files.h"
#include "platform/TextEncoding.h"

#include <algorithm>
#include <array>
#include <ctime>
#include <map>
#include <set>
#include <utility>

namespace vantrel {
namespace {

/// How often each name comes, in the form in which some disk would take several for one.
std::map<std::string, std::set<std::string>> spellings(const std::vector<std::string>& names) {
    std::map<std::string, std::set<std::string>> spelled;
    for (const std::string& name : names)
        spelled[upperCase(name)].insert(name);
    return spelled;
}

int offsetFromUtc(std::time_t time) {
    constexpr int minutesOfDay = 24 * 60;
    const std::tm* const found = std::localtime(&time);
    if (!found)
        return 0;
    const std::tm local = *found;
    const std::tm utc = *std::gmtime(&time);
    const int days = local.tm_yday - utc.tm_yday;
    const int day = days > 1 ? -1 : (days < -1 ? 1 : days); // over New Year
    return day * minutesOfDay + (local.tm_hour - utc.tm_hour) * 60 + local.tm_min - utc.tm_min;
}

std::string counted(std::size_t count, const char* what) {
    return count == 0 ? std::string() : ", " + std::to_string(count) + " " + what;
}

std::string listed(const std::vector<std::string>& names, const char* sign) {
    std::string lines;
    for (const std::string& name : names)
        lines += std::string(sign) + " " + onOneLine(name) + "\n";
    return lines;
}

} // namespace

HistorySignature signatureOfNow() {
    const std::time_t now = std::time(nullptr);
    // Git has no room for brackets in names.
    const auto orUnknown = [](const std::string& text) {
        std::string name = onOneLine(text);
        std::erase_if(name, [](char c) { return c == '<' || c == '>'; });
        name = trimmed(name, " .,:;'\"");
        return name.empty() ? std::string("unknown") : name;
    };
    const std::string user = orUnknown(userName());
    return {user, user + "@" + orUnknown(computerName()), now, offsetFromUtc(now)};
}

Result<SnapshotResult> RobotSnapshot::take() {
    const auto path = createTemporaryFolder();
    if (!path)
        return Failure{path.reason()};
    const FetchFolder folder(with_.session, *path);
    RobotState state{.robot = robot_};
    if (!fetch(namesToFetch(state), *path, state))
        return Failure{with_.messages.getMessage(message::resultCancelled)};
    dropNeverSeen();
    for (const UnreadFile& file : result_.unread)
        state.unfetched.push_back(file.name);
    auto recorded = history_.record(state, signatureOfNow(),
                                    [this](const Recorded& entry) { return message(entry); });
    if (!recorded)
        return Failure{recorded.reason()};
    result_.recorded = std::move(*recorded);
    return std::move(result_);
}

std::vector<std::string> RobotSnapshot::namesToFetch(RobotState& state) {
    const std::int16_t model = controllerModel(with_.state.Controler).bit;
    const auto spelled = spellings(with_.state.CtrlListing.Names);
    std::vector<std::string> names;
    std::set<std::string_view> seen;
    for (const std::string& name : with_.state.CtrlListing.Names) {
        if (!seen.insert(name).second)
            continue;
        if (!with_.table.isTransferable(name, false, model))
            state.unfetched.push_back(name); // with another model or table it may have been fetched
        else if (!PathRules::isPlainName(name))
            leaveOut(name, with_.messages.getMessage(message::controllerNameRefused));
        else if (!toCodePage(name))
            leaveOut(name, with_.messages.getMessage(message::nameNotExpressible));
        else if (spelled.at(upperCase(name)).size() > 1)
            leaveOut(name, with_.messages.getMessage(message::nameIsAmbiguous));
        else
            names.push_back(name);
    }
    return names;
}

bool RobotSnapshot::fetch(std::vector<std::string> names, const std::string& folder,
                          RobotState& state) {
    Snappy& session = with_.session;
    CommandProgress progress(with_, with_.messages.getMessage(message::transferTitle),
                             with_.messages.resourceMessage(message::resource::transferring),
                             fromController(with_.state));
    session.MonitorTitle = with_.messages.getMessage(message::transferTitle);
    while (!names.empty()) {
        session.JobListClear();
        for (const std::string& name : names)
            session.AddJobList(name);
        const bool isDone = session.JobListUpLoad();
        if (!isDone && (session.wasCancelled() || progress.isCancelled()))
            return false;
        std::vector<std::string> rest;
        const auto ends = session.entryEnds();
        const std::string reason = isDone ? std::string() : functionAndReason(session);
        for (std::size_t at = 0; at < names.size(); ++at) {
            const EntryEnd end = at < ends.size() ? ends[at] : EntryEnd::NotTried;
            if (end == EntryEnd::Done)
                state.files.push_back({names[at], PathRules().join(folder, names[at])});
            else if (end == EntryEnd::NotTried && goesOnAfterFailure() && !ends.empty())
                rest.push_back(names[at]);
            else
                leaveOut(names[at], reason);
        }
        const bool isGettingOn = rest.size() < names.size();
        names = isGettingOn ? std::move(rest) : std::vector<std::string>();
    }
    result_.fetched = state.files.size();
    return !progress.isCancelled();
}

// What is wrong with one file says nothing of the next one; a link that fails does.
bool RobotSnapshot::goesOnAfterFailure() const {
    constexpr std::array<std::string_view, 6> ofTheLink{
        "BscOpen", "BscSetCom", "BscSetEther", "BscConnect", "BscDisConnect", "BscClose"};
    return std::ranges::find(ofTheLink, with_.session.ErrorFunction()) == ofTheLink.end() &&
           !with_.session.operatorIsTold();
}

void RobotSnapshot::leaveOut(const std::string& name, const std::string& reason) {
    result_.unread.push_back({name, std::string(trimmed(reason))});
}

void RobotSnapshot::dropNeverSeen() {
    const auto fixed = with_.table.fixedNames(controllerModel(with_.state.Controler).bit);
    const auto& directory = with_.session.lastReading().names;
    const std::set<std::string_view> shown(directory.begin(), directory.end());
    const auto known = history_.files(robot_);
    std::erase_if(result_.unread, [&](const UnreadFile& file) {
        const bool wasSeen = known && std::ranges::binary_search(*known, file.name);
        return !shown.contains(file.name) && !wasSeen &&
               std::ranges::find(fixed, file.name) != fixed.end();
    });
}

// English whatever the language: several PCs write one history, and programs read it.
std::string RobotSnapshot::message(const Recorded& entry) const {
    const StateChanges& changes = entry.changes;
    std::string counts = counted(changes.changed.size(), "changed") +
                         counted(changes.added.size(), "new") +
                         counted(changes.gone.size(), "gone") +
                         counted(result_.unread.size() + entry.notStored.size(), "not read");
    std::vector<std::string> unread;
    for (const UnreadFile& file : result_.unread)
        unread.push_back(file.name);
    for (const NotStored& file : entry.notStored)
        unread.push_back(file.name);
    return onOneLine(robot_) + ": " + counts.substr(2) + "\n\n" + listed(changes.changed, "~") +
           listed(changes.added, "+") + listed(changes.gone, "-") + listed(unread, "?") + "\n" +
           trailers(unread.empty());
}

std::string RobotSnapshot::trailers(bool isWhole) const {
    const bool isSerial = with_.state.TransMode == TransferMode::Bsc;
    const std::string address =
        isSerial ? "COM" + std::to_string(with_.session.port) : with_.session.IPaddress;
    const std::pair<const char*, std::string> lines[] = {
        {"Robot", robot_},
        {"Address", address},
        {"Mode", isSerial ? "BSC" : "Hispeed Link"},
        {"Model", std::string(controllerModel(with_.state.Controler).name)},
        {"Files", std::to_string(result_.fetched)},
        {"Result", isWhole ? "complete" : "partial"}};
    std::string text;
    for (const auto& [key, value] : lines)
        text += std::string(key) + ": " + onOneLine(value) + "\n";
    return text;
}

} // namespace vantrel
