#include "link/FetchFiles.h"

#include "base/PathRules.h"
#include "platform/Files.h"

namespace vantrel {

Result<HeldFile> FetchFiles::hold(const std::string& path) {
    return HeldFile::make(path);
}

Result<std::optional<HeldFile>> FetchFiles::take(const std::string& path) {
    return HeldFile::take(path);
}

bool FetchFiles::isHeldAlone(const HeldFile& file) {
    return file.isHeldAlone();
}

Outcome FetchFiles::write(HeldFile& file, const std::string& content) {
    return file.write(content);
}

Outcome FetchFiles::remove(HeldFile& file) {
    return file.remove();
}

Outcome FetchFiles::remove(const std::string& path) {
    return removeFile(path);
}

Outcome FetchFiles::rename(const std::string& from, const std::string& to) {
    if (Outcome renamed = renameFile(from, to); !renamed)
        return renamed;
    return flushFolder(PathRules().parent(to));
}

Outcome FetchFiles::giveName(const std::string& from, const std::string& to) {
    Outcome renamed = rename(from, to);
    const bool hasNewName = !anythingExists(from) && anythingExists(to);
    return hasNewName ? Outcome(Done{}) : renamed;
}

Outcome FetchFiles::flush(const std::string& path) {
    return flushFile(path);
}

} // namespace vantrel
