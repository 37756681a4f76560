#pragma once

#include "base/Result.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace vantrel {

struct ApplicationState;
class LanguageChoice;
class LanguageFiles;
class MessageBoxes;
class MessageTable;

/// A caption font as the operator chooses it.
struct CaptionFont {
    std::string name;
    bool bold = false;
    bool italic = false;
    std::int16_t size = 0; ///< whole points

    bool operator==(const CaptionFont&) const = default;
};

/// What the language dialog works with; everything is borrowed and outlives it.
struct LanguageServices {
    ApplicationState& state;
    MessageTable& messages;
    const LanguageFiles& files;
    LanguageChoice& choice;
    MessageBoxes& boxes;
    std::string programFolder;
    std::string settingsPath;   ///< absolute
    std::string localeLanguage; ///< the English name of the user's language
    std::function<Outcome(const std::string& path)> editTextFile;
};

/// What the language dialog knows and decides, without its window. The language and the font of the
/// application state follow each choice at once and are put back when it is abandoned.
class LanguageDraft {
  public:
    /// Forgets an earlier abandonment, picks the language to start with and sets the
    /// default fonts.
    explicit LanguageDraft(LanguageServices services);

    const std::vector<std::string>& languages() const { return languages_; }
    /// The index of the language in force, if it is one of the list.
    std::optional<std::size_t> selected() const;
    void select(std::size_t index);
    /// The full path of the selected language's icon in the program's folder, or an empty text.
    std::string iconPath() const;

    bool ignoreAtStart() const { return ignoreAtStart_; }
    void setIgnoreAtStart(bool ignore) { ignoreAtStart_ = ignore; }

    CaptionFont font() const;
    void setFont(const CaptionFont& font);

    /// Opens the selected language file in a text editor; a failure is told.
    void edit() const;

    /// Reads the chosen language and records the choice. False, after telling why, when the
    /// language file cannot be read.
    bool confirm();
    void abandon();

  private:
    void pickInitialLanguage();
    void record() const;

    LanguageServices services_;
    std::vector<std::string> languages_;
    std::string languageBefore_;
    CaptionFont fontBefore_;
    bool ignoreAtStart_ = false;
};

} // namespace vantrel
