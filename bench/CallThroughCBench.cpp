// Measures the preview of one sequence-number rename through the C interface and by the C++ operation.
#include <VyrC/vyr.h>
#include <VyrLibraryFuncs/name/NameFuncs.h>

#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>
#include <string_view>

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

/// The same texts and numbers.
vyr_name_item SampleInC()
{
    vyr_name_item item{};
    item.struct_size = sizeof item;
    item.file_path = InC(inCpp.filePath);
    item.dir_path = InC(inCpp.dirPath);
    item.file_name = InC(inCpp.fileName);
    item.extension = InC(inCpp.extension);
    item.index = inCpp.index;
    item.number_text1 = InC(inCpp.numberText1);
    item.start_number = inCpp.startNumber;
    item.digits = inCpp.digits;
    item.step = inCpp.step;
    return item;
}

const vyr_name_item inC = SampleInC();

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

BENCHMARK(InCpp);
BENCHMARK(ThroughC);

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
