#pragma once

#include "base/Result.h"

#include <string>
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
/// one has been changed, and stays beside the new one as ".old", or ".old2" to ".old9" where there
/// are older ones. A library that is not the simulator is the maker's and stays where it is.
/// What cannot be done is tried again at the next start.
class DeliveredFiles {
  public:
    explicit DeliveredFiles(std::string programFolder);

    /// The files that could not take their places.
    std::vector<UndeliveredFile> takePlaces() const;

  private:
    std::string deliveredAs(const std::string& name) const;
    std::vector<std::string> waiting() const;
    Outcome place(const std::string& name) const;
    Outcome placeText(const std::string& name) const;
    Outcome placeLibrary() const;

    std::string folder_;
    std::string installed_;
};

} // namespace vantrel
