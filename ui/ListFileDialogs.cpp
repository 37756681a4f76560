#include "ui/ListFileDialogs.h"

#include "app/ListFileDraft.h"
#include "ui/dialogs/frmListFile.h"

namespace vantrel {

bool ListFileDialogs::readList(std::string_view mode) {
    ListFileDraft draft(state_, session_, boxes_, messages_, mode);
    frmListFile dialog(&parent_, draft, state_);
    dialog.ShowModal();
    return draft.result() == list_file_result::listRead;
}

} // namespace vantrel
