#pragma once

namespace vantrel {

// Fixed texts in every language, with the spelling by which operators and their manuals know them.
inline constexpr const char* folderNotRead = "File Get Error!!";
inline constexpr const char* listNotShown = "File Dispaly Error!!";

} // namespace vantrel
