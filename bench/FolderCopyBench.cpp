// What a folder copy costs, against the system's own copying command: a tree of 20,000 small files, or with the
// argument
// --large one file of 2 GB.
#include <VyrLibraryFuncs/name/NameFuncs.h>

#include "TemporaryFolder.h"

#include <benchmark/benchmark.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <functional>
#include <random>
#include <string>

using VyrLibraryFuncs::NameFuncs;

namespace fs = std::filesystem;

namespace {

constexpr int folderCount = 200;
constexpr int filesInFolder = 100;
constexpr std::size_t largeSize = 2'000'000'000;

/// Where the source and its copy stand.
struct Workplace
{
    TemporaryFolder folder;
    std::string source = folder.Path() / "from";
    std::string copy = folder.Path() / "to";
};

/// Bytes that no file system stores as a hole.
std::string RandomBytes(std::size_t count)
{
    std::mt19937_64 random(1);
    std::string bytes(count, '\0');
    for (char& byte : bytes)
        byte = static_cast<char>(random());
    return bytes;
}

void MakeSmallFiles(const std::string& root)
{
    const std::string bytes = RandomBytes(8000);
    for (int folder = 0; folder < folderCount; ++folder) {
        const fs::path path = fs::path(root) / std::to_string(folder);
        fs::create_directories(path);
        for (int file = 0; file < filesInFolder; ++file)
            std::ofstream(path / (std::to_string(file) + ".txt"))
                .write(bytes.data(), 100 + (folder * filesInFolder + file) % 7900);
    }
}

void MakeLargeFile(const std::string& root)
{
    fs::create_directories(root);
    const std::string bytes = RandomBytes(1'000'000);
    std::ofstream stream(fs::path(root) / "large");
    for (std::size_t written = 0; written < largeSize; written += bytes.size())
        stream.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

bool Run(const std::string& command)
{
    return std::system(command.c_str()) == 0;
}

bool CopyByEngine(const Workplace& place)
{
    std::list<NameFuncs::RENAMEITEM> records;
    return NameFuncs::CopyFolder(Widen(place.source), Widen(place.copy), &records) == 1;
}

bool CopyByCommand(const Workplace& place)
{
    return Run("cp -a " + place.source + "/. " + place.copy);
}

using Copying = std::function<bool(const Workplace&)>;

/// Empties the place of the copy, and lets the system write out what earlier copies left to it.
void MakeRoom(const Workplace& place)
{
    fs::remove_all(place.copy);
    fs::create_directory(place.copy);
    Run("sync -f " + place.source);
}

bool IsCopyEqual(const Workplace& place, const Copying& copy)
{
    MakeRoom(place);
    return copy(place) && Run("diff -r " + place.source + " " + place.copy);
}

void Measure(benchmark::State& state, const Workplace& place, const Copying& copy)
{
    for (auto _ : state) {
        MakeRoom(place);
        const auto start = std::chrono::steady_clock::now();
        if (!copy(place))
            state.SkipWithError("the copy failed");
        state.SetIterationTime(std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count());
    }
}

} // namespace

int main(int argumentCount, char** arguments)
{
    const Workplace place;
    if (argumentCount > 1 && std::strcmp(arguments[1], "--large") == 0)
        MakeLargeFile(place.source);
    else
        MakeSmallFiles(place.source);
    if (!IsCopyEqual(place, CopyByEngine) || !IsCopyEqual(place, CopyByCommand)) {
        std::fputs("a copy differs from its source\n", stderr);
        return EXIT_FAILURE;
    }
    for (const auto& [name, copy] :
         {std::pair<const char*, Copying>("Engine", CopyByEngine), {"Command", CopyByCommand}})
        benchmark::RegisterBenchmark(name,
                                     [&place, copy = copy](benchmark::State& state) { Measure(state, place, copy); })
            ->UseManualTime()
            ->Iterations(1);
    benchmark::Initialize(&argumentCount, arguments);
    benchmark::RunSpecifiedBenchmarks();
    return EXIT_SUCCESS;
}
