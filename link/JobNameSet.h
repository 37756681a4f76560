#pragma once

#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace vantrel {

/// A directory's names by their normalised form. Each name is normalised once when it is added and
/// each lookup costs one more normalisation, however long the directory is.
class JobNameSet {
  public:
    /// Gives the form in which names are compared.
    using Form = std::string (*)(std::string_view name);

    JobNameSet();
    explicit JobNameSet(Form form) : form_(form) {}

    void assign(const std::vector<std::string>& names);
    void insert(const std::string& name);
    void remove(std::string_view name);

    /// Whether the names that were assigned hold another spelling of this one, in letter case only:
    /// what the controller is told of the one may reach the other.
    bool isAmbiguous(std::string_view name) const;

    /// Whether a file of this whole name is there.
    bool hasFile(std::string_view name) const;
    /// The directory's entry for the job with this name, or an empty text. Extensions don't count:
    /// a job is found as ".JBI", as ".JBR" and without an extension, in this order.
    std::string jobEntry(std::string_view name) const;
    /// The directory's entry for a file: a job by `jobEntry`, any other file by its whole name.
    std::string entry(std::string_view name) const;

  private:
    Form form_;
    std::unordered_map<std::string, std::string> files_; ///< normalised name to entry
    std::unordered_set<std::string> ambiguous_;          ///< normalised names
};

/// The upper-cased extension with its point (".JBI"), or an empty text.
std::string jobExtension(std::string_view fileName);
/// The name under which a controller lists the job that a "//NAME" line names.
std::string jobFileName(const std::string& nameInside);
/// Whether two names, with or without a job file's extension, are those of one job.
bool isSameJob(std::string_view left, std::string_view right);
/// Whether the name has one of a job file's extensions, ".JBI" and ".JBR" in any letter case.
bool isJobFileName(std::string_view fileName);

} // namespace vantrel
