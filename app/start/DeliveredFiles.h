#pragma once

#include "base/Result.h"

#include <string>
#include <string_view>
#include <vector>

namespace vantrel {

/// A delivered file that could not take its place.
struct UndeliveredFile {
    std::string path;
    std::string reason;
};

/// Texts, tables, pictures and the simulator take their places in the program's folder at a start.
/// Whatever brings a new version (an archive that is unpacked, an installer, a launcher) puts them
/// into the folder ".installed" as "NAME.new" and touches nothing that the operator may have
/// changed. What is in place is remembered there as "NAME": a file that is neither that nor the new
/// one has been changed, and stays beside the new one as ".old", or as ".old2" and so on where
/// there are older ones; none of them is ever replaced. A library that is not the simulator is the
/// maker's and stays where it is. What cannot be done is tried again at the next start.
///
/// A text is "NAME.placing" while it takes its place: it has that name before anything else is
/// touched and is remembered last. Wherever a start ends in between, the next one does the rest,
/// and finds what has been kept already.
class DeliveredFiles {
  public:
    explicit DeliveredFiles(std::string programFolder);

    /// The names of the files that wait for their places.
    std::vector<std::string> waiting() const;
    /// Those that could not take their places.
    std::vector<UndeliveredFile> takePlaces() const { return takePlaces(waiting()); }
    /// The same of these names; those that no longer wait have been placed by another program.
    std::vector<UndeliveredFile> takePlaces(const std::vector<std::string>& names) const;

  private:
    std::string installed(const std::string& name, std::string_view ending = {}) const;
    bool isWaiting(const std::string& name) const;
    bool isDelivered(const std::string& name, const std::string& content) const;
    Result<std::string> delivered(const std::string& name) const;
    Outcome place(const std::string& name) const;
    Outcome placeText(const std::string& name) const;
    Outcome begin(const std::string& name) const;
    Outcome placeLibrary() const;

    std::string folder_;
    std::string installed_;
};

} // namespace vantrel
