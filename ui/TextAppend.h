#pragma once

#include <string>

class wxTextCtrl;

namespace vantrel {

/// Adds UTF-8 text at the end of a multi-line control and leaves caret, selection and what is
/// scrolled into view as they are, which the toolkit's own way does not.
void appendQuietly(wxTextCtrl& control, const std::string& text);

} // namespace vantrel
