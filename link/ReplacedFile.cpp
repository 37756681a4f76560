#include "link/ReplacedFile.h"

#include "base/PathRules.h"
#include "link/FetchFiles.h"
#include "link/FetchMark.h"
#include "link/SessionErrorRecord.h"
#include "platform/Files.h"

#include <filesystem>
#include <system_error>
#include <utility>

namespace vantrel {
namespace {

constexpr std::int16_t noProblem = 0;

/// A plain file that its permissions let somebody write. They are looked at themselves: an
/// administrator may write everything, but the operator has locked the file all the same.
bool isReplaceable(const std::string& path) {
    namespace fs = std::filesystem;
    std::error_code error;
    const auto status =
        fs::symlink_status(fs::path(std::u8string(path.begin(), path.end())), error);
    constexpr auto writable =
        fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;
    return !error && fs::is_regular_file(status) &&
           (status.permissions() & writable) != fs::perms::none;
}

} // namespace

ReplacedFile::ReplacedFile(FetchFiles& files, std::string folder, std::string name,
                           bool takesMarkOver)
    : files_(files), folder_(std::move(folder)), problem_(noProblem) {
    mark_.name = std::move(name);
    problem_ = prepare(takesMarkOver);
    // While the old version has another name the mark stays, and with it the way back.
    if (problem_ != noProblem && (mark_.aside.empty() || anythingExists(pathOf(mark_.name))))
        forget();
}

// The mark first: from it on the old version can be found again.
std::int16_t ReplacedFile::prepare(bool takesMarkOver) {
    const std::string path = pathOf(mark_.name);
    const bool hasOld = anythingExists(path);
    if (hasOld && !describeOld())
        return session_code::fileNotReplaceable;
    if (const std::int16_t problem = setMark(takesMarkOver); problem != noProblem)
        return problem;
    if (!hasOld || files_.rename(path, pathOf(mark_.aside)))
        return noProblem;
    // It may have been renamed, and only not be known to be on the disk.
    if (!anythingExists(path))
        static_cast<void>(files_.rename(pathOf(mark_.aside), path));
    return session_code::fileNotReplaceable;
}

bool ReplacedFile::describeOld() {
    const std::string path = pathOf(mark_.name);
    if (!isReplaceable(path))
        return false;
    const auto content = readFile(path);
    if (content) {
        mark_.aside = freeSpareName(folder_, mark_.name, replacedSuffix);
        mark_.describeOld(*content);
    }
    return static_cast<bool>(content);
}

// A whole mark that is there already tells of an older transfer, which nobody could settle yet.
std::int16_t ReplacedFile::setMark(bool takesMarkOver) {
    auto held = files_.hold(pathOf(FetchMark::fileNameFor(mark_.name)));
    if (!held)
        return session_code::fetchNotMarked;
    const auto before = held->read();
    if (!before)
        return session_code::fetchNotMarked;
    if (!FetchMark::parse(*before)) {
        // What no program left half written tells of something: it goes on forbidding the file.
        if (!FetchMark::isTorn(*before))
            return session_code::markUnusable;
    } else if (!takesMarkOver || files_.isHeldAlone(*held)) {
        return session_code::fetchNotMarked;
    }
    held_ = std::move(*held);
    return files_.write(*held_, mark_.format()) ? noProblem : session_code::fetchNotMarked;
}

std::string ReplacedFile::pathOf(const std::string& name) const {
    return PathRules().join(folder_, name);
}

// Read whole: what the disk does not give back is no copy for which a move may give up the
// original.
bool ReplacedFile::hasArrived() const {
    const auto content = readFile(pathOf(mark_.name));
    return content && !content->empty();
}

// The mark goes before the old version: with it, what is then the only copy besides the
// controller's would be taken for a part, and a move deletes the controller's next. An old version
// that cannot be removed does no harm, and without a mark nobody ever puts it back.
std::int16_t ReplacedFile::keep() {
    if (!oldLiesAside()) {
        decided_ = true;
        return session_code::fileDidNotArrive;
    }
    if (!files_.flush(pathOf(mark_.name)))
        return session_code::fileNotFlushed;
    if (!files_.remove(*held_))
        return session_code::fetchNotMarked;
    held_.reset();
    decided_ = true;
    if (!mark_.aside.empty() && files_.remove(pathOf(mark_.aside)))
        mark_.aside.clear();
    return noProblem;
}

// Another machine that does not see who holds the mark may have settled the transfer, with the old
// version under its own name again.
bool ReplacedFile::oldLiesAside() const {
    return mark_.aside.empty() || mark_.describes(pathOf(mark_.aside));
}

Outcome ReplacedFile::putBack() {
    if (decided_ || problem_ != noProblem)
        return Done{};
    decided_ = true;
    const Outcome done = mark_.aside.empty() ? removePartial() : bringBack();
    if (done)
        forget();
    return done;
}

Outcome ReplacedFile::removePartial() {
    const std::string path = pathOf(mark_.name);
    return anythingExists(path) ? files_.remove(path) : Done{};
}

Outcome ReplacedFile::bringBack() {
    const Outcome renamed = files_.rename(pathOf(mark_.aside), pathOf(mark_.name));
    // What has its name again, and only is not known to be on the disk with it, is back all the
    // same.
    return renamed || !mark_.describes(pathOf(mark_.name)) ? renamed : Outcome(Done{});
}

// One that cannot be removed is settled at the next look at the folder.
void ReplacedFile::forget() {
    if (held_)
        static_cast<void>(files_.remove(*held_));
    held_.reset();
}

ReplacedFile::~ReplacedFile() {
    static_cast<void>(putBack());
}

} // namespace vantrel
