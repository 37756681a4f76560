#pragma once

#include <span>
#include <string>
#include <vector>

#include <wx/listctrl.h>

namespace vantrel {

/// A plain list of file names. It asks for visible rows only, so that a folder of 100,000 files
/// opens at once.
class FileNameList : public wxListView {
  public:
    FileNameList(wxWindow* parent, const wxString& name);

    void show(const std::vector<std::string>& names);

  private:
    wxString OnGetItemText(long item, long column) const override;
    void fitColumn();

    std::vector<std::string> names_;
};

} // namespace vantrel
