#include "link/MachineUse.h"

#include "base/PathRules.h"
#include "base/Text.h"
#include "lang/MessageNumbers.h"
#include "lang/MessageTable.h"
#include "link/ShownText.h"
#include "platform/Environment.h"
#include "platform/Files.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

namespace vantrel {
namespace {

/// An entry's lines, in their order.
constexpr std::array<std::pair<std::string_view, std::string MachineUser::*>, 5> fields{
    {{"program=", &MachineUser::program},
     {"command=", &MachineUser::command},
     {"user=", &MachineUser::user},
     {"computer=", &MachineUser::computer},
     {"process=", &MachineUser::process}}};

bool isSafe(char character) {
    return (character >= 'a' && character <= 'z') || (character >= '0' && character <= '9') ||
           character == '.';
}

/// A text as a part of a file's name, on every disk: each text has its own, letter case aside, and
/// every other character is written as "%" and its byte.
std::string nameOf(std::string_view text) {
    constexpr std::string_view digits = "0123456789abcdef";
    std::string name;
    for (const char character : asciiLower(text)) {
        const auto byte = static_cast<unsigned char>(character);
        if (isSafe(character))
            name += character;
        else
            ((name += '%') += digits[byte / 16]) += digits[byte % 16];
    }
    return name;
}

/// Zeros before a number lead to no other machine.
std::string withoutLeadingZeros(std::string_view address) {
    std::string plain;
    for (std::string_view part : split(address, '.')) {
        const bool isNumber =
            !part.empty() && part.find_first_not_of("0123456789") == std::string_view::npos;
        if (isNumber)
            part.remove_prefix(std::min(part.find_first_not_of('0'), part.size() - 1));
        (plain += part) += '.';
    }
    plain.pop_back();
    return plain;
}

/// A folder that several PCs share holds the locks of all their ports.
std::string fileNameOf(const ReachedMachine& machine) {
    if (machine.mode == TransferMode::Bsc)
        return "serial-" + nameOf(computerName()) + "-" + nameOf(machine.name()) + ".lock";
    return "hispeed-" + nameOf(withoutLeadingZeros(trimmed(machine.address))) + ".lock";
}

/// By what its holder has written; he may be just about to do so.
MachineUser holderOf(const std::string& path) {
    MachineUser holder;
    const auto entry = readFile(path);
    for (const std::string_view line : lines(entry ? std::string_view(*entry) : ""))
        for (const auto& [key, field] : fields)
            if (line.starts_with(key))
                holder.*field = shownText(std::string(line.substr(key.size())));
    holder.since = fileDetails(path).changed.view();
    return holder;
}

void append(std::string& text, const std::string& further) {
    if (!further.empty())
        text += (text.empty() ? "" : ", ") + further;
}

} // namespace

std::string ReachedMachine::name() const {
    return mode == TransferMode::Bsc ? "COM" + std::to_string(port) : address;
}

std::string shownUser(const MessageTable& messages, const MachineUser& user) {
    const auto labelled = [&messages](std::int32_t label, const std::string& value) {
        return value.empty() ? value : messages.getMessageWithInsertion(label, value);
    };
    std::string text =
        user.program.empty() ? messages.getMessage(message::unknownUser) : user.program;
    if (!user.command.empty())
        text += " " + user.command;
    append(text, user.user + (user.computer.empty() ? "" : "@" + user.computer));
    append(text, labelled(message::userProcess, user.process));
    append(text, labelled(message::userSince, user.since));
    return text;
}

MachineUse::MachineUse(std::string programFolder, std::string program, std::string command,
                       bool isStrict)
    : folder_(std::move(programFolder)), program_(std::move(program)), command_(std::move(command)),
      isStrict_(isStrict) {
    folder_ = PathRules().join(folder_, "locks");
}

MachineUse::~MachineUse() {
    letGo();
}

bool MachineUse::isSameAddress(const std::string& one, const std::string& other) {
    return fileNameOf({TransferMode::HispeedLink, 0, one}) ==
           fileNameOf({TransferMode::HispeedLink, 0, other});
}

void MachineUse::end() {
    if (--commands_ == 0)
        letGo();
}

// A lock that stays behind is nobody's.
void MachineUse::letGo() {
    for (auto& [name, file] : held_)
        static_cast<void>(file.remove());
    held_.clear();
}

MachineUse::Taking MachineUse::take(const ReachedMachine& machine) {
    const std::string name = fileNameOf(machine);
    if (held_.contains(name))
        return {};
    // It stays when its last lock goes: a folder that comes and goes would be a change of the
    // program's folder for each command.
    if (const Outcome made = isFolder(folder_) ? Outcome(Done{}) : createFolder(folder_);
        !made && !isFolder(folder_))
        return {.answer = Answer::NotHeld, .file = folder_, .reason = made.reason()};
    const std::string path = PathRules().join(folder_, name);
    auto lock = HeldFile::lock(path);
    if (!lock)
        return {.answer = Answer::NotHeld, .file = path, .reason = lock.reason()};
    if (!*lock)
        return {.answer = Answer::InUse, .holder = holderOf(path)};
    // On a full disk the others are kept off as well, and only not told by whom.
    static_cast<void>((*lock)->write(ownEntry()));
    held_.emplace(name, std::move(**lock));
    return {};
}

std::string MachineUse::ownEntry() const {
    const MachineUser own{.program = program_,
                          .command = command_,
                          .user = userName(),
                          .computer = computerName(),
                          .process = std::to_string(processNumber()),
                          .since = {}};
    std::string entry;
    for (const auto& [key, field] : fields)
        (entry += key) += onOneLine(own.*field) + "\n";
    return entry;
}

} // namespace vantrel
