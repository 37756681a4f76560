#pragma once

#include "base/Result.h"
#include "platform/HeldFile.h"

#include <chrono>
#include <optional>
#include <string>
#include <vector>

namespace vantrel {

/// The steps on the PC's disk that a fetch consists of, by absolute path. Each is on the disk when
/// it returns, so that whatever ends the program, the steps before are done and those behind it are
/// not. Virtual, so that each can be made to fail, or to be the last one.
class FetchFiles {
  public:
    virtual ~FetchFiles() = default;
    virtual Result<HeldFile> hold(const std::string& path);
    virtual Result<HeldFile> holdReadable(const std::string& path);
    /// As `HeldFile::take`; changes nothing on the disk.
    virtual Result<std::optional<HeldFile>> take(const std::string& path);
    /// Whether nobody else can hold it; false where the disk does not tell.
    virtual bool isHeldAlone(const HeldFile& file);
    virtual Outcome write(HeldFile& file, const std::string& content);
    /// Not on the disk when it returns, but for what `flush` says.
    virtual Outcome append(HeldFile& file, const std::string& content);
    virtual Outcome flush(HeldFile& file);
    virtual Outcome remove(HeldFile& file);
    virtual Outcome remove(const std::string& path);
    virtual Outcome rename(const std::string& from, const std::string& to);
    /// The same for whoever goes on in either case: what has its new name, and only is not known to
    /// be on the disk with it, has it all the same.
    Outcome giveName(const std::string& from, const std::string& to);
    /// Somebody else, the library, has written the file.
    virtual Outcome flush(const std::string& path);
    /// The same for several files of a folder. The names of those that may not be on the disk.
    virtual std::vector<std::string> flushAll(const std::string& folder,
                                              const std::vector<std::string>& names);
    /// Goes on steadily.
    virtual std::chrono::milliseconds clock() const;
};

} // namespace vantrel
