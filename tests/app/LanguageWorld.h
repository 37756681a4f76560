#pragma once

#include "app/settings/LanguageDraft.h"
#include "base/ApplicationState.h"
#include "lang/LanguageChoice.h"
#include "lang/LanguageFiles.h"
#include "lang/MessageTable.h"
#include "support/FakeMessageBoxes.h"
#include "support/TemporaryFolder.h"

#include <optional>
#include <string>
#include <vector>

namespace vantrel::tests {

/// A program's folder with three languages and what the language dialog needs around it. The user's
/// locale is Japanese.
class LanguageWorld {
  public:
    LanguageWorld() {
        for (const char* const language : {"Japanese", "English", "System"})
            program.write(std::string(language) + ".lng",
                          std::string("Start:\n1 \"a\" \"") + language + "\"\n");
    }

    LanguageServices services() {
        return {state,
                messages,
                files,
                choice,
                boxes,
                program.path(),
                settings.path(ini),
                "Japanese",
                [this](const std::string& path) {
                    edited.push_back(path);
                    return editorFailure ? Outcome(*editorFailure) : Outcome(Done{});
                }};
    }
    std::string savedSettings() const { return settings.read(ini); }

    static constexpr const char* ini = "Vantrel.ini";
    TemporaryFolder program;
    TemporaryFolder settings;
    ApplicationState state;
    MessageTable messages;
    FakeMessageBoxes boxes;
    LanguageFiles files{program.path()};
    LanguageChoice choice{state, messages, files, boxes, "Japanese"};
    std::vector<std::string> edited;
    std::optional<Failure> editorFailure;
};

} // namespace vantrel::tests
