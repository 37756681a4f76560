#pragma once

#include "link/FetchFiles.h"

#include <chrono>
#include <set>
#include <string>
#include <vector>

namespace vantrel::tests {

/// The disk of a group of files: what it costs, what of it fails, and what time it is.
class GroupFiles : public FetchFiles {
  public:
    int flushes = 0; ///< of a file, of a folder, or of many files at once
    int groups = 0;  ///< marks of groups that were begun
    std::chrono::milliseconds now{5000};
    std::set<std::string> lost; ///< names of files that do not reach the disk
    bool failsHoldReadable = false;
    bool failsWrite = false;
    bool failsAppend = false;
    bool failsRemoveMark = false;
    bool failsRemove = false;
    bool knowsNoLocks = false;

    Result<HeldFile> holdReadable(const std::string& path) override {
        if (failsHoldReadable)
            return Failure{"no"};
        ++groups;
        return FetchFiles::holdReadable(path);
    }
    bool isHeldAlone(const HeldFile& file) override {
        return !knowsNoLocks && FetchFiles::isHeldAlone(file);
    }
    Outcome write(HeldFile& file, const std::string& content) override {
        flushes += 2;
        return failsWrite ? Failure{"no"} : FetchFiles::write(file, content);
    }
    Outcome append(HeldFile& file, const std::string& content) override {
        return failsAppend ? Failure{"no"} : FetchFiles::append(file, content);
    }
    Outcome flush(HeldFile& file) override {
        ++flushes;
        return FetchFiles::flush(file);
    }
    Outcome remove(HeldFile& file) override {
        ++flushes;
        return failsRemoveMark ? Failure{"no"} : FetchFiles::remove(file);
    }
    Outcome remove(const std::string& path) override {
        ++flushes;
        return failsRemove ? Failure{"no"} : FetchFiles::remove(path);
    }
    Outcome rename(const std::string& from, const std::string& to) override {
        ++flushes;
        return FetchFiles::rename(from, to);
    }
    Outcome flush(const std::string& path) override {
        flushes += 2;
        return FetchFiles::flush(path);
    }
    std::vector<std::string> flushAll(const std::string& folder,
                                      const std::vector<std::string>& names) override {
        flushes += 2;
        auto failed = FetchFiles::flushAll(folder, names);
        for (const std::string& name : names)
            if (lost.contains(name))
                failed.push_back(name);
        return failed;
    }
    std::chrono::milliseconds clock() const override { return now; }
};

} // namespace vantrel::tests
