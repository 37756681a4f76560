#include "link/DirectoryReader.h"

#include "base/Text.h"
#include "link/LinkConnection.h"
#include "link/SessionErrorRecord.h"
#include "link/SessionProgress.h"
#include "link/Zurolink.h"
#include "platform/TextEncoding.h"

#include <algorithm>
#include <unordered_set>

namespace vantrel {
namespace {

constexpr std::int16_t entryFound = 0;
constexpr std::int16_t endOfDirectory = -1;

} // namespace

bool DirectoryReader::read(std::vector<std::string>& list) {
    list.clear();
    taken_ = 0;
    const std::int16_t handle = link_.connect();
    if (handle < 0)
        return false;
    const End end = readEntries(handle, list);
    const bool closed = link_.disconnect(handle);
    if (!end.isOwn && end.code == endOfDirectory)
        return closed;
    // A library may return the same numbers; only the session's own have words of their own.
    if (end.isOwn)
        error_.set(end.code, end.code == session_code::cancelled ? "" : "BscFind", taken_);
    else
        error_.setReturned(end.code, "BscFind", taken_);
    return false;
}

bool DirectoryReader::answers(std::int16_t handle) {
    buffer_.fill('\0');
    const std::int16_t found = link_.library().BscFindFirst(handle, buffer_.data(), bufferLength);
    if (found == entryFound || found == endOfDirectory)
        return true;
    error_.setReturned(found, "BscFind", 0);
    return false;
}

DirectoryReader::End DirectoryReader::readEntries(std::int16_t handle,
                                                  std::vector<std::string>& list) {
    Zurolink& library = link_.library();
    std::unordered_set<std::string> told;
    std::int32_t repeats = 0;
    buffer_.fill('\0');
    std::int16_t found = library.BscFindFirst(handle, buffer_.data(), bufferLength);
    while (found == entryFound) {
        if (taken_ == mostEntries || repeats == mostRepeats)
            return {session_code::directoryEndless, true};
        const std::string text = nameFromCodePage(takeEntry());
        if (const auto name = trimmed(text); !name.empty()) {
            list.emplace_back(name);
            repeats = told.emplace(name).second ? 0 : repeats + 1;
        }
        if (progress_.isCancelledReading(++taken_))
            return {session_code::cancelled, true};
        found = library.BscFindNext(handle, buffer_.data(), bufferLength);
    }
    return {found, false};
}

// An entry that fills the buffer has no NUL at its end.
std::string DirectoryReader::takeEntry() {
    const auto end = std::find(buffer_.begin(), buffer_.begin() + bufferLength, '\0');
    std::string bytes(buffer_.begin(), end);
    buffer_.fill('\0');
    return bytes;
}

} // namespace vantrel
