#pragma once

#include <cstdint>
#include <string_view>

namespace vantrel {

enum class FileKind { Folder, JobFile, PlainFile };

/// A folder by its size of -1; a job-kind file by its last three characters, in any letter case:
/// JBR, JBI, CND, DAT, SYS, PRM, LST.
FileKind fileKind(std::string_view name, std::int32_t size);

/// The key of an entry's icon: "folder", "filejob" or "file".
std::string_view imageKey(FileKind kind);

} // namespace vantrel
