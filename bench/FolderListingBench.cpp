#include "ManyJobs.h"
#include "files/FolderScan.h"
#include "files/PaneRows.h"

#include <benchmark/benchmark.h>

namespace vantrel::bench {
namespace {

FolderListing manyJobsListing() {
    return *scanFolder(manyJobs().path());
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
} // namespace vantrel::bench
