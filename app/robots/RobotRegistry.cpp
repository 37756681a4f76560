#include "app/robots/RobotRegistry.h"

#include "app/robots/RobotFile.h"
#include "app/robots/RobotNames.h"
#include "app/robots/RobotPaths.h"
#include "base/ApplicationState.h"
#include "base/PathRules.h"
#include "base/Text.h"
#include "base/TextCase.h"
#include "lang/MessageBoxes.h"
#include "lang/MessageNumbers.h"
#include "lang/MessageTable.h"
#include "link/ShownText.h"
#include "platform/Files.h"
#include "platform/ProfileText.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace vantrel {
namespace {

constexpr const char* fileName = "robot.ini";
constexpr const char* defaultName = "DEFAULT";
/// Longer than any name that a list can show, so that the boot name is never cut.
constexpr std::size_t bootNameBuffer = 4096;

// The first robot that is no text in any encoding, as it can be shown.
std::string nameWithoutText(const std::vector<RobotRecord>& robots) {
    const auto found = std::ranges::find_if(robots, [](const RobotRecord& robot) {
        return !isValidUtf8(robot.Name) || !isValidUtf8(robot.IPaddr);
    });
    return found == robots.end() ? std::string() : "[" + onOneLine(found->Name) + "]";
}

// A name that more than one robot has, as it can be shown; empty when there is none.
std::string sharedName(std::vector<RobotRecord> robots) {
    robots.resize(robotCount(robots));
    std::ranges::sort(robots, {}, &RobotRecord::Name);
    const auto found = std::ranges::adjacent_find(robots, {}, &RobotRecord::Name);
    return found == robots.end() ? std::string() : bracketed(found->Name);
}

} // namespace

std::string robotBaseFolder(const std::string& folder) {
    const std::string lower = lowerCase(folder);
    return isFolder(lower) ? lower : folder;
}

bool makeFoldersAbsolute(std::vector<RobotRecord>& robots, const RobotPaths& paths) {
    for (RobotRecord& robot : robots) {
        if (robot.Name == endOfRobots)
            return true;
        robot.Path = paths.absolute(robot.Path);
    }
    return false;
}

RobotRegistry::RobotRegistry(ApplicationState& state, const MessageTable& messages,
                             MessageBoxes& boxes, const std::string& programFolder)
    : state_(state), messages_(messages), boxes_(boxes),
      programFolder_(PathRules().withoutTrailingSeparator(programFolder)),
      path_(PathRules().join(programFolder_, fileName)) {}

void RobotRegistry::read(RobotBox& box) {
    // In a folder that cannot be written the default list is worked with all the same; that it
    // cannot be kept is told when the program ends.
    if (!anythingExists(path_))
        (void)replaceFile(path_, encoded(defaultText()).value_or(std::string()));
    look(box);
}

void RobotRegistry::look(RobotBox& box) {
    const Result<std::string> content = fileContent();
    state_.BaseDir = robotBaseFolder(currentFolder());
    state_.RobotList = emptyRobotList();
    if (!content || !readList(*content)) {
        tellNotRead();
        return;
    }
    const bool isPlain = selectBootRobot(names(*content));
    fillBox(box);
    if (!isPlain)
        tellNameIsShared();
}

Result<std::string> RobotRegistry::fileContent() const {
    if (anythingExists(path_))
        return readFile(path_);
    return encoded(defaultText()).value_or(std::string());
}

std::string RobotRegistry::defaultText() const {
    std::vector<RobotRecord> robots = emptyRobotList();
    RobotRecord robot;
    robot.Name = defaultName;
    robot.IPaddr = "0.0.0.0";
    robot.Path = programFolder_;
    robots.insert(robots.begin(), robot);
    return registryText(defaultName, robots, RobotPaths(programFolder_));
}

// Whether the folders can be entered is not looked at here: nothing would follow from it, and a
// dead network path would hold up the start. A folder is entered when its robot is chosen.
bool RobotRegistry::readList(const std::string& content) {
    const DecodedText decoded = decodeText(content);
    encoding_ = decoded.encoding;
    plain_ = encoding_ == TextEncoding::Utf8 && isAscii(content);
    state_.BootName = cutToBuffer(bootName(decoded.text), bootNameBuffer);
    TextLines lines(decoded.text);
    RobotFileReader reader(lines, boxes_, programFolder_);
    state_.RobotList = reader.readList();
    // Bytes that mean nothing in any encoding are shown, but writing would lose them.
    readWhole_ = !reader.endedEarly() && encodeText(decoded.text, decoded.encoding) == content;
    return makeFoldersAbsolute(state_.RobotList, RobotPaths(state_.BaseDir));
}

