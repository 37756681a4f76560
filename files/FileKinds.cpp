#include "files/FileKinds.h"

#include "base/Text.h"

#include <algorithm>
#include <array>

namespace vantrel {

namespace {

constexpr std::size_t endLength = 3;
constexpr std::array<std::string_view, 7> jobEnds{"JBR", "JBI", "CND", "DAT", "SYS", "PRM", "LST"};

bool isJobFile(std::string_view name) {
    if (name.size() < endLength)
        return false;
    const std::string_view end = name.substr(name.size() - endLength);
    return std::any_of(jobEnds.begin(), jobEnds.end(), [end](std::string_view jobEnd) {
        return equalsIgnoringAsciiCase(end, jobEnd);
    });
}

} // namespace

FileKind fileKind(std::string_view name, std::int32_t size) {
    if (size < 0)
        return FileKind::Folder;
    return isJobFile(name) ? FileKind::JobFile : FileKind::PlainFile;
}

std::string_view imageKey(FileKind kind) {
    switch (kind) {
    case FileKind::Folder:
        return "folder";
    case FileKind::JobFile:
        return "filejob";
    case FileKind::PlainFile:
        break;
    }
    return "file";
}

} // namespace vantrel
