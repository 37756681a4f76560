#include "ui/dialogs/frmDumy.h"

namespace vantrel {

frmDumy::frmDumy()
    : wxDialog(nullptr, wxID_ANY, wxString::FromUTF8("SetEther()用ダミーウィンドウです。"),
               wxDefaultPosition, wxDefaultSize, wxDEFAULT_DIALOG_STYLE | wxDIALOG_NO_PARENT,
               "frmDumy") {
    SetExtraStyle(GetExtraStyle() | wxWS_EX_TRANSIENT);
}

void* frmDumy::handle() const {
    return GetHandle();
}

} // namespace vantrel
