#pragma once

#include <wx/msgdlg.h>

namespace vantrel {

/// The system's message box, a question with its icon: the toolkit leaves that one out, since the
/// kind of box that it takes has no ready-made icon for questions.
class QuestionBox : public wxMessageDialog {
  public:
    using wxMessageDialog::wxMessageDialog;

    int ShowModal() override;
};

} // namespace vantrel
