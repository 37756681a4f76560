#include "simulator/SimulatorSettings.h"

#include "base/PathRules.h"
#include "base/Text.h"
#include "base/TextCase.h"
#include "platform/TextEncoding.h"

#include <algorithm>
#include <charconv>

namespace vantrel::simulator {
namespace {

void readKey(std::string_view line, IniSection& section) {
    const auto equals = line.find('=');
    if (equals == std::string_view::npos)
        return;
    section.keys.emplace_back(trimmed(line.substr(0, equals)), trimmed(line.substr(equals + 1)));
}

/// The whole text as a number of the type, or nothing.
template <typename Number>
std::optional<Number> numberIn(std::string_view text) {
    Number number{};
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc{} || end != text.data() + text.size())
        return std::nullopt;
    return number;
}

std::set<std::string> nameSet(std::string_view text) {
    std::set<std::string> names;
    for (const auto piece : split(text, ',')) {
        if (const auto name = trimmed(piece); !name.empty())
            names.insert(normalisedJobName(name));
    }
    return names;
}

std::set<std::string> withoutExtension(const std::set<std::string>& jobs) {
    std::set<std::string> bases;
    for (const auto& job : jobs)
        bases.insert(job.ends_with(".JBI") ? job.substr(0, job.size() - 4) : job);
    return bases;
}

std::string absoluteFolder(std::string_view folder, const std::string& libraryFolder) {
    const PathRules rules;
    std::string native(folder);
    // One set-up serves both systems, so "\" separates everywhere.
    std::replace(native.begin(), native.end(), '\\', rules.separator());
    const auto path = rules.isAbsolute(native) ? native : rules.join(libraryFolder, native);
    return rules.withoutTrailingSeparator(path);
}

/// The one model of the model table that has a serial line only.
bool hasHispeedLink(std::string_view model) {
    return !equalsIgnoringAsciiCase(model, "Aster");
}

ControllerSettings controller(const IniSection& section, const std::string& libraryFolder) {
    ControllerSettings result;
    result.folder = absoluteFolder(section.value("Folder"), libraryFolder);
    result.port = numberIn<std::int16_t>(section.value("Port"));
    if (hasHispeedLink(section.value("Model")))
        result.address = section.value("Address");
    result.hidden = nameSet(section.value("HiddenFiles"));
    result.protectedJobs = withoutExtension(nameSet(section.value("ProtectedJobs")));
    result.runningJobs = withoutExtension(nameSet(section.value("RunningJobs")));
    result.memory = numberIn<std::uint64_t>(section.value("Memory")).value_or(result.unlimited);
    return result;
}

bool leadsTo(const ControllerSettings& controller, const Line& line) {
    if (const auto* serial = std::get_if<SerialLine>(&line))
        return controller.port == serial->port;
    const auto& address = std::get<EthernetLine>(line).address;
    return !address.empty() && controller.address == address;
}

} // namespace

std::string_view IniSection::value(std::string_view key) const {
    for (const auto& [known, text] : keys) {
        if (equalsIgnoringAsciiCase(known, key))
            return text;
    }
    return {};
}

std::vector<IniSection> parseIni(std::string_view text) {
    std::vector<IniSection> sections;
    for (const auto outer : lines(text)) {
        const auto line = trimmed(outer);
        if (line.empty() || line.front() == ';')
            continue;
        if (line.front() == '[')
            sections.push_back({std::string(trimmed(line.substr(1, line.find(']') - 1))), {}});
        else if (!sections.empty())
            readKey(line, sections.back());
    }
    return sections;
}

const ControllerSettings* SimulatorSettings::find(const Line& line) const {
    const auto found = std::find_if(controllers.begin(), controllers.end(),
                                    [&](const auto& each) { return leadsTo(each, line); });
    return found == controllers.end() ? nullptr : &*found;
}

SimulatorSettings parseSettings(std::string_view bytes, const std::string& libraryFolder) {
    SimulatorSettings settings;
    const auto text = decodeText(bytes).text;
    for (const auto& section : parseIni(text)) {
        if (asciiLower(section.name).starts_with("controller") && !section.value("Folder").empty())
            settings.controllers.push_back(controller(section, libraryFolder));
        if (!equalsIgnoringAsciiCase(section.name, "Script"))
            continue;
        for (const auto& key : section.keys)
            settings.scriptRows.push_back(key.second);
    }
    return settings;
}

} // namespace vantrel::simulator
