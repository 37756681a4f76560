#pragma once

namespace vantrel {

/// One character beyond ASCII by the Unicode simple mapping; without an upper or lower case form it
/// stays. A table of ours, since the systems' own mappings differ from each other and between
/// versions, and letter case decides which job on a controller a file stands for.
char32_t upperCaseOf(char32_t character);
char32_t lowerCaseOf(char32_t character);

} // namespace vantrel
