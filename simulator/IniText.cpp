#include "simulator/IniText.h"

#include "base/Text.h"

namespace vantrel::simulator {

namespace {

void readKey(std::string_view line, IniSection& section) {
    const auto equals = line.find('=');
    if (equals == std::string_view::npos)
        return;
    section.keys.emplace_back(trimmed(line.substr(0, equals)), trimmed(line.substr(equals + 1)));
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

} // namespace vantrel::simulator
