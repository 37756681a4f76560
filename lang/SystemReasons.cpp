#include "lang/SystemReasons.h"

#include "lang/MessageNumbers.h"
#include "lang/MessageTable.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <string_view>

namespace vantrel {
namespace {

struct KnownReason {
    std::string_view words;
    std::int32_t number;
};

/// English words of Linux, of Windows and of our own.
constexpr KnownReason knownReasons[] = {
    {"No such file or directory", message::reasonMissing},
    {"Not a directory", message::reasonMissing},
    {"The system cannot find the file specified", message::reasonMissing},
    {"The system cannot find the path specified", message::reasonMissing},
    {"Permission denied", message::reasonDenied},
    {"Operation not permitted", message::reasonDenied},
    {"Access is denied", message::reasonDenied},
    {"No space left on device", message::reasonFull},
    {"Disk quota exceeded", message::reasonFull},
    {"There is not enough space on the disk", message::reasonFull},
    {"Read-only file system", message::reasonProtected},
    {"The media is write protected", message::reasonProtected},
    {"Device or resource busy", message::reasonInUse},
    {"Text file busy", message::reasonInUse},
    {"The process cannot access the file because it is being used by another process",
     message::reasonInUse},
    {"Is a directory", message::reasonNoFile},
    {"Is a folder", message::reasonNoFile},
    {"Not a regular file", message::reasonNoFile},
    {"The delivered file is empty", message::reasonEmpty},
    {"not a library of this system", message::reasonNoLibrary},
    {"library for another kind of processor", message::reasonOtherProcessor},
    {"32-bit library, 64-bit program", message::reasonNarrowLibrary},
    {"64-bit library, 32-bit program", message::reasonWideLibrary},
    {"the file is cut short", message::reasonCutShort},
};

/// The reason's own words. A program's name may stand before them and a file's, in brackets,
/// behind.
std::string_view ownWords(std::string_view reason) {
    const auto name = reason.rfind(": ", reason.find(" ["));
    const auto words = name == reason.npos ? reason : reason.substr(name + 2);
    return words.substr(0, words.find(" ["));
}

} // namespace

std::string reasonInLanguage(const MessageTable& messages, const std::string& reason) {
    const std::string_view words = ownWords(reason);
    const auto* const known = std::ranges::find(knownReasons, words, &KnownReason::words);
    if (known == std::end(knownReasons))
        return reason;
    const std::string text = messages.getMessage(known->number);
    if (text.empty())
        return reason;
    const auto place = static_cast<std::size_t>(words.data() - reason.data());
    return std::string(reason).replace(place, words.size(), text);
}

} // namespace vantrel
