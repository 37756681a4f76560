#pragma once

#include "files/TransferServices.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace vantrel {

class ListFileWindow;
class PaneRows;

/// Whether the row of a pane is a job file: what a job list may name.
bool isJobRow(const PaneRows& rows, std::size_t row);

/// Saves the names of the jobs that are selected in the active pane as a job list file, which the
/// list commands read.
class SelectionList {
  public:
    SelectionList(const TransferServices& services, ListFileWindow& dialog)
        : with_(services), dialog_(dialog) {}

    /// Names what is left out, asks for the file and before it replaces one, and tells a failure.
    /// Where a name cannot stand in a list nothing is written: a list that lacks one of the jobs
    /// chosen would pass for the whole selection.
    void save() const;

  private:
    std::optional<std::string> askPath(const std::string& firstJob) const;
    bool mayWrite(const std::string& path) const;
    void write(const std::string& path, const std::vector<std::string>& jobs) const;
    void tellNotWritten(const std::string& path, const std::string& reason) const;
    void showWritten(const std::string& path) const;

    TransferServices with_;
    ListFileWindow& dialog_;
};

} // namespace vantrel
