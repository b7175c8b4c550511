// Passes the bytes of a file to TagLib: with TagLib's own streams, file names would differ between the systems, and
// nothing would limit what it reads of a damaged file.
#include <VyrHost/media/Music.h>

#include <VyrHost/media/Texts.h>

#include <algorithm>
#include <climits>
#include <limits>
#include <span>
#include <string>

#include <taglib/fileref.h>
#include <taglib/tag.h>
#include <taglib/tiostream.h>
#include <taglib/tpropertymap.h>

namespace VyrHost::Media {

namespace {

/// More than any tag with its pictures has.
constexpr std::uint64_t mostBytesAtOnce = std::uint64_t{32} << 20;
constexpr std::uint64_t mostBytesInAll = std::uint64_t{64} << 20;
/// TagLib reads many small blocks close to one another.
constexpr std::size_t windowSize = 4096;

class BoundedStream final : public TagLib::IOStream
{
public:
    explicit BoundedStream(const MusicBytes& bytes) : m_bytes(bytes), m_size(ToLong(bytes.Size())) {}

    /// The format must not depend on the name.
    TagLib::FileName name() const override { return ""; }

    TagLib::ByteVector readBlock(unsigned long length) override
    {
        const auto rest = static_cast<std::uint64_t>(m_at < m_size ? m_size - m_at : 0);
        const std::uint64_t count = std::min<std::uint64_t>(length, rest);
        if (count == 0 || count > mostBytesAtOnce || m_bytesRead > mostBytesInAll)
            return {};
        TagLib::ByteVector block(static_cast<unsigned int>(count), 0);
        const std::size_t read = Read(std::as_writable_bytes(std::span(block.data(), count)));
        m_at += static_cast<long>(read);
        return block.resize(static_cast<unsigned int>(read));
    }

    void writeBlock(const TagLib::ByteVector&) override {}
    void insert(const TagLib::ByteVector&, unsigned long, unsigned long) override {}
    void removeBlock(unsigned long, unsigned long) override {}
    void truncate(long) override {}
    bool readOnly() const override { return true; }
    bool isOpen() const override { return true; }

    void seek(long offset, Position from) override
    {
        const long origin = from == Beginning ? 0 : from == Current ? m_at : m_size;
        long place = 0;
        if (!__builtin_add_overflow(origin, offset, &place))
            m_at = std::max(place, 0L);
    }
    long tell() const override { return m_at; }
    long length() override { return m_size; }

private:
    static long ToLong(std::uint64_t size)
    {
        return static_cast<long>(
            std::min<std::uint64_t>(size, static_cast<std::uint64_t>(std::numeric_limits<long>::max())));
    }

    std::size_t Read(std::span<std::byte> buffer)
    {
        const auto place = static_cast<std::uint64_t>(m_at);
        if (buffer.size() > windowSize / 2) {
            m_bytesRead += buffer.size();
            return m_bytes.ReadAt(place, buffer);
        }
        if (place < m_windowAt || place + buffer.size() > m_windowAt + m_windowFill) {
            m_windowAt = place;
            m_windowFill = m_bytes.ReadAt(place, m_window);
            m_bytesRead += m_windowFill;
        }
        const std::size_t skipped = static_cast<std::size_t>(place - m_windowAt);
        const std::size_t count = std::min(buffer.size(), m_windowFill - std::min(skipped, m_windowFill));
        std::copy_n(m_window.begin() + static_cast<std::ptrdiff_t>(skipped), count, buffer.begin());
        return count;
    }

    const MusicBytes& m_bytes;
    long m_size;
    long m_at = 0;
    std::uint64_t m_bytesRead = 0;
    std::uint64_t m_windowAt = 0;
    std::size_t m_windowFill = 0;
    std::array<std::byte, windowSize> m_window;
};

CString ToText(const TagLib::String& text)
{
    return TextOf(text.to8Bit(true));
}

TagLib::StringList ValuesOf(const TagLib::PropertyMap& properties, const char* name)
{
    return properties.contains(name) ? properties[name] : TagLib::StringList();
}

/// All values of one property; `other` if it has none.
CString TextOfProperty(const TagLib::PropertyMap& properties, const char* name, const TagLib::String& other)
{
    const TagLib::StringList values = ValuesOf(properties, name);
    return ToText(values.isEmpty() ? other : values.toString(", "));
}

/// The number at the start of a property, within its first `length` characters; `other` if there is none.
unsigned NumberOf(const TagLib::PropertyMap& properties, const char* name, unsigned other, unsigned length = UINT_MAX)
{
    const TagLib::StringList values = ValuesOf(properties, name);
    return values.isEmpty() ? other : NumberAtFront(values.front().substr(0, length).to8Bit());
}

void TakeTags(const TagLib::FileRef& music, MediaValues& values)
{
    const TagLib::Tag* const tag = music.tag();
    if (tag == nullptr)
        return;
    const TagLib::PropertyMap properties = music.file()->properties();
    values.title = TextOfProperty(properties, "TITLE", tag->title());
    values.artist = TextOfProperty(properties, "ARTIST", tag->artist());
    values.album = TextOfProperty(properties, "ALBUM", tag->album());
    values.genre = TextOfProperty(properties, "GENRE", tag->genre());
    // The properties are more complete than the tag itself, especially for WAV, and negative numbers are ignored.
    values.track = NumberOf(properties, "TRACKNUMBER", tag->track());
    // A date may have no separators.
    constexpr unsigned digitsOfYear = 4;
    values.year = NumberOf(properties, "DATE", tag->year(), digitsOfYear);
    values.disc = NumberOf(properties, "DISCNUMBER", 0);
}

} // namespace

void ReadMusic(const MusicBytes& bytes, const MediaQuestion& question, MediaValues& values)
{
    BoundedStream stream(bytes);
    const TagLib::FileRef music(&stream, question.duration, TagLib::AudioProperties::Fast);
    if (music.isNull())
        return;
    if (question.tags)
        TakeTags(music, values);
    const TagLib::AudioProperties* const sound = question.duration ? music.audioProperties() : nullptr;
    if (sound != nullptr && sound->lengthInMilliseconds() > 0)
        values.duration = static_cast<std::uint64_t>(sound->lengthInMilliseconds());
}

} // namespace VyrHost::Media
