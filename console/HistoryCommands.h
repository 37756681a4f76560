#pragma once

#include "console/Desk.h"

#include <string>

namespace vantrel {

/// Where the history of this request is: the folder that the request names, else the one of the
/// settings, else one in the program's folder.
std::string historyFolder(const Desk& desk);

/// `backup` of one robot: its state goes into the history, with a line for what has changed.
void backUp(Desk& desk, const Target& target);
/// `history log`: a line for each entry, the latest first.
void listHistory(Desk& desk);
/// `history restore` on one robot's folder on the PC: the files, by name or wildcard, as they were
/// in a version. The controller is not reached.
void restoreFiles(Desk& desk, const Target& target);

/// "2026-11-22T08:05:09+09:00".
std::string isoTime(std::int64_t time, int offset);

} // namespace vantrel
