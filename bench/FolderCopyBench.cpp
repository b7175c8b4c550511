// Compares a folder copy with the system's own copy command: a tree of 20,000 small files, or with --large one file of
// 2 GB.
#include <VyrLibraryFuncs/name/NameFuncs.h>

#include "TemporaryFolder.h"

#include <benchmark/benchmark.h>

#include <unistd.h>

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

/// The folder of the source and its copies.
class Workplace
{
public:
    explicit Workplace(bool isLarge) : m_isLarge(isLarge) {}

    [[nodiscard]] bool IsLarge() const noexcept { return m_isLarge; }
    [[nodiscard]] std::string Source() const { return m_folder.Path() / "from"; }
    [[nodiscard]] std::string Copy() const { return m_folder.Path() / ("to" + std::to_string(m_copies)); }

    /// Creates an empty folder for the next copy and flushes what earlier copies wrote.
    ///
    /// Copies of many files stay until the end: a file system that has just removed many files is slow to create new
    /// ones (ext4 searches everything that was removed in the last seconds).
    void MakeRoom()
    {
        if (m_isLarge)
            fs::remove_all(Copy());
        ++m_copies;
        fs::create_directory(Copy());
        sync();
    }

private:
    TemporaryFolder m_folder;
    bool m_isLarge;
    int m_copies = 0;
};

/// Bytes that no file system stores as a hole: none is zero.
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
    return NameFuncs::CopyFolder(Widen(place.Source()), Widen(place.Copy()), &records) == 1;
}

bool CopyByCommand(const Workplace& place)
{
    return Run("cp -a " + place.Source() + "/. " + place.Copy());
}

using Copying = std::function<bool(const Workplace&)>;

bool IsCopyEqual(Workplace& place, const Copying& copy)
{
    place.MakeRoom();
    return copy(place) && Run("diff -r " + place.Source() + " " + place.Copy());
}

void Measure(benchmark::State& state, Workplace& place, const Copying& copy)
{
    for (auto _ : state) {
        place.MakeRoom();
        const auto start = std::chrono::steady_clock::now();
        if (!copy(place))
            state.SkipWithError("the copy failed");
        state.SetIterationTime(std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count());
    }
}

} // namespace

int main(int argumentCount, char** arguments)
{
    Workplace place(argumentCount > 1 && std::strcmp(arguments[1], "--large") == 0);
    if (place.IsLarge())
        MakeLargeFile(place.Source());
    else
        MakeSmallFiles(place.Source());
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
