#include "app/commands/HelpCommands.h"

#include "base/ApplicationState.h"
#include "base/PathRules.h"

#include <utility>

namespace vantrel {

HelpCommands::HelpCommands(const ApplicationState& state, std::string programFolder, Opener open)
    : state_(state), programFolder_(std::move(programFolder)), open_(std::move(open)) {}

void HelpCommands::mnuHelp(int index) const {
    std::string document;
    if (index == 0) {
        document = programFolder_;
        const bool japanese = state_.LanguageName == "Japanese";
        for (const char* part :
             {"..", "ZUROLINKDLL", "Help", japanese ? "Zurolink_jp.pdf" : "Zurolink_us.pdf"})
            document = PathRules().join(document, part);
    }
    (void)open_(document);
}

ProgramVersion programVersion() {
    return {VANTREL_VERSION_MAJOR, VANTREL_VERSION_MINOR, VANTREL_VERSION_REVISION};
}

std::string versionText(const ProgramVersion& version) {
    return std::to_string(version.major) + '.' + std::to_string(version.minor) +
           std::to_string(version.revision);
}

} // namespace vantrel
