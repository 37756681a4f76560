#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace vantrel {

/// Text in the ANSI code page, NUL characters included, or nothing when the code page lacks a
/// character: one that it could only replace by a similar one counts as lacking, so what comes back
/// from the code page is always what went in.
std::optional<std::string> codePageBytes(std::string_view utf8);

} // namespace vantrel
