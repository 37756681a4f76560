#include "support/FakeZurolink.h"

#include "base/PathRules.h"
#include "base/Text.h"
#include "base/TextCase.h"
#include "platform/TextEncoding.h"

#include <algorithm>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>
#include <variant>

#include <gtest/gtest.h>

namespace vantrel::tests {
namespace {

constexpr std::int16_t accepted = 1;
constexpr std::int16_t done = 0;
constexpr std::int16_t endOfDirectory = -1;
constexpr std::size_t valueCount = 10;
constexpr int mostEmptyEntries = 8;
constexpr std::int16_t wrongUse = 1110;
constexpr std::int16_t noSuchLine = 2040;

std::filesystem::path pcFile(const std::string& folder, const std::string& name) {
    const auto native = [](const std::string& utf8) {
        return std::filesystem::path(std::u8string(utf8.begin(), utf8.end()));
    };
    return native(folder) / native(name);
}

bool isJobOf(const std::string& fileName, const std::string& extension) {
    return asciiUpper(fileName).ends_with(extension);
}

bool isJob(const std::string& fileName) {
    return isJobOf(fileName, ".JBI") || isJobOf(fileName, ".JBR");
}

/// The first name that a "//NAME" line of the job gives, or an empty text.
std::string nameLine(const std::string& bytes) {
    std::istringstream text(decodeText(bytes).text);
    std::string name;
    for (std::string line; name.empty() && std::getline(text, line);)
        if (line.starts_with("//NAME "))
            name = trimmed(line.substr(7));
    return name;
}

/// The file's name on the controller, where a job has the name of its "//NAME" line; or why the
/// controller refuses it.
std::variant<std::string, std::int16_t> controllerName(const std::string& fileName,
                                                       const std::string& bytes) {
    if (!isJob(fileName))
        return fileName;
    if (bytes.empty())
        return FakeZurolink::formatError;
    const std::string inside = nameLine(bytes);
    if (inside.empty())
        return FakeZurolink::headerMissing;
    const std::string stored = normalisedJobName(inside) + ".JBI";
    if (!PathRules::isPlainName(stored) || !toCodePage(stored))
        return FakeZurolink::nameInvalid;
    return stored;
}

/// A job is asked for as "NAME.JBI", "NAME.JBR" and "NAME".
std::string storedName(const std::string& asked) {
    if (isJob(asked))
        return asked.substr(0, asked.rfind('.')) + ".JBI";
    return asked.find('.') == std::string::npos ? asked + ".JBI" : asked;
}

std::string joined(std::initializer_list<std::string> arguments) {
    std::string text;
    for (const std::string& argument : arguments)
        text += (text.empty() ? "" : ", ") + argument;
    return text;
}

std::string text(std::int32_t number) {
    return std::to_string(number);
}

} // namespace

void FakeController::put(const std::string& name, const std::string& bytes) {
    const auto [place, isNew] = places_.try_emplace(name, lastPlace_ + 1);
    if (isNew)
        ++lastPlace_;
    files_[place->second] = {name, bytes};
}

std::string FakeController::bytes(const std::string& name) const {
    const auto place = places_.find(name);
    return place == places_.end() ? std::string() : files_.at(place->second).bytes;
}

bool FakeController::erase(const std::string& name) {
    const auto place = places_.find(name);
    if (place == places_.end())
        return false;
    files_.erase(place->second);
    places_.erase(place);
    return true;
}

std::vector<std::string> FakeController::names() const {
    std::vector<std::string> all;
    for (const auto& [place, file] : files_)
        all.push_back(file.name);
    return all;
}

bool FakeController::operator==(const FakeController& other) const {
    return files_ == other.files_ && variables == other.variables;
}

const std::string* FakeController::nameAfter(std::int64_t& place) const {
    const auto next = files_.upper_bound(place);
    if (next == files_.end())
        return nullptr;
    place = next->first;
    return &next->second.name;
}

void FakeZurolink::disturb(const Disturbance& disturbance) {
    disturbance_ = disturbance;
    callsBefore_ = disturbance.function.empty() ? total_ : callCount(disturbance.function);
    strict_ = false;
}

void FakeZurolink::forgetCalls() {
    calls_.clear();
    counts_.clear();
    total_ = 0;
    callsBefore_ = 0;
}

std::vector<std::string> FakeZurolink::trace() const {
    std::vector<std::string> texts;
    for (const Call& call : calls_)
        texts.push_back(call.text);
    return texts;
}

int FakeZurolink::callCount(const std::string& function) const {
    const auto found = counts_.find(function);
    return found == counts_.end() ? 0 : found->second;
}

std::int16_t FakeZurolink::misuse(const std::string& what) const {
    if (strict_)
        ADD_FAILURE() << "misuse of the library: " << what;
    return wrongUse;
}

std::optional<std::int16_t> FakeZurolink::disturbed(const char* function, std::int16_t success,
                                                    const std::function<std::int16_t()>& work) {
    if (!disturbance_ || (!disturbance_->function.empty() && disturbance_->function != function))
        return {};
    const int count =
        (disturbance_->function.empty() ? total_ : callCount(function)) - callsBefore_;
    const bool hit =
        count == disturbance_->call || (disturbance_->fromThereOn && count > disturbance_->call);
    if (!hit)
        return {};
    if (disturbance_->cutTo) {
        cutTo_ = *disturbance_->cutTo;
        work();
        cutTo_ = std::string::npos;
    }
    if (!disturbance_->doNothing)
        return disturbance_->code;
    // A directory that is told without being read has to end some time.
    const bool ends = count >= disturbance_->call + mostEmptyEntries;
    return ends && std::string_view(function).starts_with("BscFind") ? endOfDirectory : success;
}

std::int16_t FakeZurolink::perform(const char* function, const std::string& arguments,
                                   std::int16_t success,
                                   const std::function<std::int16_t()>& work) {
    ++total_;
    ++counts_[function];
    if (onCall)
        onCall(function);
    const auto instead = disturbed(function, success, work);
    const std::int16_t result = instead ? *instead : work();
    if (records_)
        calls_.push_back(
            {function, function + ("(" + arguments + ")"), result, instead.has_value()});
    return result;
}

std::int16_t FakeZurolink::onLink(const char* function, std::int16_t handle,
                                  const std::string& arguments, std::int16_t success,
                                  bool connected, const std::function<std::int16_t(Link&)>& work) {
    const std::string all = arguments.empty() ? text(handle) : joined({text(handle), arguments});
    return perform(function, all, success, [&]() -> std::int16_t {
        const auto link = links_.find(handle);
        if (link == links_.end())
            return misuse(std::string(function) + " on an unknown handle");
        if (link->second.connected != connected)
            return misuse(std::string(function) + " out of order");
        return work(link->second);
    });
}

std::int16_t FakeZurolink::BscOpen(const char* path, std::int16_t type) {
    return perform("BscOpen", joined({fromCodePage(path), text(type)}), 0, [&]() -> std::int16_t {
        if (!links_.empty())
            misuse("two links at a time");
        links_[++lastHandle_] = {fromCodePage(path), type, {}, false, 0, {}};
        return lastHandle_;
    });
}

std::int16_t FakeZurolink::BscSetCom(std::int16_t handle, std::int16_t port, std::int32_t baudrate,
                                     std::int16_t parity, std::int16_t dataLen,
                                     std::int16_t stopBit) {
    const auto arguments =
        joined({text(port), text(baudrate), text(parity), text(dataLen), text(stopBit)});
    return onLink("BscSetCom", handle, arguments, accepted, false, [&](Link& link) {
        link.line = "COM" + text(port);
        return link.type == 1 ? accepted : misuse("BscSetCom on an Ethernet link");
    });
}

std::int16_t FakeZurolink::BscSetEther(std::int16_t handle, const char* ip, std::int16_t mode,
                                       void* window) {
    const auto number = static_cast<std::int32_t>(reinterpret_cast<std::uintptr_t>(window));
    const auto arguments = joined({ip, text(mode), text(number)});
    return onLink("BscSetEther", handle, arguments, accepted, false, [&](Link& link) {
        link.line = ip;
        return link.type == 16 ? accepted : misuse("BscSetEther on a serial link");
    });
}

std::int16_t FakeZurolink::BscConnect(std::int16_t handle) {
    return onLink("BscConnect", handle, {}, accepted, false, [&](Link& link) {
        link.connected = controllers_.contains(link.line);
        return link.connected ? accepted : noSuchLine;
    });
}

std::int16_t FakeZurolink::BscDisConnect(std::int16_t handle) {
    return onLink("BscDisConnect", handle, {}, accepted, true, [](Link& link) {
        link.connected = false;
        return accepted;
    });
}

std::int16_t FakeZurolink::BscClose(std::int16_t handle) {
    return onLink("BscClose", handle, {}, done, false, [&](Link&) {
        links_.erase(handle);
        return done;
    });
}

std::int16_t FakeZurolink::writeEntry(Link& link, char* buffer, std::int16_t length) {
    const FakeController& controller = controllers_[link.line];
    const std::string* name = nullptr;
    if (controller.endlessNames == 0)
        name = controller.nameAfter(link.place);
    else
        name = &(endlessName_ = "E" + std::to_string(link.place++ % controller.endlessNames));
    if (!name)
        return endOfDirectory;
    const std::string bytes =
        controller.before + toCodePage(*name).value_or(*name) + controller.behind;
    const auto room = static_cast<std::size_t>(length);
    std::memcpy(buffer, bytes.data(), std::min(bytes.size(), room));
    if (bytes.size() < room && controller.terminatesNames)
        buffer[bytes.size()] = '\0';
    std::fill_n(buffer + room, overrun * sizeof(double), 'R');
    return done;
}

std::int16_t FakeZurolink::BscFindFirst(std::int16_t handle, char* buffer, std::int16_t length) {
    return onLink("BscFindFirst", handle, text(length), done, true, [&](Link& link) {
        link.place = 0;
        return writeEntry(link, buffer, length);
    });
}

std::int16_t FakeZurolink::BscFindNext(std::int16_t handle, char* buffer, std::int16_t length) {
    const auto open = links_.find(handle);
    if (!records_ && open != links_.end() && open->second.connected)
        return writeEntry(open->second, buffer, length);
    return onLink("BscFindNext", handle, text(length), done, true,
                  [&](Link& link) { return writeEntry(link, buffer, length); });
}

std::int16_t FakeZurolink::BscDownLoad(std::int16_t handle, const char* file) {
    const std::string name = fromCodePage(file);
    return onLink("BscDownLoad", handle, name, done, true, [&](Link& link) -> std::int16_t {
        std::ifstream stream(pcFile(link.folder, name), std::ios::binary);
        if (!stream)
            return pcFileNotFound;
        const std::string bytes{std::istreambuf_iterator<char>(stream), {}};
        FakeController& controller = controllers_[link.line];
        const auto stored = controllerName(name, bytes);
        if (const auto* refused = std::get_if<std::int16_t>(&stored))
            return *refused;
        if (isJobOf(name, ".JBI") && controller.has(std::get<std::string>(stored)))
            return jobExists;
        controller.put(std::get<std::string>(stored), transferred(bytes));
        return done;
    });
}

std::int16_t FakeZurolink::BscUpLoad(std::int16_t handle, const char* file) {
    const std::string name = fromCodePage(file);
    return onLink("BscUpLoad", handle, name, done, true, [&](Link& link) -> std::int16_t {
        const FakeController& controller = controllers_[link.line];
        if (!controller.has(storedName(name)))
            return notFound;
        std::ofstream stream(pcFile(link.folder, name), std::ios::binary);
        stream << transferred(controller.bytes(storedName(name))) << std::flush;
        return stream ? done : pcFolderNotAccessible;
    });
}

std::int16_t FakeZurolink::BscSelectJob(std::int16_t handle, const char* job) {
    const std::string name = fromCodePage(job);
    return onLink("BscSelectJob", handle, name, done, true, [&](Link& link) -> std::int16_t {
        if (!controllers_[link.line].has(storedName(name)))
            return notFound;
        link.selected = storedName(name);
        return done;
    });
}

std::int16_t FakeZurolink::BscDeleteJob(std::int16_t handle) {
    return onLink("BscDeleteJob", handle, {}, done, true, [&](Link& link) -> std::int16_t {
        return controllers_[link.line].erase(link.selected) ? done : notFound;
    });
}

std::int16_t FakeZurolink::BscGetVarData(std::int16_t handle, std::int16_t kind,
                                         std::int16_t number, double* values) {
    const auto arguments = joined({text(kind), text(number)});
    return onLink("BscGetVarData", handle, arguments, done, true, [&](Link& link) {
        const auto& variables = controllers_[link.line].variables;
        const auto found = variables.find({kind, number});
        // What a kind does not have stays as it is in the caller's buffer.
        if (found != variables.end())
            std::copy_n(found->second.begin(), kind < 4 ? 1 : 9, values);
        std::fill_n(values + valueCount, overrun, 8e8);
        return done;
    });
}

std::int16_t FakeZurolink::BscPutVarData(std::int16_t handle, std::int16_t kind,
                                         std::int16_t number, const double* values) {
    const auto arguments = joined({text(kind), text(number)});
    return onLink("BscPutVarData", handle, arguments, done, true, [&](Link& link) -> std::int16_t {
        std::copy_n(values, valueCount, controllers_[link.line].variables[{kind, number}].begin());
        const double* const behind = values + valueCount;
        return std::any_of(behind, behind + overrun, [](double value) { return value != 0; })
                   ? formatError
                   : done;
    });
}

} // namespace vantrel::tests
