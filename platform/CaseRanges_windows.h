#pragma once

namespace vantrel {

/// One character beyond ASCII by the Unicode simple mapping; without an upper or lower case form it
/// stays. The system's own mapping differs between its versions and leaves characters out.
char32_t upperCaseOf(char32_t character);
char32_t lowerCaseOf(char32_t character);

} // namespace vantrel
