// Measures the preview of one sequence-number rename through the C interface and by the C++ operation; then the same
// for a thousand files in turn, whose names differ, so that C must copy those.
#include <VyrC/vyr.h>
#include <VyrLibraryFuncs/name/NameFuncs.h>

#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>
#include <iterator>
#include <string_view>
#include <vector>

using VyrLibraryFuncs::NameFuncs;

namespace {

NameFuncs::ITEM SampleInCpp()
{
    NameFuncs::ITEM item;
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

const NameFuncs::ITEM inCpp = SampleInCpp();

vyr_text InC(const CString& text)
{
    return {reinterpret_cast<const std::uint16_t*>(text.GetString()), text.GetLength()};
}

/// The same texts and numbers; `given` must outlive it.
vyr_name_item InC(const NameFuncs::ITEM& given)
{
    vyr_name_item item{};
    item.struct_size = sizeof item;
    item.file_path = InC(given.filePath);
    item.dir_path = InC(given.dirPath);
    item.file_name = InC(given.fileName);
    item.extension = InC(given.extension);
    item.index = given.index;
    item.number_text1 = InC(given.numberText1);
    item.start_number = given.startNumber;
    item.digits = given.digits;
    item.step = given.step;
    return item;
}

const vyr_name_item inC = InC(inCpp);

std::vector<NameFuncs::ITEM> SamplesInCpp()
{
    std::vector<NameFuncs::ITEM> items(1000, inCpp);
    for (NameFuncs::ITEM& item : items) {
        item.index = static_cast<int>(&item - items.data());
        item.fileName.Format(u"IMG_%04d", item.index);
        item.filePath = item.dirPath + item.fileName + item.extension;
    }
    return items;
}

const std::vector<NameFuncs::ITEM> manyInCpp = SamplesInCpp();

std::vector<vyr_name_item> SamplesInC()
{
    std::vector<vyr_name_item> items;
    for (const NameFuncs::ITEM& item : manyInCpp)
        items.push_back(InC(item));
    return items;
}

const std::vector<vyr_name_item> manyInC = SamplesInC();

void InCpp(benchmark::State& state)
{
    for (auto _ : state)
        benchmark::DoNotOptimize(NameFuncs::GetRenameFilePath(inCpp));
}

void ThroughC(benchmark::State& state)
{
    std::uint16_t path[512];
    std::size_t length = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(vyr_name_get_rename_file_path(&inC, path, std::size(path), &length));
        benchmark::ClobberMemory();
    }
}

void ManyInCpp(benchmark::State& state)
{
    std::size_t index = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(NameFuncs::GetRenameFilePath(manyInCpp[index++ % manyInCpp.size()]));
}

void ManyThroughC(benchmark::State& state)
{
    std::uint16_t path[512];
    std::size_t length = 0;
    std::size_t index = 0;
    for (auto _ : state) {
        const vyr_name_item& item = manyInC[index++ % manyInC.size()];
        benchmark::DoNotOptimize(vyr_name_get_rename_file_path(&item, path, std::size(path), &length));
        benchmark::ClobberMemory();
    }
}

BENCHMARK(InCpp);
BENCHMARK(ThroughC);
BENCHMARK(ManyInCpp);
BENCHMARK(ManyThroughC);

bool ResultsAgree()
{
    std::uint16_t path[512];
    std::size_t length = 0;
    return vyr_name_get_rename_file_path(&inC, path, std::size(path), &length) == VYR_OK &&
           NameFuncs::GetRenameFilePath(inCpp) == std::u16string_view(reinterpret_cast<const char16_t*>(path), length);
}

} // namespace

int main(int argumentCount, char** arguments)
{
    if (!ResultsAgree()) {
        std::fputs("the two calls give different paths\n", stderr);
        return EXIT_FAILURE;
    }
    benchmark::Initialize(&argumentCount, arguments);
    benchmark::RunSpecifiedBenchmarks();
    return EXIT_SUCCESS;
}
