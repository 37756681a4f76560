#pragma once

#include "base/Result.h"

#include <cstdint>
#include <string>

namespace vantrel {

/// The running program's own file, absolute, as the system knows it.
std::string executablePath();
/// The program's place as far as its files are concerned: they stand beside it. That is where it
/// runs, unless VANTREL_FOLDER names another absolute folder: the launcher of an installation for
/// all users gives each of them a folder that he may write into.
std::string programPath();

/// The user's name for the system, this PC's and the number of this process, to be told to others;
/// a name that cannot be found out is empty.
std::string userName();
std::string computerName();
std::uint64_t processNumber();

/// The English name of the user's default locale's language: "Japanese", "English", "German".
/// Elsewhere than on Windows it is taken from LC_ALL, LC_MESSAGES or LANG; "English" when unset.
std::string localeLanguageName();

/// Opens a document with the program that the system has for it.
Outcome openDocument(const std::string& path);
/// Starts the plain-text editor with a file: notepad on Windows, elsewhere the desktop's program
/// for text files.
Outcome editTextFile(const std::string& path);

/// `name` of the communication library on this system: "Zurolink.dll", "libZurolink.so".
std::string libraryFileName();

} // namespace vantrel
