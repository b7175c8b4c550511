// Any bytes as a film: sizes come in pairs, dates lie in the calendar's years, and texts are bounded.
#include <VyrHost/media/Movie.h>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

namespace {

using namespace VyrHost::Media;

void Require(bool holds)
{
    if (!holds)
        std::abort();
}

void Check(const Movie& movie)
{
    constexpr VyrPlatform::FileTicks endOf9999 = 2'650'467'744'000'000'000;
    constexpr std::size_t longestTitle = 65536;
    Require(!movie.created || (*movie.created >= 0 && *movie.created < endOf9999));
    Require(movie.title.size() <= longestTitle);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    VyrLibraryUtils::Pictures::MemorySource source(std::string_view(reinterpret_cast<const char*>(data), size));
    const VyrLibraryUtils::Pictures::ByteView bytes(source);
    if (IsIsoMedia(bytes))
        Check(ReadIsoMovie(bytes, true));
    if (IsMatroska(bytes))
        Check(ReadMatroska(bytes));
    if (IsAvi(bytes))
        Check(ReadAvi(bytes));
    return 0;
}
