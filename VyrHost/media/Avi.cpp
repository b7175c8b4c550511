// Reads the lists at the head of AVI files.
#include <VyrHost/media/Movie.h>

#include <VyrHost/media/Instants.h>
#include <VyrPlatform/time/COleDateTime.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdlib>
#include <iterator>
#include <string_view>
#include <vector>

namespace VyrHost::Media {

namespace {

using namespace VyrLibraryUtils::Pictures;

/// More than any film has, and far from overflow.
constexpr double mostMilliseconds = 1e15;
/// Bounds the search in a file of empty chunks.
constexpr int mostChunks = 10000;

struct Chunk
{
    std::string name;
    /// Of a list: "hdrl" and the like.
    std::string form;
    ByteView content;
};

/// Passes each chunk of `chunks` to `use`, until that returns false.
template <class Use>
void ForEachChunk(const ByteView& chunks, Use use)
{
    ByteCursor cursor(chunks, ByteOrder::Little);
    for (int left = mostChunks; left > 0; --left) {
        Chunk chunk{std::string(cursor.Bytes(4)), {}, chunks};
        const std::uint32_t size = cursor.U32();
        if (cursor.Failed())
            return;
        chunk.content = cursor.Take(size);
        cursor.Skip(size % 2);
        if (chunk.name == "LIST") {
            chunk.form = chunk.content.Fetch(0, 4);
            chunk.content = chunk.content.From(4);
        }
        if (!use(chunk))
            return;
    }
}

/// The words of a text, at most six.
std::vector<std::string_view> WordsOf(std::string_view text)
{
    constexpr std::string_view blanks(" \t\r\n\0", 5);
    constexpr std::size_t most = 6;
    std::vector<std::string_view> words;
    while (words.size() < most) {
        text.remove_prefix(std::min(text.find_first_not_of(blanks), text.size()));
        if (text.empty())
            break;
        const std::size_t end = std::min(text.find_first_of(blanks), text.size());
        words.push_back(text.substr(0, end));
        text.remove_prefix(end);
    }
    return words;
}

/// Removes the number at the start of `text` and one character after it; -1 if there is none.
int TakeNumber(std::string_view& text)
{
    int number = -1;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    const auto length = static_cast<std::size_t>(end - text.data());
    text.remove_prefix(std::min(length + 1, text.size()));
    return error == std::errc() ? number : -1;
}

struct Numbers
{
    int first;
    int second;
    int third;
};

/// Three numbers separated by one character each.
Numbers ThreeNumbers(std::string_view text)
{
    const int first = TakeNumber(text);
    const int second = TakeNumber(text);
    return {first, second, TakeNumber(text)};
}

int MonthOf(std::string_view word)
{
    constexpr std::array<std::string_view, 12> months{"jan", "feb", "mar", "apr", "may", "jun",
                                                      "jul", "aug", "sep", "oct", "nov", "dec"};
    std::string small(word.substr(0, 3));
    std::transform(small.begin(), small.end(), small.begin(), [](char letter) {
        return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter + ('a' - 'A')) : letter;
    });
    return static_cast<int>(std::find(months.begin(), months.end(), small) - months.begin()) + 1;
}

/// "2024-01-05 10:30:00", "2024:01:05 10:30", "2024/01/05", or "Fri Jan 05 10:30:00 2024".
std::optional<VyrPlatform::FileTicks> DateOf(std::string_view text)
{
    const std::vector<std::string_view> words = WordsOf(text);
    constexpr std::size_t wordsOfC = 5;
    Numbers day{-1, -1, -1};
    Numbers time{0, 0, 0};
    if (words.size() >= wordsOfC) {
        day = {ThreeNumbers(words[4]).first, MonthOf(words[1]), ThreeNumbers(words[2]).first};
        time = ThreeNumbers(words[3]);
    } else if (!words.empty()) {
        day = ThreeNumbers(words[0]);
        if (words.size() > 1)
            time = ThreeNumbers(words[1]);
    }
    const int second = std::max(time.third, 0);
    const COleDateTime local(day.first, day.second, day.third, time.first, time.second, second);
    const auto instant = VyrPlatform::FileTimes::FromLocal(local);
    // File times begin in 1601.
    return instant && *instant > 0 ? instant : std::nullopt;
}

/// The main header: microseconds for each picture, how many pictures, and their size.
void ReadMainHeader(const ByteView& header, Movie& movie)
{
    ByteCursor cursor(header, ByteOrder::Little);
    const std::uint64_t microseconds = cursor.U32();
    cursor.Skip(12);
    const std::uint64_t pictures = cursor.U32();
    cursor.Skip(12);
    movie.width = cursor.U32();
    movie.height = cursor.U32();
    if (microseconds > 0 && pictures > 0)
        movie.duration = (microseconds * pictures + 500) / 1000;
}

/// A stream's header. Its count is right also for films above a gigabyte.
/// @return whether it is a stream of pictures.
bool ReadStream(const ByteView& stream, Movie& movie)
{
    bool isVideo = false;
    ForEachChunk(stream, [&](const Chunk& chunk) {
        if (chunk.name == "strf" && isVideo) {
            ByteCursor format(chunk.content.From(4), ByteOrder::Little);
            const std::uint32_t width = format.U32();
            const auto height = static_cast<std::int32_t>(format.U32());
            if (width > 0 && height != 0 && height != INT32_MIN && !format.Failed()) {
                movie.width = width;
                movie.height = static_cast<std::uint32_t>(std::abs(height));
            }
        }
        if (chunk.name != "strh" || !chunk.content.StartsWith("vids"))
            return true;
        isVideo = true;
        ByteCursor header(chunk.content.From(20), ByteOrder::Little);
        const std::uint64_t scale = header.U32();
        const std::uint64_t rate = header.U32();
        header.Skip(4);
        const std::uint64_t length = header.U32();
        // The product of three such numbers may be too large.
        const double milliseconds =
            rate == 0 ? 0 : 1000.0 * static_cast<double>(length * scale) / static_cast<double>(rate);
        if (milliseconds > 0 && milliseconds < mostMilliseconds)
            movie.duration = static_cast<std::uint64_t>(milliseconds + 0.5);
        return true;
    });
    return isVideo;
}

void ReadHeaders(const ByteView& headers, Movie& movie)
{
    bool isVideoLeft = true;
    ForEachChunk(headers, [&](const Chunk& chunk) {
        if (chunk.name == "avih")
            ReadMainHeader(chunk.content, movie);
        else if (chunk.name == "IDIT")
            movie.created = DateOf(chunk.content.Copy(64));
        else if (chunk.form == "strl" && isVideoLeft)
            isVideoLeft = !ReadStream(chunk.content, movie);
        return true;
    });
}

/// The text of a movie that the chunk `name` contains; null if it contains none.
std::string* TextFor(std::string_view name, Movie& movie)
{
    struct Known
    {
        std::string_view name;
        std::string Movie::*text;
    };
    constexpr Known known[] = {
        {"INAM", &Movie::title}, {"IART", &Movie::artist}, {"IPRD", &Movie::album}, {"IGNR", &Movie::genre},
        {"ICRD", &Movie::year},  {"ITRK", &Movie::track},  {"IPRT", &Movie::track},
    };
    const auto* const found = std::ranges::find(known, name, &Known::name);
    return found == std::end(known) ? nullptr : &(movie.*(found->text));
}

void ReadInformation(const ByteView& information, Movie& movie)
{
    constexpr std::size_t longestText = 65536;
    ForEachChunk(information, [&movie](const Chunk& chunk) {
        if (std::string* const text = TextFor(chunk.name, movie))
            *text = chunk.content.Copy(longestText);
        if (chunk.name == "ICRD" && !movie.created)
            movie.created = DateOf(chunk.content.Copy(64));
        return true;
    });
}

} // namespace

bool IsAvi(const ByteView& bytes)
{
    return bytes.StartsWith("RIFF") && bytes.From(8).StartsWith("AVI ");
}

Movie ReadAvi(const ByteView& file)
{
    constexpr std::uint64_t firstChunk = 12;
    Movie movie;
    ForEachChunk(file.From(firstChunk), [&movie](const Chunk& chunk) {
        if (chunk.form == "hdrl")
            ReadHeaders(chunk.content, movie);
        else if (chunk.form == "INFO")
            ReadInformation(chunk.content, movie);
        return true;
    });
    return movie;
}

} // namespace VyrHost::Media
