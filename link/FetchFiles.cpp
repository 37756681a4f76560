#include "link/FetchFiles.h"

#include "base/PathRules.h"
#include "platform/Files.h"

namespace vantrel {

Result<HeldFile> FetchFiles::hold(const std::string& path) {
    return HeldFile::make(path);
}

Result<HeldFile> FetchFiles::holdReadable(const std::string& path) {
    return HeldFile::makeReadable(path);
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

Outcome FetchFiles::append(HeldFile& file, const std::string& content) {
    return file.append(content);
}

Outcome FetchFiles::flush(HeldFile& file) {
    return file.flush();
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

std::vector<std::string> FetchFiles::flushAll(const std::string& folder,
                                              const std::vector<std::string>& names) {
    return flushFiles(folder, names);
}

std::chrono::milliseconds FetchFiles::clock() const {
    using namespace std::chrono;
    return duration_cast<milliseconds>(steady_clock::now().time_since_epoch());
}

} // namespace vantrel
