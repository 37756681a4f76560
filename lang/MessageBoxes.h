#pragma once

#include <string>

namespace vantrel {

enum class BoxIcon { None, Exclamation, Question };

/// The system's plain message boxes, implemented by the windows. The text is shown as it is: "&" is
/// no mnemonic and "%" no placeholder. Closing a box by other means than its buttons counts as
/// Cancel or No.
class MessageBoxes {
  public:
    virtual ~MessageBoxes() = default;

    virtual void tell(const std::string& text, BoxIcon icon) = 0;
    /// True for OK.
    virtual bool askOkCancel(const std::string& text, BoxIcon icon) = 0;
    /// True for Yes; No is the default button.
    virtual bool askYesNo(const std::string& text, BoxIcon icon) = 0;
};

} // namespace vantrel
