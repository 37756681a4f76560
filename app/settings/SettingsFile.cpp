#include "app/settings/SettingsFile.h"

#include "app/settings/WindowText.h"
#include "base/ApplicationState.h"
#include "base/Numbers.h"
#include "base/PathRules.h"
#include "base/Text.h"
#include "platform/ProfileFile.h"

#include <optional>
#include <utility>

namespace vantrel {
namespace {

constexpr std::size_t bufferSize = 128;
constexpr std::string_view mainSection = "Vantrel";
constexpr std::string_view pcSection = "PCType";
constexpr std::string_view controllerSection = "CtrlType";
constexpr std::string_view anyListFile = "*.lst";

/// One section of the file, read key by key.
class SectionReader {
  public:
    SectionReader(const ProfileFile& file, std::string_view section)
        : file_(file), section_(section) {}

    std::string text(std::string_view key, std::string_view defaultValue) const {
        return file_.text(section_, key, defaultValue, bufferSize);
    }
    /// The default folder in full, which as the key's default would be cut to the buffer.
    std::string folder(std::string_view key, const std::string& defaultFolder) const {
        constexpr std::string_view missing = "\n"; // no value can hold a line end
        std::string value = text(key, missing);
        return value == missing ? defaultFolder : value;
    }
    std::int32_t integer(std::string_view key, std::int32_t defaultValue) const {
        return file_.integer(section_, key, defaultValue);
    }
    std::int16_t shortInteger(std::string_view key, std::int16_t defaultValue) const {
        return file_.shortInteger(section_, key, defaultValue);
    }
    bool boolean(std::string_view key) const {
        return truthValue(text(key, "False")).value_or(false);
    }

  private:
    const ProfileFile& file_;
    std::string_view section_;
};

/// One section of the file, written key by key; remembers the first value that was refused.
class SectionWriter {
  public:
    SectionWriter(ProfileFile& file, std::string_view section, std::optional<Failure>& refused)
        : file_(file), section_(section), refused_(refused) {}

    void text(std::string_view key, std::string_view value) {
        const Outcome set = file_.set(section_, key, value);
        if (!set && !refused_)
            refused_ = Failure{set.reason()};
    }
    void integer(std::string_view key, std::int32_t value) { text(key, std::to_string(value)); }
    void boolean(std::string_view key, bool value) { text(key, value ? "True" : "False"); }

  private:
    ProfileFile& file_;
    std::string_view section_;
    std::optional<Failure>& refused_;
};

void readPane(const SectionReader& from, std::int16_t& displayType, FolderListing& listing) {
    displayType = from.shortInteger("DispType", 1);
    listing.SortType = from.shortInteger("SortType", 0);
    listing.SortDir = from.shortInteger("SortDir", 0);
}

void writePane(SectionWriter to, std::int16_t displayType, const FolderListing& listing) {
    to.integer("DispType", displayType);
    to.integer("SortType", listing.SortType);
    to.integer("SortDir", listing.SortDir);
}

void readSerial(const SectionReader& from, SerialLine& line) {
    line.Port = from.shortInteger("Port", 1);
    line.Baudrate = from.integer("Baudrate", 9600);
    line.Parity = from.shortInteger("Parity", 2);
    line.DataLen = from.shortInteger("DataLen", 8);
    line.StopBit = from.shortInteger("StopBit", 0);
}

void writeSerial(SectionWriter& to, const SerialLine& line) {
    to.integer("Port", line.Port);
    to.integer("Baudrate", line.Baudrate);
    to.integer("Parity", line.Parity);
    to.integer("DataLen", line.DataLen);
    to.integer("StopBit", line.StopBit);
}

} // namespace

std::string settingsFileName(std::string_view executable) {
    std::string_view name = executable.substr(executable.find_last_of("\\/") + 1);
    // Only this ending is no part of the name: elsewhere "tool-1.2" is a whole name.
    if (name.size() > 4 && equalsIgnoringAsciiCase(name.substr(name.size() - 4), ".exe"))
        name.remove_suffix(4);
    return std::string(name) + ".ini";
}

SettingsFile::SettingsFile(const std::string& programFolder, const std::string& iniFileName)
    : programFolder_(PathRules().withoutTrailingSeparator(programFolder)),
      path_(PathRules().join(programFolder_, iniFileName)) {}

void SettingsFile::read(ApplicationState& state) const {
    const ProfileFile file(path_);
    const SectionReader from(file, mainSection);
    state.PCPath = from.folder("Path", programFolder_);
    state.CurrentRobot.Path = state.PCPath;
    readSerial(from, state);
    state.Controler = from.shortInteger("Controler", 4);
    state.SyncroRobotDir = from.shortInteger("SyncroRobotDir", 1);
    state.JBR = from.boolean("JBR");
    state.Headder = from.boolean("Headder");
    readWindowText(from.text("Window", defaultWindowText), state.WindowPos);
    state.TransMode = static_cast<TransferMode>(leadingInteger16(from.text("TransMode", "0")));
    state.JobListFile = from.text("JobListFile", anyListFile);
    state.VarListFile = from.text("VarListFile", anyListFile);
    readPane({file, pcSection}, state.PCDispType, state.PCListing);
    readPane({file, controllerSection}, state.CtrlDispType, state.CtrlListing);
}

Outcome SettingsFile::write(const ApplicationState& state, const WindowPlacement& placement) const {
    ProfileFile file(path_);
    const std::string stored = SectionReader(file, mainSection).text("Window", defaultWindowText);
    std::optional<Failure> refused;
    SectionWriter to(file, mainSection, refused);
    to.text("Path", state.PCPath);
    writeSerial(to, state);
    to.integer("Controler", state.Controler);
    to.integer("SyncroRobotDir", state.SyncroRobotDir);
    to.boolean("JBR", state.JBR);
    to.boolean("Headder", state.Headder);
    to.text("Window", windowText(state.WindowPos, placement, stored));
    to.integer("TransMode", static_cast<std::int16_t>(state.TransMode));
    to.text("JobListFile", state.JobListFile);
    to.text("VarListFile", state.VarListFile);
    writePane({file, pcSection, refused}, state.PCDispType, state.PCListing);
    writePane({file, controllerSection, refused}, state.CtrlDispType, state.CtrlListing);
    Outcome saved = file.save();
    if (saved && refused)
        return *refused;
    return saved;
}

void makeFolderAbsolute(ApplicationState& state, const std::string& programFolder) {
    const PathRules rules;
    if (rules.isAbsolute(state.PCPath))
        return;
    state.PCPath = rules.withoutTrailingSeparator(rules.join(programFolder, state.PCPath));
    state.CurrentRobot.Path = state.PCPath;
}

} // namespace vantrel
