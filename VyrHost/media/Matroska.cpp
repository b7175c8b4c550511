// Reads the head of Matroska and WebM files.
#include <VyrHost/media/Movie.h>

#include <VyrHost/media/Instants.h>

#include <algorithm>
#include <bit>
#include <cmath>
#include <iterator>
#include <string_view>
#include <utility>

namespace VyrHost::Media {

namespace {

using namespace VyrLibraryUtils::Pictures;

/// Elements, by the numbers of RFC 9559.
enum class Id : std::uint32_t
{
    Head = 0x1A45DFA3,
    DocType = 0x4282,
    Segment = 0x18538067,
    SeekHead = 0x114D9B74,
    Seek = 0x4DBB,
    SeekId = 0x53AB,
    SeekPosition = 0x53AC,
    Info = 0x1549A966,
    TimestampScale = 0x2AD7B1,
    Duration = 0x4489,
    DateUtc = 0x4461,
    Title = 0x7BA9,
    Tracks = 0x1654AE6B,
    TrackEntry = 0xAE,
    Video = 0xE0,
    PixelWidth = 0xB0,
    PixelHeight = 0xBA,
    Tags = 0x1254C367,
    Tag = 0x7373,
    Targets = 0x63C0,
    TagTrackUid = 0x63C5,
    TagEditionUid = 0x63C9,
    TagChapterUid = 0x63C4,
    TagAttachmentUid = 0x63C6,
    SimpleTag = 0x67C8,
    TagName = 0x45A3,
    TagString = 0x4487,
    Cluster = 0x1F43B675
};

/// Bounds the search in a file of empty elements.
constexpr int mostElements = 10000;
constexpr std::size_t longestText = 65536;

struct Element
{
    Id id;
    ByteView content;
};

/// The number of bytes of a number with the first byte `first`; 9 for a first byte of 0.
std::size_t WidthOf(std::uint8_t first)
{
    return static_cast<std::size_t>(std::countl_zero(first)) + 1;
}

/// Takes the element at the cursor; nothing at the end or for an invalid one. If all bits of its size are set, the size
/// is unknown: the element extends to the end.
std::optional<Element> NextElement(ByteCursor& cursor)
{
    const std::uint8_t firstOfId = cursor.U8();
    const std::size_t idWidth = WidthOf(firstOfId);
    if (cursor.Failed() || idWidth > 4)
        return std::nullopt;
    const std::uint64_t id = std::uint64_t{firstOfId} << 8 * (idWidth - 1) | cursor.Unsigned(idWidth - 1);
    const std::uint8_t firstOfSize = cursor.U8();
    const std::size_t sizeWidth = WidthOf(firstOfSize);
    if (cursor.Failed() || sizeWidth > 8)
        return std::nullopt;
    const std::uint64_t mostBits = (std::uint64_t{1} << 7 * sizeWidth) - 1;
    const std::uint64_t bits = std::uint64_t{firstOfSize} << 8 * (sizeWidth - 1) | cursor.Unsigned(sizeWidth - 1);
    std::uint64_t size = bits & mostBits;
    if (cursor.Failed())
        return std::nullopt;
    if (size == mostBits)
        size = cursor.Remaining();
    return Element{static_cast<Id>(id), cursor.Take(size)};
}

/// Passes each element of `elements` to `use`, until that returns false.
template <class Use>
void ForEachElement(const ByteView& elements, Use use)
{
    ByteCursor cursor(elements, ByteOrder::Big);
    for (int left = mostElements; left > 0; --left) {
        const std::optional<Element> element = NextElement(cursor);
        if (!element || !use(*element))
            return;
    }
}

std::uint64_t NumberIn(const ByteView& content)
{
    return content.Size() <= 8 ? ByteCursor(content, ByteOrder::Big).Unsigned(static_cast<std::size_t>(content.Size()))
                               : 0;
}

double RealIn(const ByteView& content)
{
    const std::uint64_t bits = NumberIn(content);
    return content.Size() == 4 ? double{std::bit_cast<float>(static_cast<std::uint32_t>(bits))}
                               : std::bit_cast<double>(bits);
}

std::optional<VyrPlatform::FileTicks> DateIn(const ByteView& content)
{
    constexpr std::int64_t nanosecondsPerSecond = 1'000'000'000;
    if (content.Size() != 8)
        return std::nullopt;
    const auto nanoseconds = static_cast<std::int64_t>(NumberIn(content));
    // Rounds down also before the epoch.
    const std::int64_t seconds = nanoseconds / nanosecondsPerSecond - (nanoseconds % nanosecondsPerSecond < 0 ? 1 : 0);
    return InstantOf(secondsTo2001 + seconds);
}

void ReadInfo(const ByteView& info, Movie& movie)
{
    std::uint64_t scale = 1'000'000;
    double duration = 0;
    ForEachElement(info, [&](const Element& element) {
        switch (element.id) {
        case Id::TimestampScale:
            scale = NumberIn(element.content);
            break;
        case Id::Duration:
            duration = RealIn(element.content);
            break;
        case Id::DateUtc:
            movie.created = DateIn(element.content);
            break;
        case Id::Title:
            movie.title = element.content.Copy(longestText);
            break;
        default:
            break;
        }
        return true;
    });
    constexpr double nanosecondsPerMillisecond = 1e6;
    constexpr double mostMilliseconds = 1e15;
    const double milliseconds = duration * static_cast<double>(scale) / nanosecondsPerMillisecond;
    if (milliseconds > 0 && milliseconds < mostMilliseconds)
        movie.duration = static_cast<std::uint64_t>(std::llround(milliseconds));
}

void ReadVideo(const ByteView& video, Movie& movie)
{
    std::uint64_t width = 0;
    std::uint64_t height = 0;
    ForEachElement(video, [&](const Element& element) {
        if (element.id == Id::PixelWidth)
            width = NumberIn(element.content);
        else if (element.id == Id::PixelHeight)
            height = NumberIn(element.content);
        return true;
    });
    if (width > 0 && height > 0 && width <= UINT32_MAX && height <= UINT32_MAX) {
        movie.width = static_cast<std::uint32_t>(width);
        movie.height = static_cast<std::uint32_t>(height);
    }
}

void ReadTracks(const ByteView& tracks, Movie& movie)
{
    ForEachElement(tracks, [&movie](const Element& track) {
        if (track.id == Id::TrackEntry)
            ForEachElement(track.content, [&movie](const Element& element) {
                if (element.id == Id::Video)
                    ReadVideo(element.content, movie);
                return movie.width == 0;
            });
        return movie.width == 0;
    });
}

/// The text of a movie that the tag `name` contains; null if it contains none.
std::string* TextFor(std::string_view name, Movie& movie)
{
    struct Known
    {
        std::string_view name;
        std::string Movie::*text;
    };
    constexpr Known known[] = {
        {"TITLE", &Movie::title},       {"ARTIST", &Movie::artist},      {"ALBUM", &Movie::album},
        {"GENRE", &Movie::genre},       {"DATE_RELEASED", &Movie::year}, {"DATE_RECORDED", &Movie::year},
        {"DATE", &Movie::year},         {"PART_NUMBER", &Movie::track},  {"TRACK", &Movie::track},
        {"TRACKNUMBER", &Movie::track}, {"DISC", &Movie::disc},          {"DISCNUMBER", &Movie::disc},
    };
    const auto* const found = std::ranges::find(known, name, &Known::name);
    return found == std::end(known) ? nullptr : &(movie.*(found->text));
}

void ReadSimpleTag(const ByteView& tag, Movie& movie)
{
    constexpr std::size_t longestName = 64;
    std::string name;
    std::string value;
    ForEachElement(tag, [&](const Element& element) {
        if (element.id == Id::TagName)
            name = element.content.Copy(longestName);
        else if (element.id == Id::TagString)
            value = element.content.Copy(longestText);
        return true;
    });
    std::ranges::transform(name, name.begin(), [](char letter) {
        return letter >= 'a' && letter <= 'z' ? static_cast<char>(letter - 'a' + 'A') : letter;
    });
    std::string* const text = TextFor(name.substr(0, name.find('\0')), movie);
    if (text != nullptr && text->empty())
        *text = std::move(value);
}

/// Whether a tag is about the whole film, not about a track, edition, chapter or attachment.
bool IsOfAll(const ByteView& tag)
{
    bool isOfAll = true;
    ForEachElement(tag, [&isOfAll](const Element& targets) {
        if (targets.id == Id::Targets)
            ForEachElement(targets.content, [&isOfAll](const Element& target) {
                const bool isOfPart = target.id == Id::TagTrackUid || target.id == Id::TagEditionUid ||
                                      target.id == Id::TagChapterUid || target.id == Id::TagAttachmentUid;
                isOfAll = isOfAll && !(isOfPart && NumberIn(target.content) != 0);
                return isOfAll;
            });
        return isOfAll;
    });
    return isOfAll;
}

void ReadTags(const ByteView& tags, Movie& movie)
{
    ForEachElement(tags, [&movie](const Element& tag) {
        if (tag.id == Id::Tag && IsOfAll(tag.content))
            ForEachElement(tag.content, [&movie](const Element& element) {
                if (element.id == Id::SimpleTag)
                    ReadSimpleTag(element.content, movie);
                return true;
            });
        return true;
    });
}

/// The position of `wanted` according to the directory of the segment.
std::optional<std::uint64_t> PlaceOf(Id wanted, const ByteView& directory)
{
    std::optional<std::uint64_t> place;
    ForEachElement(directory, [&](const Element& seek) {
        std::uint64_t id = 0;
        std::uint64_t position = 0;
        if (seek.id == Id::Seek)
            ForEachElement(seek.content, [&](const Element& element) {
                if (element.id == Id::SeekId)
                    id = NumberIn(element.content);
                else if (element.id == Id::SeekPosition)
                    position = NumberIn(element.content);
                return true;
            });
        if (id == static_cast<std::uint32_t>(wanted))
            place = position;
        return !place;
    });
    return place;
}

/// Finds an element that writers put after the pictures, through the directory of the segment.
std::optional<ByteView> FindByDirectory(Id wanted, const ByteView& directory, const ByteView& segment)
{
    const std::optional<std::uint64_t> place = PlaceOf(wanted, directory);
    if (!place)
        return std::nullopt;
    ByteCursor cursor(segment.From(*place), ByteOrder::Big);
    const std::optional<Element> element = NextElement(cursor);
    return element && element->id == wanted ? std::optional(element->content) : std::nullopt;
}

/// The parts of a segment that are read, each once: first the header, whose title takes precedence, then the tags.
struct SegmentPart
{
    Id id;
    void (*read)(const ByteView& content, Movie& movie);
};
constexpr SegmentPart segmentParts[] = {{Id::Info, ReadInfo}, {Id::Tracks, ReadTracks}, {Id::Tags, ReadTags}};

void ReadSegment(const ByteView& segment, Movie& movie)
{
    ByteView directory = segment.Part(0, 0);
    std::optional<ByteView> found[std::size(segmentParts)];
    ForEachElement(segment, [&](const Element& element) {
        if (element.id == Id::SeekHead)
            directory = element.content;
        for (std::size_t part = 0; part < std::size(segmentParts); ++part)
            if (element.id == segmentParts[part].id && !found[part])
                found[part] = element.content;
        // The pictures begin here.
        return element.id != Id::Cluster;
    });
    for (std::size_t part = 0; part < std::size(segmentParts); ++part) {
        const auto& [id, read] = segmentParts[part];
        if (!found[part])
            found[part] = FindByDirectory(id, directory, segment);
        if (found[part])
            read(*found[part], movie);
    }
}

} // namespace

bool IsMatroska(const ByteView& bytes)
{
    return bytes.StartsWith("\x1A\x45\xDF\xA3");
}

std::string MatroskaType(const ByteView& bytes)
{
    constexpr std::size_t longestType = 32;
    std::string type;
    ByteCursor cursor(bytes, ByteOrder::Big);
    if (const auto head = NextElement(cursor); head && head->id == Id::Head)
        ForEachElement(head->content, [&type](const Element& element) {
            if (element.id == Id::DocType)
                type = element.content.Copy(longestType);
            return type.empty();
        });
    // Zeros may fill it up.
    return type.substr(0, type.find('\0'));
}

Movie ReadMatroska(const ByteView& file)
{
    Movie movie;
    ForEachElement(file, [&movie](const Element& element) {
        if (element.id == Id::Segment)
            ReadSegment(element.content, movie);
        return element.id != Id::Segment;
    });
    return movie;
}

} // namespace VyrHost::Media
