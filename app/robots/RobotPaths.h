#pragma once

#include "base/PathRules.h"

#include <string>
#include <string_view>

namespace vantrel {

/// The folders of the robot registry, which may come from a file written on another system.
class RobotPaths {
  public:
    /// `baseFolder` is what relative folders start from, without a separator at its end unless it
    /// is a root.
    explicit RobotPaths(std::string baseFolder, PathStyle style = nativePathStyle);

    /// The first character is "\" or the system's own separator, or the second one is ":". So a
    /// Windows folder is absolute on every system: elsewhere it cannot be opened, but it must not
    /// be bent into a folder that means nothing anywhere.
    bool isAbsolute(std::string_view path) const;

    /// A relative path below the base folder, with its "\" in the system's own style; an absolute
    /// one as it stands.
    std::string absolute(std::string_view path) const;

    /// The way from the base folder to a folder below it, or an empty text.
    std::string relative(std::string_view path) const;

  private:
    std::string baseFolder_;
    PathRules rules_;
};

} // namespace vantrel
