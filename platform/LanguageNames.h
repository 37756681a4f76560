#pragma once

#include <string>
#include <string_view>

namespace vantrel {

/// The English name of the language of a POSIX locale name such as "ja_JP.UTF-8"; "English" for
/// "C", "POSIX", an empty name and a language that is not known here.
std::string languageNameOfLocale(std::string_view localeName);

} // namespace vantrel
