// Reads the dates of 1,000 MP4 films, half of them with the movie box behind their data, compared with a bare open and
// read of their heads; and the tags of as many MP3s.
#include "TemporaryFolder.h"

#include <VyrHost/media/MediaValues.h>
#include <VyrPlatform/files/FileReader.h>
#include <tests/support/MediaBuilder.h>

#include <benchmark/benchmark.h>

#include <array>
#include <cstdlib>
#include <fstream>
#include <span>
#include <vector>

namespace {

using namespace VyrHost::Media;

constexpr int count = 1000;

std::vector<CString> films;
std::vector<CString> music;

CString Write(const TemporaryFolder& folder, const std::string& name, const std::string& bytes)
{
    const std::filesystem::path path = folder.Path() / name;
    std::ofstream(path, std::ios::binary) << bytes;
    return Widen(path.string());
}

void MakeFiles(const TemporaryFolder& folder)
{
    const std::string data(100000, 'x');
    for (int number = 0; number < count; ++number) {
        const std::string name = std::to_string(number);
        const VyrTests::FilmFacts facts{.created = 3787295400U + static_cast<unsigned>(number)};
        films.push_back(Write(folder, name + ".mp4",
                              VyrTests::BuildMp4(facts, "isom", number % 2 == 0) + VyrTests::Box("free", data)));
        const VyrTests::MusicTags tags{{"TIT2", "Title " + name}, {"TPE1", "Artist"}, {"TALB", "Album"}, {"TRCK", "1"}};
        music.push_back(Write(folder, name + ".mp3", VyrTests::BuildMp3(VyrTests::Id3Tag(tags), 200)));
    }
}

void FilmDates(benchmark::State& state)
{
    for (auto _ : state)
        for (const CString& film : films)
            benchmark::DoNotOptimize(ReadMedia(film, {.videoCreated = true}));
}

/// The head of each film alone; where the movie box stands behind the data, a reader needs one read more.
void BareReads(benchmark::State& state)
{
    std::array<std::byte, 2048> head;
    for (auto _ : state)
        for (const CString& film : films) {
            const VyrPlatform::FileReader file(film, head);
            benchmark::DoNotOptimize(file.BeginningSize());
        }
}

void MusicTags(benchmark::State& state)
{
    for (auto _ : state)
        for (const CString& piece : music)
            benchmark::DoNotOptimize(ReadMedia(piece, {.tags = true}));
}

/// Whether the right date is read of every film.
bool AreDatesRight()
{
    constexpr VyrPlatform::FileTicks first = 133489242000000000;
    for (int number = 0; number < count; ++number)
        if (ReadMedia(films[static_cast<std::size_t>(number)], {.videoCreated = true}).videoCreated !=
            first + number * 10'000'000LL)
            return false;
    return true;
}

} // namespace

BENCHMARK(FilmDates);
BENCHMARK(BareReads);
BENCHMARK(MusicTags);

int main(int argc, char** argv)
{
    const TemporaryFolder folder;
    MakeFiles(folder);
    if (!AreDatesRight())
        return EXIT_FAILURE;
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return EXIT_SUCCESS;
}
