// Compares the date-time rename of a folder of 100,000 files with a bare loop that reads each file's time and formats
// it with the C library.
#include <VyrLibraryFuncs/name/NameFuncs.h>

#include "TemporaryFolder.h"

#include <benchmark/benchmark.h>

#include <fcntl.h>
#include <sys/stat.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

using VyrLibraryFuncs::NameFuncs;

namespace {

constexpr int fileCount = 100'000;

/// Fills `folder` with empty files whose names are in the order of their times, over three years.
/// @return their paths.
std::vector<std::string> MakeFiles(const std::filesystem::path& folder)
{
    using namespace std::chrono;
    const auto first = file_clock::from_sys(sys_seconds(sys_days(year(2021) / 1 / 1)));
    std::vector<std::string> paths;
    for (int i = 0; i < fileCount; ++i) {
        paths.push_back(folder / ("IMG_" + std::to_string(fileCount + i) + ".jpg"));
        std::ofstream(paths.back()).flush();
        std::filesystem::last_write_time(paths.back(), first + seconds(i * 946));
    }
    return paths;
}

std::vector<NameFuncs::ITEM> FilledRecords(const std::vector<std::string>& paths)
{
    std::vector<NameFuncs::ITEM> items;
    NameFuncs::ITEM item;
    item.renameType = 1;
    item.extension = u".jpg";
    item.dateTimeFormat = u"yyyyMMdd_HHmmss";
    for (const std::filesystem::path path : paths) {
        item.index = static_cast<int>(items.size());
        item.filePath = Widen(path);
        item.dirPath = Widen(path.parent_path() / "");
        item.fileName = Widen(path.stem());
        items.push_back(item);
    }
    return items;
}

constexpr std::size_t textRoom = 32;

/// The date-time text of a new name, made with the system's own calls.
void WriteModified(const char* path, char (&text)[textRoom])
{
    struct statx status;
    statx(AT_FDCWD, path, 0, STATX_MTIME, &status);
    const std::time_t seconds = status.stx_mtime.tv_sec;
    std::tm local;
    std::strftime(text, textRoom, "%Y%m%d_%H%M%S", localtime_r(&seconds, &local));
}

bool ResultsAgree(const std::vector<std::string>& paths, const std::vector<NameFuncs::ITEM>& items)
{
    for (std::size_t i = 0; i < items.size(); ++i) {
        char text[textRoom];
        WriteModified(paths[i].c_str(), text);
        if (NameFuncs::GetDateTimeFilePath(items[i]) != items[i].dirPath + Widen(text) + u".jpg")
            return false;
    }
    return true;
}

} // namespace

int main(int argumentCount, char** arguments)
{
    const TemporaryFolder folder;
    const std::vector<std::string> paths = MakeFiles(folder.Path());
    const std::vector<NameFuncs::ITEM> items = FilledRecords(paths);
    if (!ResultsAgree(paths, items)) {
        std::fputs("the compared loops give different names\n", stderr);
        return EXIT_FAILURE;
    }
    benchmark::RegisterBenchmark("Engine", [&items](benchmark::State& state) {
        for (auto _ : state)
            for (const NameFuncs::ITEM& item : items)
                benchmark::DoNotOptimize(NameFuncs::GetDateTimeFilePath(item));
    });
    benchmark::RegisterBenchmark("BareLoop", [&paths](benchmark::State& state) {
        char text[textRoom];
        for (auto _ : state)
            for (const std::string& path : paths) {
                WriteModified(path.c_str(), text);
                benchmark::DoNotOptimize(text);
            }
    });
    benchmark::Initialize(&argumentCount, arguments);
    benchmark::RunSpecifiedBenchmarks();
    return EXIT_SUCCESS;
}
