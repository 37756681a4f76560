#pragma once

#include "simulator/ResultCodes.h"

#include <string>
#include <string_view>

namespace vantrel::simulator {

/// A file name that a controller can deal with.
struct ControllerFileName {
    enum class Kind {
        Job,         ///< ".JBI"
        RelatedJobs, ///< ".JBR": the form in which a job travels together with what it needs
        Data,        ///< ".CND", ".DAT", ".SYS", ".PRM", ".LST"
    };

    std::string base;      ///< normalised, without the point
    std::string extension; ///< upper case, without the point
    Kind kind = Kind::Data;

    /// The file's name in the controller's folder; both forms of a job are kept as ".JBI".
    std::string stored() const;
};

/// `code::nameInvalid` for a name that is not one plain component, has no base, or holds a
/// character that the interface's code page lacks; `code::unknownFileKind` for another extension.
CodeOr<ControllerFileName> controllerFileName(std::string_view name);

} // namespace vantrel::simulator
