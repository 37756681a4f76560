#include "ManyJobs.h"

#include <benchmark/benchmark.h>

namespace vantrel::bench {
namespace {

BENCHMARK(bareReadAndStat)->Unit(benchmark::kMillisecond);

/// What opening a folder in the PC pane costs below the window.
void scanFilterAndSort(benchmark::State& state) {
    manyJobs();
    for (auto _ : state) {
        ManyRows jobs;
        jobs.rows.sort();
        benchmark::DoNotOptimize(jobs.rows.name(0).data());
    }
}
BENCHMARK(scanFilterAndSort)->Unit(benchmark::kMillisecond);

/// What a change of filter costs.
void filterAndSort(benchmark::State& state) {
    ManyRows jobs;
    for (auto _ : state) {
        jobs.rows.fill(isAmongAllFiles);
        jobs.rows.sort();
    }
}
BENCHMARK(filterAndSort)->Unit(benchmark::kMillisecond);

/// What a click on a column header costs: 0 name, 1 size, 2 date.
void sortByColumn(benchmark::State& state) {
    ManyRows jobs;
    jobs.listing.SortType = static_cast<std::int16_t>(state.range(0));
    for (auto _ : state)
        jobs.sortTheOtherWay();
}
BENCHMARK(sortByColumn)->DenseRange(0, 2)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace vantrel::bench
