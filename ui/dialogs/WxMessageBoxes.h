#pragma once

#include "lang/MessageBoxes.h"

#include <wx/msgdlg.h>
#ifdef __WXGTK__
#include <wx/generic/msgdlgg.h>
#else
#include "ui/dialogs/QuestionBox_msw.h"
#endif

namespace vantrel {

class MessageTable;

// The native box of GTK 3 shows no icon, so there the toolkit's own is taken.
#ifdef __WXGTK__
using MessageBox = wxGenericMessageDialog;
/// Style of a box without an icon. The toolkit's own box asks for an icon of any style that it has,
/// the one of none included.
inline constexpr long noIconStyle = 0;
#else
using MessageBox = QuestionBox;
inline constexpr long noIconStyle = wxICON_NONE;
#endif

/// The system's own message boxes, with the language's words on their buttons. They work before
/// there is any other window and before any language is read.
class WxMessageBoxes : public MessageBoxes {
  public:
    explicit WxMessageBoxes(const MessageTable& messages) : messages_(messages) {}

    void tell(const std::string& text, BoxIcon icon) override;
    bool askOkCancel(const std::string& text, BoxIcon icon) override;
    bool askYesNo(const std::string& text, BoxIcon icon) override;

  private:
    int show(const std::string& text, long style) const;
    void captionButtons(MessageBox& box, long style) const;

    const MessageTable& messages_;
};

} // namespace vantrel
