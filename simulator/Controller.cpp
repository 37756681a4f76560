#include "simulator/Controller.h"

#include "base/Text.h"
#include "simulator/ControllerFileName.h"
#include "simulator/ResultCodes.h"
#include "simulator/VariableStore.h"

#include <algorithm>

namespace vantrel::simulator {

namespace {

using Kind = ControllerFileName::Kind;

ControllerFileName jobFile(const std::string& job) {
    return {job, "JBI", Kind::Job};
}

} // namespace

CodeOr<std::vector<std::string>> Controller::directory() const {
    auto all = folder_.list();
    if (!all)
        return all;
    std::vector<std::string> told;
    std::copy_if(all->begin(), all->end(), std::back_inserter(told),
                 [&](const auto& name) { return !isHidden(name); });
    return told;
}

std::int16_t Controller::receive(std::string_view fileName, std::string_view content,
                                 TransferLimit limit) const {
    const auto name = controllerFileName(fileName);
    if (!name)
        return name.code();
    if (name->kind != Kind::Data)
        return receiveJob(*name, content, limit);
    return store(*name, limit.of(content));
}

std::int16_t Controller::receiveJob(const ControllerFileName& name, std::string_view content,
                                    TransferLimit limit) const {
    const auto job = jobNameIn(content);
    if (!job)
        return job.code();
    const auto kept = jobFile(*job);
    if (folder_.has(kept)) {
        if (name.kind == Kind::Job)
            return code::jobExists;
        if (const auto refused = mayChange(*job); refused != code::done)
            return refused;
    }
    return store(kept, limit.of(content));
}

std::int16_t Controller::store(const ControllerFileName& name, std::string_view content) const {
    if (settings_.memory != ControllerSettings::unlimited) {
        const auto used = folder_.usedBytes();
        if (!used)
            return used.code();
        if (*used > settings_.memory || content.size() > settings_.memory - *used)
            return code::memoryFull;
    }
    return folder_.store(name, content);
}

CodeOr<std::string> Controller::deliver(std::string_view fileName) const {
    const bool isBareJob = fileName.find('.') == std::string_view::npos;
    const auto name = controllerFileName(std::string(fileName) + (isBareJob ? ".JBI" : ""));
    if (!name)
        return name.code();
    return folder_.read(*name);
}

CodeOr<std::string> Controller::findJob(std::string_view job) const {
    const bool hasExtension = asciiUpper(job).ends_with(".JBI");
    const auto name = controllerFileName(std::string(job) + (hasExtension ? "" : ".JBI"));
    if (!name)
        return name.code();
    if (!folder_.has(*name))
        return code::notFound;
    return name->base;
}

std::int16_t Controller::deleteJob(const std::string& job) const {
    const auto refused = mayChange(job);
    return refused == code::done ? folder_.remove(jobFile(job)) : refused;
}

CodeOr<VariableValues> Controller::variable(std::int16_t kind, std::int16_t number) const {
    if (const auto refused = checkVariable(kind, number); refused != code::done)
        return refused;
    VariableStore store(folder_.variablesFile());
    if (!store.load())
        return folder_.fault();
    return store.get(kind, number);
}

std::int16_t Controller::setVariable(std::int16_t kind, std::int16_t number,
                                     const VariableValues& values) const {
    if (const auto refused = checkVariable(kind, number); refused != code::done)
        return refused;
    const auto& rules = variableKinds()[static_cast<std::size_t>(kind)];
    if (const auto refused = checkValues(rules, values); refused != code::done)
        return refused;
    VariableStore store(folder_.variablesFile());
    if (!store.load())
        return folder_.fault();
    store.put(kind, number, values);
    return store.save() ? code::done : folder_.fault();
}

std::int16_t Controller::mayChange(const std::string& job) const {
    if (settings_.protectedJobs.contains(job))
        return code::jobProtected;
    return settings_.runningJobs.contains(job) ? code::jobRunning : code::done;
}

bool Controller::isHidden(const std::string& fileName) const {
    return settings_.hidden.contains(fileName);
}

} // namespace vantrel::simulator
