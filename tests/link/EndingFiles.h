#pragma once

#include "link/FetchFiles.h"

#include <limits>
#include <optional>

namespace vantrel::tests {

/// The disk under a program that ends: only so many steps are done, and nothing after them.
class EndingFiles : public FetchFiles {
  public:
    explicit EndingFiles(int steps = std::numeric_limits<int>::max()) : left_(steps) {}

    /// Another step of the program, done by somebody else than these files.
    bool step() { return left_-- > 0; }
    bool hasEnded() const { return left_ < 0; }

    Result<HeldFile> hold(const std::string& path) override {
        return step() ? FetchFiles::hold(path) : Failure{"ended"};
    }
    Result<HeldFile> holdReadable(const std::string& path) override {
        return step() ? FetchFiles::holdReadable(path) : Failure{"ended"};
    }
    Outcome append(HeldFile& file, const std::string& content) override {
        return step() ? FetchFiles::append(file, content) : Failure{"ended"};
    }
    Outcome flush(HeldFile& file) override {
        return step() ? FetchFiles::flush(file) : Failure{"ended"};
    }
    std::vector<std::string> flushAll(const std::string& folder,
                                      const std::vector<std::string>& names) override {
        return step() ? FetchFiles::flushAll(folder, names) : names;
    }
    Outcome write(HeldFile& file, const std::string& content) override {
        return step() ? FetchFiles::write(file, content) : Failure{"ended"};
    }
    Outcome remove(HeldFile& file) override {
        return step() ? FetchFiles::remove(file) : Failure{"ended"};
    }
    Outcome remove(const std::string& path) override {
        return step() ? FetchFiles::remove(path) : Failure{"ended"};
    }
    Outcome rename(const std::string& from, const std::string& to) override {
        return step() ? FetchFiles::rename(from, to) : Failure{"ended"};
    }
    Outcome flush(const std::string& path) override {
        return step() ? FetchFiles::flush(path) : Failure{"ended"};
    }

  private:
    int left_;
};

/// The disk with one kind of step that fails.
class FailingFiles : public FetchFiles {
  public:
    bool failsHold = false;
    bool failsTake = false;
    bool failsWrite = false;
    bool failsRemoveMark = false;
    bool failsFlush = false;
    bool failsRemove = false;
    bool failsFolderFlush = false; ///< a file has its new name, and nobody knows for how long
    bool knowsNoLocks = false;

    Result<HeldFile> hold(const std::string& path) override {
        return failsHold ? Failure{"no"} : FetchFiles::hold(path);
    }
    Result<std::optional<HeldFile>> take(const std::string& path) override {
        if (failsTake)
            return Failure{"no"};
        return FetchFiles::take(path);
    }
    bool isHeldAlone(const HeldFile& file) override {
        return !knowsNoLocks && FetchFiles::isHeldAlone(file);
    }
    Outcome write(HeldFile& file, const std::string& content) override {
        return failsWrite ? Failure{"no"} : FetchFiles::write(file, content);
    }
    Outcome remove(HeldFile& file) override {
        return failsRemoveMark ? Failure{"no"} : FetchFiles::remove(file);
    }
    Outcome remove(const std::string& path) override {
        return failsRemove ? Failure{"no"} : FetchFiles::remove(path);
    }
    Outcome rename(const std::string& from, const std::string& to) override {
        Outcome renamed = FetchFiles::rename(from, to);
        return failsFolderFlush ? Failure{"no"} : renamed;
    }
    Outcome flush(const std::string& path) override {
        return failsFlush ? Failure{"no"} : FetchFiles::flush(path);
    }
};

} // namespace vantrel::tests
