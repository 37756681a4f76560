#pragma once

#include "base/Text.h"

#include <string>

#include <wx/string.h>

namespace vantrel {

/// UTF-8 to the windows' own text type. Bytes that are no UTF-8 are shown as U+FFFD.
inline wxString toWx(const std::string& text) {
    const auto shown = wxString::FromUTF8(text.data(), text.size());
    if (!shown.empty() || text.empty())
        return shown;
    const auto repaired = utf8(codePoints(text));
    return wxString::FromUTF8(repaired.data(), repaired.size());
}

inline std::string fromWx(const wxString& text) {
    return text.utf8_string();
}

} // namespace vantrel
