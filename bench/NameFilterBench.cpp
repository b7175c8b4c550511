// Tests a million names with three conditions, compared with a bare loop that lower-cases and searches the same texts.
#include <VyrLibraryFuncs/select/FilterFuncs.h>

#include <benchmark/benchmark.h>

#include <array>
#include <cstdlib>
#include <vector>

using VyrLibraryFuncs::FilterFuncs;

namespace {

/// One name in a thousand contains the last text, so nearly all names are compared with all three.
const std::vector<CString>& Names()
{
    static const std::vector<CString> names = [] {
        std::vector<CString> made;
        for (int i = 0; i < 1'000'000; ++i) {
            CString name;
            name.Format(i % 1000 == 0 ? u"IMG_%07d Panorama.JPG" : u"IMG_%07d Holiday.JPG", i);
            made.push_back(name);
        }
        return made;
    }();
    return names;
}

constexpr std::array texts{u"sunset", u"portrait", u"PANORAMA"};

int CountWithEngine()
{
    std::vector<FilterFuncs::FILTERITEM> items;
    for (const char16_t* const text : texts) {
        FilterFuncs::FILTERITEM& item = items.emplace_back();
        item.enabled = 1;
        item.text = text;
        item.condition = static_cast<int>(FilterFuncs::Condition::Contains);
    }
    int count = 0;
    for (const CString& name : Names())
        count += FilterFuncs::IsMatchName(name, static_cast<int>(FilterFuncs::Mode::Include), items);
    return count;
}

CString Lowered(CString text)
{
    return text.MakeLower();
}

int CountWithBareLoop()
{
    const std::vector<CString> wanted(texts.begin(), texts.end());
    int count = 0;
    for (const CString& name : Names()) {
        const CString lowered = Lowered(name);
        for (const CString& text : wanted) {
            if (lowered.Find(Lowered(text)) >= 0) {
                ++count;
                break;
            }
        }
    }
    return count;
}

void Engine(benchmark::State& state)
{
    for (auto _ : state)
        benchmark::DoNotOptimize(CountWithEngine());
}

void BareLoop(benchmark::State& state)
{
    for (auto _ : state)
        benchmark::DoNotOptimize(CountWithBareLoop());
}

} // namespace

BENCHMARK(Engine);
BENCHMARK(BareLoop);

int main(int argc, char** argv)
{
    if (CountWithEngine() != 1000 || CountWithBareLoop() != 1000)
        return EXIT_FAILURE;
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return EXIT_SUCCESS;
}
