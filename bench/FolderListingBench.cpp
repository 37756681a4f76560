#include "files/ControllerModels.h"
#include "files/FileFilters.h"
#include "files/FolderScan.h"
#include "files/PaneRows.h"
#include "support/TemporaryFolder.h"

#include <benchmark/benchmark.h>

#include <dirent.h>
#include <memory>
#include <sys/stat.h>

namespace vantrel {
namespace {

constexpr int manyFiles = 100'000;
constexpr int allFiles = 4; ///< the PC pane's filter entry "*.*"

/// A folder of many job files, made once for all benchmarks and removed at the end.
const tests::TemporaryFolder& manyJobs() {
    static const auto folder = [] {
        auto made = std::make_unique<tests::TemporaryFolder>();
        for (int number = 0; number < manyFiles; ++number)
            made->write("JOB" + std::to_string(number * 7919 % manyFiles) + ".JBI", "/JOB\r\n");
        return made;
    }();
    return *folder;
}

bool isAmongAllFiles(std::string_view upperName) {
    return matchesFilter(upperName, allFiles, pcModel());
}

FolderListing manyJobsListing() {
    return *scanFolder(manyJobs().path());
}

/// The yardstick: the least that reading a folder with sizes and dates can cost.
void bareReadAndStat(benchmark::State& state) {
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
BENCHMARK(bareReadAndStat)->Unit(benchmark::kMillisecond);

/// What opening a folder in the PC pane costs below the window.
void scanFilterAndSort(benchmark::State& state) {
    manyJobs();
    for (auto _ : state) {
        const FolderListing listing = manyJobsListing();
        PaneRows rows(listing);
        rows.fill(isAmongAllFiles);
        rows.sort();
        benchmark::DoNotOptimize(rows.name(0).data());
    }
}
BENCHMARK(scanFilterAndSort)->Unit(benchmark::kMillisecond);

/// What a change of filter costs.
void filterAndSort(benchmark::State& state) {
    const FolderListing listing = manyJobsListing();
    PaneRows rows(listing);
    for (auto _ : state) {
        rows.fill(isAmongAllFiles);
        rows.sort();
    }
}
BENCHMARK(filterAndSort)->Unit(benchmark::kMillisecond);

/// What a click on a column header costs: 0 name, 1 size, 2 date.
void sortByColumn(benchmark::State& state) {
    FolderListing listing = manyJobsListing();
    listing.SortType = static_cast<std::int16_t>(state.range(0));
    PaneRows rows(listing);
    rows.fill(isAmongAllFiles);
    for (auto _ : state) {
        listing.SortDir = static_cast<std::int16_t>(1 - listing.SortDir);
        rows.sort();
    }
}
BENCHMARK(sortByColumn)->DenseRange(0, 2)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace vantrel
