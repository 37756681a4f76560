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

/// The name under which a controller keeps a job, normalised: taken from the first line of the
/// file's bytes that reads "//NAME", a blank and the name. Else why the controller refuses the
/// file: `code::formatError` for an empty file or one in UTF-16, `code::headerMissing` when there
/// is no such line, `code::nameInvalid` when its name could not be a file's.
CodeOr<std::string> jobNameIn(std::string_view bytes);

} // namespace vantrel::simulator
