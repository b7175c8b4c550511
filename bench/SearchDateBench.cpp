// Tests a date-time with each range of the search criteria, including the clock, compared with two bounds after one
// reading of the clock.
#include <VyrLibraryFuncs/select/SearchFuncs.h>
#include <VyrPlatform/time/Clock.h>

#include <benchmark/benchmark.h>

#include <cstdlib>

using VyrLibraryFuncs::SearchFuncs;

namespace {

constexpr int rangeCount = 9;

bool MatchesNow(int range, const COleDateTime& value)
{
    SearchFuncs::SetDateTimeRange(range);
    return SearchFuncs::IsMatchDateTime(value) != 0;
}

void Range(benchmark::State& state)
{
    SearchFuncs::SetDateTimeRange(static_cast<int>(state.range(0)));
    const COleDateTime value = VyrPlatform::Clock::Now();
    for (auto _ : state)
        benchmark::DoNotOptimize(SearchFuncs::IsMatchDateTime(value));
}

void BareComparison(benchmark::State& state)
{
    const COleDateTime value = VyrPlatform::Clock::Now();
    const COleDateTime from(value - 1);
    for (auto _ : state) {
        const COleDateTime now = VyrPlatform::Clock::Now();
        benchmark::DoNotOptimize(from <= value && value <= now);
    }
}

} // namespace

BENCHMARK(Range)->DenseRange(0, rangeCount - 1);
BENCHMARK(BareComparison);

int main(int argc, char** argv)
{
    const COleDateTime now = VyrPlatform::Clock::Now();
    for (const int range : {0, 1, 3, 5, 7})
        if (!MatchesNow(range, now))
            return EXIT_FAILURE;
    for (const int range : {2, 4, 6, 8})
        if (MatchesNow(range, now))
            return EXIT_FAILURE;
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return EXIT_SUCCESS;
}
