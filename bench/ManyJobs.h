#pragma once

#include "files/ControllerModels.h"
#include "files/FolderScan.h"
#include "files/PaneRows.h"
#include "support/TemporaryFolder.h"

#include <memory>
#include <string>
#include <string_view>

#include <benchmark/benchmark.h>
#include <dirent.h>
#include <sys/stat.h>

namespace vantrel::bench {

constexpr int manyFiles = 100'000;

/// A folder of many job files, made once for all benchmarks and removed at the end.
inline const tests::TemporaryFolder& manyJobs() {
    static const auto folder = [] {
        auto made = std::make_unique<tests::TemporaryFolder>();
        for (int number = 0; number < manyFiles; ++number)
            made->write("JOB" + std::to_string(number * 7919 % manyFiles) + ".JBI", "/JOB\r\n");
        return made;
    }();
    return *folder;
}

/// The PC pane's filter entry "*.*".
inline bool isAmongAllFiles(std::string_view upperName) {
    constexpr int allFiles = 4;
    return matchesFilter(upperName, allFiles, pcModel());
}

/// The first of the many jobs in a pane's rows, read and filtered but not sorted yet.
struct ManyRows {
    explicit ManyRows(int count = manyFiles) {
        listing.Count = count;
        rows.fill(isAmongAllFiles);
    }

    /// As a second click on a column's header does.
    void sortTheOtherWay() {
        listing.SortDir = static_cast<std::int16_t>(1 - listing.SortDir);
        rows.sort();
    }

    FolderListing listing = *scanFolder(manyJobs().path());
    PaneRows rows{listing};
};

/// The yardstick: the least that reading a folder with sizes and dates can cost.
inline void bareReadAndStat(benchmark::State& state) {
    const std::string path = manyJobs().path();
    for (auto _ : state) {
        DIR* const folder = opendir(path.c_str());
        long long bytes = 0;
        while (const dirent* const entry = readdir(folder)) {
            struct stat details {};
            if (fstatat(dirfd(folder), entry->d_name, &details, 0) == 0)
                bytes += details.st_size;
        }
        closedir(folder);
        benchmark::DoNotOptimize(bytes);
    }
}

} // namespace vantrel::bench
