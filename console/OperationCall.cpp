#include "console/OperationCall.h"

#include "app/start/Engine.h"
#include "base/PathRules.h"
#include "base/Text.h"
#include "console/ConsoleMessages.h"
#include "console/ItemReport.h"
#include "console/Replacement.h"
#include "files/FolderOwner.h"
#include "lang/MessageNumbers.h"
#include "link/SessionErrorRecord.h"
#include "link/SessionOperations.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <utility>

namespace vantrel {
namespace {

/// Operations whose first argument is a file that may replace one.
struct Replacing {
    const char* name;
    CommandKind kind; ///< of the command that does the same
};

constexpr Replacing replacing[] = {{"JobDownLoad", CommandKind::SendCopy},
                                   {"JobUpLoad", CommandKind::SaveJobs},
                                   {"WriteVarListFile", CommandKind::SaveVariables}};

const Replacing* replacingFor(const std::string& name) {
    const auto found = std::ranges::find(replacing, name, &Replacing::name);
    return found == std::end(replacing) ? nullptr : found;
}

std::string shownForm(const SessionForm& form) {
    std::string shown = form.name;
    for (const auto& [kind, isOptional, isGivenBack] : form.parameters) {
        const char* const word = kind == SessionForm::Kind::Text     ? "TEXT"
                                 : kind == SessionForm::Kind::Number ? "NUMBER"
                                                                     : "FLAG";
        shown += isOptional ? " [" + std::string(word) + "]" : " " + std::string(word);
    }
    return shown;
}

std::vector<SessionValue> valuesOf(const std::vector<std::string>& arguments) {
    return {arguments.begin(), arguments.end()};
}

SessionForm formOf(const std::string& name) {
    for (SessionForm& form : SessionOperations::forms())
        if (form.name == name)
            return std::move(form);
    return {};
}

/// By a flag of the operation itself.
bool overwritesUnasked(const std::vector<std::string>& words) {
    return words.size() > 2 && replacingFor(words.front()) && flagFrom(words[2]).value_or(false);
}

} // namespace

std::string callRefusal(const std::vector<std::string>& words, OverwritePolicy overwrite) {
    const std::string& name = words.front();
    const Outcome checked =
        SessionOperations::check(name, valuesOf({words.begin() + 1, words.end()}));
    if (checked && overwritesUnasked(words) && overwrite != OverwritePolicy::Always)
        return name + ": the flag that overwrites needs --overwrite always";
    if (checked)
        return {};
    std::string text = onOneLine(name) + ": " + onOneLine(checked.reason()) + "\nOperations:";
    for (const SessionForm& form : SessionOperations::forms())
        text += "\n  " + shownForm(form);
    return text;
}

OperationCall::OperationCall(Desk& desk, const Target& target)
    : desk_(desk), machine_(desk, target), robot_(machine_.name()),
      name_(desk.request.names.front()),
      arguments_(desk.request.names.begin() + 1, desk.request.names.end()) {}

void OperationCall::run() {
    End end;
    if (desk_.world.isInterrupted())
        end.end = ItemEnd::NotTried;
    else if (mayBegin(end) && !desk_.request.dryRun)
        call(end);
    report(end);
}

bool OperationCall::mayBegin(End& end) {
    const Replacing* const row = replacingFor(name_);
    if (!row)
        return true;
    if (!machine_.readFolder(!desk_.request.dryRun)) {
        end = {.end = ItemEnd::Failed, .reason = text(message::folderNotOpened)};
        return false;
    }
    if (sourceOf(row->kind) == ActiveSide::PC) {
        if (!mayLeaveFolder(machine_.services)) {
            end = {.end = ItemEnd::NotTried, .reason = text(message::consoleOtherFolder)};
            return false;
        }
        if (!machine_.readController()) {
            explainFailure(end);
            return false;
        }
    }
    if (mayReplace(row->kind))
        return true;
    end = {.end = ItemEnd::Skipped, .reason = keptReason()};
    return false;
}

/// The session asks by itself about jobs, and about all that it fetches.
bool OperationCall::mayReplace(CommandKind kind) const {
    const std::string& file = arguments_.front();
    const bool asksItself =
        kind == CommandKind::SaveJobs || (kind == CommandKind::SendCopy && isJobFileName(file));
    if ((asksItself && !desk_.request.dryRun) || !PathRules::isPlainName(file))
        return true;
    Replacement replacement(desk_, kind);
    return !replacement.isThere(file) || replacement.mayReplace(file);
}

void OperationCall::call(End& end) {
    std::vector<SessionValue> arguments = valuesOf(arguments_);
    const SessionForm form = formOf(name_);
    const auto result = SessionOperations(desk_.engine.session).call(name_, arguments);
    if (!result) { // what was checked before is taken
        end = {.end = ItemEnd::Failed, .reason = result.reason()};
        return;
    }
    if (form.saysSuccess && !flagFrom(*result).value_or(false))
        return explainFailure(end);
    if (!form.saysSuccess && *result != SessionValue())
        end.values.push_back(textFrom(*result));
    for (std::size_t at = 0; at < arguments.size(); ++at) {
        if (at < form.parameters.size() && !form.parameters[at].isGivenBack)
            continue;
        const std::string given = textFrom(arguments[at]);
        for (const std::string_view line : lines(given))
            end.values.emplace_back(line);
    }
}

void OperationCall::explainFailure(End& end) const {
    const Snappy& session = desk_.engine.session;
    if (session.ErrorCode() == session_code::overwriteRefused && session.ErrorFunction().empty())
        end = {.end = ItemEnd::Skipped, .reason = keptReason()};
    else if (session.wasCancelled())
        end = {.end = ItemEnd::NotTried};
    else
        end = {.end = ItemEnd::Failed,
               .reason = session.ErrorCode() == 0 && !session.operatorIsTold() ? std::string()
                                                                               : machine_.reason(),
               .cause = causeOf(session)};
}

std::string OperationCall::keptReason() const {
    return text(desk_.request.overwrite == OverwritePolicy::Never ? message::consoleKept
                                                                  : message::resultKept);
}

void OperationCall::report(const End& end) const {
    desk_.tally.add(end.end, end.cause);
    const bool isPlan = desk_.request.dryRun && end.end == ItemEnd::Done;
    const std::string word = end.end == ItemEnd::Done
                                 ? text(isPlan ? message::consoleWouldBeDone : message::consoleDone)
                                 : endText(desk_.engine.messages, CommandResult(), end.end);
    std::vector<std::string> cells{robot_, name_, word};
    const auto& shown = isPlan ? arguments_ : end.values;
    cells.insert(cells.end(), shown.begin(), shown.end());
    if (!end.reason.empty())
        cells.push_back(end.reason);
    desk_.report.line(cells, "call",
                      {{"robot", robot_},
                       {"operation", name_},
                       {"arguments", arguments_},
                       {"end", endKey(end.end)},
                       {"values", end.values},
                       {"reason", end.reason},
                       {"dry_run", desk_.request.dryRun}});
}

std::string OperationCall::text(std::int32_t number) const {
    return desk_.engine.messages.getMessage(number);
}

} // namespace vantrel