// A file that was read whole holds what its text says; of another one the bytes decide.
RobotNames RobotRegistry::names(const std::string& content) const {
    RobotNames shown{state_.BootName, {}};
    const std::size_t count = robotCount(state_.RobotList);
    for (std::size_t index = 0; index < count; ++index)
        shown.robots.push_back(state_.RobotList[index].Name);
    if (readWhole_)
        return shown;
    RobotNames names = namesByBytes(content, encoding_, boxes_);
    return names.robots.size() == count ? names : shown;
}

// Among equal names the last one wins, and no match means the first robot.
bool RobotRegistry::selectBootRobot(const RobotNames& names) {
    constexpr std::size_t limit = std::numeric_limits<std::int16_t>::max();
    const std::size_t count = std::min(names.robots.size(), limit);
    std::size_t matches = 0;
    state_.CurrentRobotIndex = 0;
    for (std::size_t index = 0; index < count; ++index) {
        if (names.robots[index] != names.boot)
            continue;
        state_.CurrentRobotIndex = static_cast<std::int16_t>(index);
        ++matches;
    }
    if (count > 0)
        state_.CurrentRobot = state_.RobotList[static_cast<std::size_t>(state_.CurrentRobotIndex)];
    state_.StartRobotIndex = state_.CurrentRobotIndex;
    return matches < 2;
}

void RobotRegistry::tellNameIsShared() const {
    boxes_.tell(messages_.getMessage(message::bootNameShared) + bracketed(state_.BootName) + " " +
                    shownText(state_.CurrentRobot.IPaddr),
                BoxIcon::Exclamation);
}

void RobotRegistry::fillBox(RobotBox& box) const {
    box.clear();
    const std::size_t count = robotCount(state_.RobotList);
    for (std::size_t index = 0; index < count; ++index)
        box.add(state_.RobotList[index].Name);
    if (state_.CurrentRobotIndex >= 0 && static_cast<std::size_t>(state_.CurrentRobotIndex) < count)
        box.select(state_.CurrentRobotIndex);
}

void RobotRegistry::tellNotRead() {
    readWhole_ = false;
    boxes_.tell(messages_.getMessage(message::registryNotRead) + bracketed(fileName),
                BoxIcon::Exclamation);
}

// A file that holds ASCII only goes on in the code page, which other programs read. Where a code
// page lacks a character the file goes on in UTF-8, without a mark, which the profile functions do
// not know: robots that were edited are worth more than the encoding.
std::optional<std::string> RobotRegistry::encoded(const std::string& text) const {
    auto bytes = encodeReadably(text, plain_ ? TextEncoding::CodePage : encoding_);
    return bytes ? bytes : encodeText(text, TextEncoding::Utf8);
}

std::string RobotRegistry::freeBackupPath() const {
    std::string backup = path_ + ".bak";
    for (int number = 2; anythingExists(backup); ++number)
        backup = path_ + ".bak" + std::to_string(number);
    return backup;
}

Outcome RobotRegistry::writeBesideUnreadFile(const std::string& bytes) {
    if (!anythingExists(path_))
        return replaceFile(path_, bytes);
    const std::string backup = freeBackupPath();
    if (Outcome kept = renameFile(path_, backup); !kept)
        return kept;
    Outcome written = replaceFile(path_, bytes);
    if (!written && !renameFile(backup, path_))
        return Failure{written.reason() + " [" + backup + "]"};
    return written;
}

Outcome RobotRegistry::write() {
    if (!readWhole_ && !edited_)
        return Done{};
    // Names that were different in the file would be one name in the new one.
    const std::string shared = readWhole_ ? std::string() : sharedName(state_.RobotList);
    if (!shared.empty())
        return Failure{messages_.getMessage(message::reasonNameShared) + shared};
    const auto bytes = encoded(
        registryText(state_.CurrentRobot.Name, state_.RobotList, RobotPaths(state_.BaseDir)));
    if (!bytes)
        return Failure{messages_.getMessage(message::reasonNoText) +
                       nameWithoutText(state_.RobotList)};
    Outcome written = readWhole_ ? replaceFile(path_, *bytes) : writeBesideUnreadFile(*bytes);
    readWhole_ = readWhole_ || written;
    edited_ = edited_ && !written;
    return written;
}

} // namespace vantrel
