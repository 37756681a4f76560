#pragma once

#include <string>

namespace vantrel {

/// Whether what has this name leads elsewhere: a symbolic link, on Windows a junction or any other
/// reparse point too. False when nothing has the name.
bool isLink(const std::string& path);

} // namespace vantrel
