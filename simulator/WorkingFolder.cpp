#include "simulator/WorkingFolder.h"

#include "base/PathRules.h"
#include "platform/Files.h"
#include "simulator/ControllerFolder.h"
#include "simulator/ResultCodes.h"

namespace vantrel::simulator {

WorkingFolder::WorkingFolder(std::string_view path) : path_(path) {
    const PathRules rules;
    if (!rules.isAbsolute(path_))
        path_ = rules.join(currentFolder(), path_);
}

CodeOr<std::string> WorkingFolder::read(std::string_view name) const {
    if (!PathRules::isPlainName(name))
        return code::nameInvalid;
    const auto path = PathRules().join(path_, name);
    // Asked first, since opening a pipe would wait for somebody to write into it.
    if (!isRegularFile(path))
        return code::pcFileNotFound;
    auto content = readFile(path);
    if (!content)
        return code::pcFileNotFound;
    return std::move(*content);
}

std::int16_t WorkingFolder::write(std::string_view name, std::string_view content) const {
    if (!PathRules::isPlainName(name))
        return code::nameInvalid;
    const auto written = writePlainFile(PathRules().join(path_, name), content);
    return written ? code::done : code::pcFolderNotAccessible;
}

} // namespace vantrel::simulator
