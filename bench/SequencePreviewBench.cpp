// Measures the preview of one sequence-number rename: by the engine, by a function with a record of std::u16string, and
// by bare reserve-and-append as the lower limit.
//
// The argument --second-thread keeps a second thread alive, so that reference counts are atomic.
#include <VyrLibraryFuncs/name/NameFuncs.h>

#include <benchmark/benchmark.h>

#include <charconv>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <future>
#include <iterator>
#include <string>
#include <thread>

using VyrLibraryFuncs::NameFuncs;

namespace {

/// NameFuncs::ITEM with the standard library's strings.
struct StandardItem
{
    std::u16string filePath;
    std::u16string auxText1;
    std::u16string auxText2;
    std::u16string auxText3;
    std::u16string auxText4;
    std::u16string dirPath;
    std::u16string fileName;
    std::u16string extension;
    int index = 0;
    int renameType = 0;
    int numberPosition = 0;
    std::u16string numberText1;
    std::u16string numberText2;
    int startNumber = 0;
    int digits = 0;
    int step = 0;
    int dateTimePosition = 0;
    int dateTimeTarget = 0;
    std::u16string dateTimeFormat;
    int addDeleteType = 0;
    int position = 0;
    int deleteCount = 0;
    std::u16string addText;
    int convertType = 0;
    std::u16string findText;
    std::u16string replaceText;
    int extensionType = 0;
    std::u16string newExtension;
};

/// Both records have the same content: five texts and a number of seven digits.
template <class Item>
Item SampleItem()
{
    Item item;
    item.filePath = u"/home/user/photographs/2024/italy/IMG_0417.jpg";
    item.dirPath = u"/home/user/photographs/2024/italy/";
    item.fileName = u"IMG_0417";
    item.extension = u".jpg";
    item.index = 416;
    item.numberText1 = u"Italy 2024 ";
    item.startNumber = 1;
    item.digits = 7;
    item.step = 1;
    return item;
}

const NameFuncs::ITEM engineItem = SampleItem<NameFuncs::ITEM>();
const StandardItem standardItem = SampleItem<StandardItem>();

std::u16string ReserveAndAppend(const StandardItem& item)
{
    char digits[16];
    const char* const end = std::to_chars(digits, std::end(digits), item.step * item.index + item.startNumber).ptr;
    const auto width = static_cast<std::size_t>(end - digits);
    const auto wanted = static_cast<std::size_t>(item.digits);
    const std::size_t padding = wanted > width ? wanted - width : 0;
    std::u16string path;
    path.reserve(item.dirPath.size() + item.numberText1.size() + padding + width + item.extension.size());
    path.append(item.dirPath).append(item.numberText1).append(padding, u'0');
    path.append(static_cast<const char*>(digits), end).append(item.extension);
    return path;
}

[[gnu::noinline]] std::u16string StandardPath(StandardItem item)
{
    return ReserveAndAppend(item);
}

void Engine(benchmark::State& state)
{
    for (auto _ : state)
        benchmark::DoNotOptimize(NameFuncs::GetRenameFilePath(engineItem));
}

void StandardRecord(benchmark::State& state)
{
    for (auto _ : state)
        benchmark::DoNotOptimize(StandardPath(standardItem));
}

void BareAppend(benchmark::State& state)
{
    for (auto _ : state)
        benchmark::DoNotOptimize(ReserveAndAppend(standardItem));
}

BENCHMARK(Engine);
BENCHMARK(StandardRecord);
BENCHMARK(BareAppend);

bool ResultsAgree()
{
    return NameFuncs::GetRenameFilePath(engineItem) == std::u16string_view(StandardPath(standardItem)) &&
           StandardPath(standardItem) == ReserveAndAppend(standardItem);
}

} // namespace

int main(int argumentCount, char** arguments)
{
    if (!ResultsAgree()) {
        std::fputs("the compared functions give different paths\n", stderr);
        return EXIT_FAILURE;
    }
    std::promise<void> finished;
    std::thread second;
    if (argumentCount > 1 && std::strcmp(arguments[1], "--second-thread") == 0)
        second = std::thread([waiting = finished.get_future()] { waiting.wait(); });
    benchmark::Initialize(&argumentCount, arguments);
    benchmark::RunSpecifiedBenchmarks();
    finished.set_value();
    if (second.joinable())
        second.join();
    return EXIT_SUCCESS;
}
