#pragma once

#include <string>
#include <string_view>

namespace vantrel {

/// A menu's or button's caption as plain text, for titles: "&About..." becomes "About", and
/// "終了(&X)" becomes "終了".
std::string withoutMnemonic(std::string_view caption);

} // namespace vantrel
