#include "console/Replacement.h"

#include "app/start/Engine.h"
#include "base/PathRules.h"
#include "files/AmbiguousNames.h"
#include "files/CopyCommand.h"
#include "files/TransferPermission.h"
#include "lang/MessageNumbers.h"
#include "link/JobFile.h"
#include "link/ShownText.h"
#include "platform/Files.h"

namespace vantrel {
namespace {

std::vector<SelectedItem> itemsOf(const std::vector<std::string>& names) {
    std::vector<SelectedItem> items;
    items.reserve(names.size());
    for (const std::string& name : names)
        items.push_back({name, false});
    return items;
}

} // namespace

Replacement::Replacement(Desk& desk, CommandKind kind)
    : desk_(desk), kind_(kind), toAll_(desk.request.overwrite == OverwritePolicy::Always) {
    controller_.assign(desk.engine.state.CtrlListing.Names);
}

bool Replacement::isThere(const std::string& name) const {
    const ApplicationState& state = desk_.engine.state;
    if (!isSend()) {
        const bool isRelated = kind_ == CommandKind::ReceiveCopy && state.JBR;
        return anythingExists(
            PathRules().join(state.PCPath, isRelated ? nameOfRelatedJob(name) : name));
    }
    if (!isJobFileName(name))
        return controller_.hasFile(name);
    const auto job = JobFile::read(PathRules().join(state.PCPath, name));
    const std::string inside = job ? job->name().text : std::string();
    return !controller_.jobEntry(name).empty() ||
           (!inside.empty() && !controller_.jobEntry(inside).empty());
}

std::vector<std::string> Replacement::withoutKept(const std::vector<std::string>& names,
                                                  ItemReport& items) {
    if (!isSend())
        return names;
    const std::string reason = desk_.engine.messages.getMessage(message::resultKept);
    std::vector<std::string> left;
    for (const std::string& name : names)
        if (isJobFileName(name) || !isThere(name) || mayReplace(name))
            left.push_back(name);
        else
            items.addAll({name}, ItemEnd::Skipped, reason);
    return left;
}

bool Replacement::mayReplace(const std::string& name) {
    if (toAll_)
        return true;
    if (desk_.request.dryRun || desk_.request.overwrite != OverwritePolicy::Ask)
        return desk_.request.overwrite == OverwritePolicy::Ask;
    const MessageTable& messages = desk_.engine.messages;
    const std::string question =
        shownText(name) + " " + messages.resourceMessage(message::resource::alreadyExists);
    const Answer answer =
        desk_.engine.talk.ask(messages.getMessage(message::transferTitle), question);
    toAll_ = answer == Answer::All;
    return toAll_ || answer == Answer::Yes;
}

void Replacement::rehearse(MachineDesk& machine, const std::vector<std::string>& names,
                           ItemReport& items) const {
    const bool isDeletion = kind_ == CommandKind::DeleteOnController;
    machine.results.begin(kind_, {}, desk_.engine.state.PCPath, names);
    std::vector<std::string> passed;
    if (isDeletion)
        for (const SelectedItem& item : withoutAmbiguousNames(machine.services, itemsOf(names)))
            passed.push_back(item.name);
    else
        passed =
            TransferPermission(machine.services, isSend() ? Direction::Send : Direction::Receive)
                .permitted(itemsOf(names));
    for (const std::string& name : passed) {
        const bool isKept =
            !isDeletion && desk_.request.overwrite == OverwritePolicy::Never && isThere(name);
        machine.results.note(name, isKept ? ItemEnd::Skipped : ItemEnd::Done,
                             isKept ? desk_.engine.messages.getMessage(message::resultKept)
                                    : std::string());
    }
    machine.results.end(false);
    items.addResult(*machine.results.last());
}

} // namespace vantrel
