#include "simulator/Simulator.h"

#include "base/PathRules.h"
#include "base/Text.h"
#include "platform/Files.h"
#include "platform/TextEncoding.h"
#include "simulator/ResultCodes.h"

#include <algorithm>
#include <cstdlib>

namespace vantrel::simulator {

namespace {

constexpr std::int16_t serialType = 1;
constexpr std::int16_t ethernetType = 16;

/// The speeds and formats that a serial line can have at all.
bool isPossible(std::int16_t port, std::int32_t baudrate, std::int16_t parity, std::int16_t dataLen,
                std::int16_t stopBit) {
    return port >= 1 && baudrate > 0 && parity >= 0 && parity <= 2 && dataLen >= 7 &&
           dataLen <= 8 && stopBit >= 0 && stopBit <= 2;
}

/// Writes the next entry of the directory into the caller's buffer. An entry that fills the buffer
/// has no NUL behind it, which is how the interface is.
std::int16_t writeEntry(Link& link, char* buffer, std::int16_t length) {
    if (buffer == nullptr || length <= 0)
        return code::refused;
    if (link.nextEntry >= link.directory->size())
        return code::noMoreEntries;
    const auto room = static_cast<std::size_t>(length);
    const auto name = toCodePage((*link.directory)[link.nextEntry]);
    if (!name || name->size() > room)
        return code::refused;
    std::copy(name->begin(), name->end(), buffer);
    if (name->size() < room)
        buffer[name->size()] = '\0';
    ++link.nextEntry;
    return code::done;
}

constexpr int crashed = 99; ///< what the process's end says

TransferLimit limitOf(const Disturbance& disturbance) {
    const bool isCut = disturbance.kind == Disturbance::Kind::Cut;
    return isCut ? TransferLimit{disturbance.cutAfter} : TransferLimit{};
}

std::int16_t send(const Link& link, const std::string& file, TransferLimit limit) {
    const auto content = link.workingFolder.read(file);
    return content ? link.controller->receive(file, *content, limit) : content.code();
}

std::int16_t fetch(const Link& link, const std::string& file, TransferLimit limit) {
    const auto content = link.controller->deliver(file);
    return content ? link.workingFolder.write(file, limit.of(*content)) : content.code();
}

/// A cut transfer ends with the script's code once its first bytes have arrived.
std::int16_t ended(std::int16_t result, const Disturbance& disturbance) {
    const bool isCut = disturbance.kind == Disturbance::Kind::Cut;
    return isCut && result == code::done ? disturbance.code : result;
}

} // namespace

Simulator::Simulator(std::string libraryFolder, Pause pause)
    : libraryFolder_(std::move(libraryFolder)), pause_(std::move(pause)) {}

void Simulator::readSettings() {
    const auto path = PathRules().join(libraryFolder_, "simulator.ini");
    const auto bytes = isRegularFile(path) ? readFile(path) : Result<std::string>(std::string());
    auto content = bytes ? *bytes : std::string();
    if (content == settingsBytes_)
        return;
    settings_ = parseSettings(content, libraryFolder_);
    script_ = {};
    for (const auto& row : settings_.scriptRows)
        script_.addRow(row);
    settingsBytes_ = std::move(content);
}

template <typename Action>
std::int16_t Simulator::scripted(Function function, std::int16_t success, Action action,
                                 const std::string& line) {
    const auto disturbance = script_.next(function, line);
    if (disturbance.delay.count() > 0)
        pause_(disturbance.delay);
    if (disturbance.kind == Disturbance::Kind::Crash)
        std::_Exit(crashed);
    if (disturbance.kind == Disturbance::Kind::Fail)
        return disturbance.code;
    if (disturbance.kind == Disturbance::Kind::Nothing)
        return success;
    return action(disturbance);
}

template <typename Action>
std::int16_t Simulator::onLink(Function function, std::int16_t success, std::int16_t handle,
                               Needs needs, Action action) {
    const auto act = [&](const Disturbance& disturbance) -> std::int16_t {
        auto* link = links_.find(handle);
        if (link == nullptr)
            return code::handleInvalid;
        if (link->controller.has_value() != (needs == Needs::Connected))
            return link->controller ? code::refused : code::notConnected;
        return action(*link, disturbance);
    };
    return scripted(function, success, act, lineOf(handle));
}

std::string Simulator::lineOf(std::int16_t handle) {
    const auto* link = links_.find(handle);
    if (link == nullptr || !link->line)
        return {};
    if (const auto* serial = std::get_if<SerialLine>(&*link->line))
        return "COM" + std::to_string(serial->port);
    return std::get<EthernetLine>(*link->line).address;
}

std::int16_t Simulator::BscOpen(const char* path, std::int16_t type) {
    readSettings();
    bool scriptDecided = true;
    const auto result = scripted(Function::BscOpen, 0, [&](const Disturbance&) {
        scriptDecided = false;
        return openLink(path, type);
    });
    // A script names the failure as everywhere else; here it has to be negative.
    return scriptDecided && result > 0 ? static_cast<std::int16_t>(-result) : result;
}

std::int16_t Simulator::openLink(const char* path, std::int16_t type) {
    if (path == nullptr || *path == '\0' || (type != serialType && type != ethernetType))
        return -code::refused;
    // The folder need not exist: a directory can be read without one.
    Link link{WorkingFolder(fromCodePage(path)), type, {}, {}, {}, 0, {}};
    const auto handle = links_.open(std::move(link));
    return handle ? *handle : std::int16_t{-code::refused};
}

std::int16_t Simulator::BscSetCom(std::int16_t handle, std::int16_t port, std::int32_t baudrate,
                                  std::int16_t parity, std::int16_t dataLen, std::int16_t stopBit) {
    return onLink(Function::BscSetCom, code::accepted, handle, Needs::Disconnected,
                  [&](Link& link, const Disturbance&) {
                      if (link.type != serialType)
                          return code::refused;
                      if (!isPossible(port, baudrate, parity, dataLen, stopBit))
                          return code::portUnavailable;
                      link.line = SerialLine{port};
                      return code::accepted;
                  });
}

std::int16_t Simulator::BscSetEther(std::int16_t handle, const char* ip, std::int16_t mode) {
    return onLink(Function::BscSetEther, code::accepted, handle, Needs::Disconnected,
                  [&](Link& link, const Disturbance&) {
                      if (link.type != ethernetType)
                          return code::refused;
                      if (ip == nullptr || mode != 0)
                          return code::refused;
                      link.line = EthernetLine{std::string(trimmed(ip))};
                      return code::accepted;
                  });
}

std::int16_t Simulator::connect(Link& link) const {
    if (!link.line)
        return code::refused;
    const auto* settings = settings_.find(*link.line);
    if (settings == nullptr)
        return link.type == serialType ? code::portUnavailable : code::addressUnreachable;
    link.controller.emplace(*settings);
    if (link.controller->answers())
        return code::accepted;
    link.disconnect();
    return code::noAnswer;
}

std::int16_t Simulator::BscConnect(std::int16_t handle) {
    return onLink(Function::BscConnect, code::accepted, handle, Needs::Disconnected,
                  [&](Link& link, const Disturbance&) { return connect(link); });
}

std::int16_t Simulator::BscDisConnect(std::int16_t handle) {
    return onLink(Function::BscDisConnect, code::accepted, handle, Needs::Connected,
                  [](Link& link, const Disturbance&) {
                      link.disconnect();
                      return code::accepted;
                  });
}

std::int16_t Simulator::BscClose(std::int16_t handle) {
    return onLink(Function::BscClose, code::done, handle, Needs::Disconnected,
                  [&](Link&, const Disturbance&) {
                      links_.close(handle);
                      return code::done;
                  });
}

std::int16_t Simulator::BscFindFirst(std::int16_t handle, char* buffer, std::int16_t length) {
    return onLink(Function::BscFindFirst, code::done, handle, Needs::Connected,
                  [&](Link& link, const Disturbance&) {
                      const auto directory = link.controller->directory();
                      if (!directory)
                          return directory.code();
                      link.directory = *directory;
                      link.nextEntry = 0;
                      return writeEntry(link, buffer, length);
                  });
}

std::int16_t Simulator::BscFindNext(std::int16_t handle, char* buffer, std::int16_t length) {
    return onLink(Function::BscFindNext, code::done, handle, Needs::Connected,
                  [&](Link& link, const Disturbance&) {
                      return link.directory ? writeEntry(link, buffer, length) : code::refused;
                  });
}

std::int16_t Simulator::BscDownLoad(std::int16_t handle, const char* file) {
    return onLink(Function::BscDownLoad, code::done, handle, Needs::Connected,
                  [&](Link& link, const Disturbance& disturbance) {
                      if (file == nullptr)
                          return code::refused;
                      const auto limit = limitOf(disturbance);
                      return ended(send(link, fromCodePage(file), limit), disturbance);
                  });
}

std::int16_t Simulator::BscUpLoad(std::int16_t handle, const char* file) {
    return onLink(Function::BscUpLoad, code::done, handle, Needs::Connected,
                  [&](Link& link, const Disturbance& disturbance) {
                      if (file == nullptr)
                          return code::refused;
                      const auto limit = limitOf(disturbance);
                      return ended(fetch(link, fromCodePage(file), limit), disturbance);
                  });
}

std::int16_t Simulator::BscSelectJob(std::int16_t handle, const char* job) {
    return onLink(Function::BscSelectJob, code::done, handle, Needs::Connected,
                  [&](Link& link, const Disturbance&) {
                      link.selectedJob.reset();
                      if (job == nullptr)
                          return code::refused;
                      const auto found = link.controller->findJob(fromCodePage(job));
                      if (!found)
                          return found.code();
                      link.selectedJob = *found;
                      return code::done;
                  });
}

std::int16_t Simulator::BscDeleteJob(std::int16_t handle) {
    return onLink(Function::BscDeleteJob, code::done, handle, Needs::Connected,
                  [](Link& link, const Disturbance&) {
                      if (!link.selectedJob)
                          return code::noJobSelected;
                      const auto result = link.controller->deleteJob(*link.selectedJob);
                      if (result == code::done)
                          link.selectedJob.reset();
                      return result;
                  });
}

std::int16_t Simulator::BscGetVarData(std::int16_t handle, std::int16_t kind, std::int16_t number,
                                      double* values) {
    return onLink(Function::BscGetVarData, code::done, handle, Needs::Connected,
                  [&](Link& link, const Disturbance&) {
                      if (values == nullptr)
                          return code::refused;
                      const auto found = link.controller->variable(kind, number);
                      if (!found)
                          return found.code();
                      std::copy(found->begin(), found->end(), values);
                      return code::done;
                  });
}

std::int16_t Simulator::BscPutVarData(std::int16_t handle, std::int16_t kind, std::int16_t number,
                                      const double* values) {
    return onLink(Function::BscPutVarData, code::done, handle, Needs::Connected,
                  [&](Link& link, const Disturbance&) {
                      if (values == nullptr)
                          return code::refused;
                      VariableValues given{};
                      std::copy_n(values, valueSlots, given.begin());
                      return link.controller->setVariable(kind, number, given);
                  });
}

} // namespace vantrel::simulator
