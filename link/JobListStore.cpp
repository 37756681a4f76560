#include "link/JobListStore.h"

#include "base/PathRules.h"
#include "base/Text.h"
#include "lang/MessageNumbers.h"
#include "lang/MessageTable.h"
#include "link/OperatorTalk.h"
#include "link/SessionErrorRecord.h"
#include "link/SessionProperties.h"
#include "link/ShownText.h"
#include "platform/Files.h"
#include "platform/TextEncoding.h"

namespace vantrel {

bool JobListStore::load(const std::string& file, bool unchecked) {
    if (!PathRules::isPlainName(file)) {
        tools_.error.set(session_code::nameRefused, "");
        return false;
    }
    const auto content = readFile(PathRules().join(tools_.properties.path, file));
    if (!content) {
        tools_.error.set(session_code::listFileNotOpened, "");
        tools_.error.systemReason = content.reason();
        return false;
    }
    entries_.clear();
    const DecodedText decoded = decodeText(*content);
    for (const std::string_view line : lines(decoded.text)) {
        const std::string name(trimmed(line));
        if (name.empty())
            continue;
        if (unchecked)
            entries_.add(name);
        else if (!addExisting(name))
            return false;
    }
    return true;
}

bool JobListStore::addExisting(const std::string& name) {
    const std::string path = PathRules().join(tools_.properties.path, name);
    if (PathRules::isPlainName(name) && isRegularFile(path)) {
        entries_.add(name);
        return true;
    }
    if (askGoOnWithout(name))
        return true;
    entries_.clear();
    tools_.error.set(session_code::cancelled, "");
    return false;
}

bool JobListStore::askGoOnWithout(const std::string& name) {
    if (!tools_.properties.DisplayMonitor)
        return true;
    const std::string text = tools_.messages.getMessage(message::jobFileHead) + bracketed(name) +
                             " " + tools_.messages.getMessage(message::jobFileMissing);
    return tools_.talk.askOkCancel(text, BoxIcon::Exclamation);
}

} // namespace vantrel
