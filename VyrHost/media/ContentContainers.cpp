// Looks into the containers that many kinds of files share.
#include <VyrHost/media/ContentReaders.h>

#include <VyrHost/media/Movie.h>
#include <VyrLibraryUtils/pictures/FourCc.h>
#include <VyrLibraryUtils/pictures/IsoBox.h>

#include <algorithm>
#include <array>
#include <optional>
#include <string>

namespace VyrHost::Media {

namespace {

using namespace std::string_view_literals;
using namespace VyrLibraryUtils::Pictures;

struct Meaning
{
    std::string_view text;
    std::u16string_view extension;
};

template <std::size_t count>
std::u16string_view Find(const Meaning (&meanings)[count], std::string_view text)
{
    const auto* const found = std::find_if(std::begin(meanings), std::end(meanings),
                                           [text](const Meaning& meaning) { return meaning.text == text; });
    return found == std::end(meanings) ? std::u16string_view() : found->extension;
}

/// The archive's first members, by their local headers.
class ZipHeads
{
public:
    explicit ZipHeads(const ByteView& file) : m_cursor(file, ByteOrder::Little) {}

    struct Member
    {
        std::string name;
        ByteView content;
        bool isPacked;
    };

    std::optional<Member> Next()
    {
        constexpr std::uint32_t signature = 0x04034B50;
        constexpr std::uint16_t longestName = 1024;
        constexpr std::uint16_t sizeBehind = 8;
        if (m_cursor.U32() != signature)
            return std::nullopt;
        m_cursor.Skip(2);
        const std::uint16_t flags = m_cursor.U16();
        const bool isPacked = m_cursor.U16() != 0;
        m_cursor.Skip(8);
        const std::uint32_t size = m_cursor.U32();
        m_cursor.Skip(4);
        const std::uint16_t nameLength = m_cursor.U16();
        const std::uint16_t extraLength = m_cursor.U16();
        if (nameLength == 0 || nameLength > longestName)
            return std::nullopt;
        std::string name(m_cursor.Bytes(nameLength));
        m_cursor.Skip(extraLength);
        if (m_cursor.Failed())
            return std::nullopt;
        const ByteView content = m_cursor.Take(size);
        // If the size follows the content, the next header cannot be found.
        if ((flags & sizeBehind) != 0 && size == 0)
            m_cursor.Skip(m_cursor.Remaining() + 1);
        return Member{std::move(name), content, isPacked};
    }

private:
    ByteCursor m_cursor;
};

/// The names in the directory at the archive's end.
class ZipDirectory
{
public:
    explicit ZipDirectory(const ByteView& file) : m_cursor(Place(file), ByteOrder::Little) {}

    std::optional<std::string> Next()
    {
        constexpr std::uint32_t signature = 0x02014B50;
        constexpr std::uint16_t longestName = 1024;
        if (m_cursor.U32() != signature)
            return std::nullopt;
        m_cursor.Skip(24);
        const std::uint16_t nameLength = m_cursor.U16();
        const std::uint64_t behind = std::uint64_t{m_cursor.U16()} + m_cursor.U16();
        m_cursor.Skip(12);
        if (nameLength == 0 || nameLength > longestName)
            return std::nullopt;
        std::string name(m_cursor.Bytes(nameLength));
        m_cursor.Skip(behind);
        return m_cursor.Failed() ? std::nullopt : std::optional(std::move(name));
    }

private:
    static ByteView Place(const ByteView& file)
    {
        constexpr std::uint64_t tailSize = ByteSource::maximumFetch;
        const ByteView tail = file.From(file.Size() - std::min(file.Size(), tailSize));
        const std::string bytes = tail.Copy(tailSize);
        const std::size_t end = bytes.rfind("PK\5\6");
        if (end == std::string::npos)
            return file.Part(0, 0);
        ByteCursor cursor(tail.From(end + 16), ByteOrder::Little);
        return file.From(cursor.U32());
    }

    ByteCursor m_cursor;
};

/// The kind of archive that a member's name indicates.
std::u16string_view MeaningOfMember(std::string_view name)
{
    constexpr Meaning names[] = {{"word/document.xml", u"docx"},    {"word/document2.xml", u"docx"},
                                 {"xl/workbook.xml", u"xlsx"},      {"xl/workbook.bin", u"xlsx"},
                                 {"ppt/presentation.xml", u"pptx"}, {"visio/document.xml", u"vsdx"},
                                 {"AndroidManifest.xml", u"apk"}};
    return Find(names, name);
}

std::u16string_view MeaningOfType(std::string_view type)
{
    constexpr Meaning types[] = {{"application/epub+zip", u"epub"},
                                 {"application/vnd.oasis.opendocument.text", u"odt"},
                                 {"application/vnd.oasis.opendocument.text-template", u"ott"},
                                 {"application/vnd.oasis.opendocument.spreadsheet", u"ods"},
                                 {"application/vnd.oasis.opendocument.presentation", u"odp"},
                                 {"application/vnd.oasis.opendocument.graphics", u"odg"}};
    return Find(types, type);
}

/// The kind of compound document that an entry's name, in lower case, indicates: the format ignores case.
std::u16string_view MeaningOfEntry(std::string_view name)
{
    constexpr Meaning names[] = {{"worddocument", u"doc"},  {"workbook", u"xls"},
                                 {"book", u"xls"},          {"powerpoint document", u"ppt"},
                                 {"visiodocument", u"vsd"}, {"__properties_version1.0", u"msg"},
                                 {"quill", u"pub"}};
    return Find(names, name);
}

/// The sectors of a compound document's directory, one after the other.
class CompoundDirectory
{
public:
    explicit CompoundDirectory(const ByteView& file) : m_file(file)
    {
        constexpr std::uint64_t sectorShiftField = 30;
        constexpr std::uint64_t directoryField = 48;
        ByteCursor shift(file.From(sectorShiftField), ByteOrder::Little);
        m_sectorShift = shift.U16();
        ByteCursor first(file.From(directoryField), ByteOrder::Little);
        m_next = first.U32();
    }

    /// Nothing at the end of the chain, or after more sectors than any directory needs.
    std::optional<ByteView> Next()
    {
        constexpr int mostSectors = 1000;
        constexpr std::uint32_t firstSpecial = 0xFFFFFFFA;
        const bool isSound = m_sectorShift == 9 || m_sectorShift == 12;
        if (!isSound || m_next >= firstSpecial || m_count++ >= mostSectors)
            return std::nullopt;
        const ByteView sector = Sector(m_next);
        m_next = Following(m_next);
        return sector.Size() == 0 ? std::nullopt : std::optional(sector);
    }

private:
    [[nodiscard]] ByteView Sector(std::uint32_t number) const
    {
        return m_file.Part((std::uint64_t{number} + 1) << m_sectorShift, std::uint64_t{1} << m_sectorShift);
    }

    [[nodiscard]] static std::uint32_t NumberAt(const ByteView& view, std::uint64_t offset)
    {
        ByteCursor cursor(view.From(offset), ByteOrder::Little);
        return cursor.U32();
    }

    /// The sector after `number`, by the tables that the header lists; further lists are not followed.
    [[nodiscard]] std::uint32_t Following(std::uint32_t number) const
    {
        constexpr std::uint64_t tablesField = 76;
        constexpr std::uint32_t listedTables = 109;
        const std::uint32_t perTable = 1U << (m_sectorShift - 2);
        const std::uint32_t table = number / perTable;
        if (table >= listedTables)
            return UINT32_MAX;
        return NumberAt(Sector(NumberAt(m_file, tablesField + std::uint64_t{table} * 4)),
                        std::uint64_t{number % perTable} * 4);
    }

    ByteView m_file;
    std::uint32_t m_sectorShift = 0;
    std::uint32_t m_next = 0;
    int m_count = 0;
};

char Small(char letter)
{
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter + ('a' - 'A')) : letter;
}

/// The ASCII characters of a directory entry's name, in lower case.
std::string NameOfEntry(const ByteView& entry)
{
    constexpr std::uint64_t lengthField = 64;
    constexpr std::uint16_t longestName = 64;
    ByteCursor length(entry.From(lengthField), ByteOrder::Little);
    const std::uint16_t size = std::min(length.U16(), longestName);
    ByteCursor cursor(entry, ByteOrder::Little);
    std::string name;
    for (std::uint16_t at = 2; at < size; at = static_cast<std::uint16_t>(at + 2))
        name += Small(static_cast<char>(std::min<std::uint16_t>(cursor.U16(), 0x7F)));
    return name;
}

} // namespace

std::u16string_view KindOfZip(const ByteView& file)
{
    constexpr std::size_t longestType = 100;
    const auto first = ZipHeads(file).Next();
    if (first && first->name == "mimetype" && !first->isPacked)
        if (const auto kind = MeaningOfType(first->content.Copy(longestType)); !kind.empty())
            return kind;
    bool hasManifest = false;
    const auto fromNames = [&hasManifest](auto next) -> std::u16string_view {
        constexpr int mostNames = 1000;
        for (int left = mostNames; left > 0; --left) {
            const std::optional<std::string> name = next();
            if (!name)
                break;
            if (const auto kind = MeaningOfMember(*name); !kind.empty())
                return kind;
            hasManifest = hasManifest || *name == "META-INF/MANIFEST.MF";
        }
        return {};
    };
    ZipDirectory directory(file);
    if (const auto kind = fromNames([&directory] { return directory.Next(); }); !kind.empty())
        return kind;
    // A damaged archive may lack its directory.
    ZipHeads heads(file);
    const auto kind = fromNames([&heads] {
        auto member = heads.Next();
        return member ? std::optional(std::move(member->name)) : std::nullopt;
    });
    if (!kind.empty())
        return kind;
    return hasManifest ? u"jar"sv : u"zip"sv;
}

std::u16string_view KindOfCompound(const ByteView& file)
{
    constexpr std::uint64_t entrySize = 128;
    CompoundDirectory directory(file);
    while (const auto sector = directory.Next())
        for (std::uint64_t at = 0; at < sector->Size(); at += entrySize)
            if (const auto kind = MeaningOfEntry(NameOfEntry(sector->Part(at, entrySize))); !kind.empty())
                return kind;
    return {};
}

std::u16string_view KindOfIsoMedia(const ByteView& file)
{
    constexpr Meaning brands[] = {{"qt  ", u"mov"},  {"M4V ", u"m4v"},  {"M4VH", u"m4v"},  {"M4VP", u"m4v"},
                                  {"M4A ", u"m4a"},  {"M4B ", u"m4b"},  {"heic", u"heic"}, {"heix", u"heic"},
                                  {"heim", u"heic"}, {"heis", u"heic"}, {"hevc", u"heic"}, {"hevx", u"heic"},
                                  {"avif", u"avif"}, {"avis", u"avif"}, {"crx ", u"cr3"},  {"mp41", u"mp4"},
                                  {"mp42", u"mp4"},  {"avc1", u"mp4"},  {"dash", u"mp4"},  {"MSNV", u"mp4"},
                                  {"f4v ", u"f4v"}};
    ByteCursor cursor(file, ByteOrder::Big);
    const auto box = NextBox(cursor);
    // Old films have no box with brands.
    if (!box || box->type != FourCc("ftyp"))
        return u"mov";
    const auto meaningAt = [&box, &brands](std::uint64_t at) -> std::u16string_view {
        const std::string_view brand = box->content.Fetch(at, 4);
        if (brand.starts_with("3gp") || brand.starts_with("3g2"))
            return brand[2] == 'p' ? u"3gp" : u"3g2";
        if (brand.starts_with("iso"))
            return u"mp4";
        return Find(brands, brand);
    };
    if (const auto kind = meaningAt(0); !kind.empty())
        return kind;
    // "mif1" and others only say that it is a picture; the compatible brands say which kind.
    constexpr std::uint64_t compatible = 8;
    constexpr std::uint64_t mostBrands = 64;
    for (std::uint64_t at = compatible; at < compatible + mostBrands * 4; at += 4)
        if (const auto kind = meaningAt(at); !kind.empty())
            return kind;
    return {};
}

std::u16string_view KindOfRiff(const ByteView& file)
{
    constexpr Meaning forms[] = {{"WAVE", u"wav"}, {"AVI ", u"avi"}, {"WEBP", u"webp"}, {"CDR", u"cdr"}};
    constexpr std::uint64_t formField = 8;
    return Find(forms, file.Fetch(formField, 4));
}

std::u16string_view KindOfOgg(const ByteView& file)
{
    constexpr std::uint64_t segmentsField = 26;
    ByteCursor cursor(file.From(segmentsField), ByteOrder::Little);
    const ByteView packet = file.From(segmentsField + 1 + cursor.U8());
    constexpr Meaning codecs[] = {{"\x01vorbis", u"ogg"},
                                  {"OpusHead", u"opus"},
                                  {"\x80theora", u"ogv"},
                                  {"\x7F"
                                   "FLAC",
                                   u"oga"},
                                  {"Speex   ", u"spx"},
                                  // A directory of streams, with which films begin.
                                  {"fishead"sv, u"ogv"}};
    for (const Meaning& codec : codecs)
        if (packet.StartsWith(codec.text))
            return codec.extension;
    return {};
}

std::u16string_view KindOfMatroska(const ByteView& file)
{
    constexpr Meaning types[] = {{"matroska", u"mkv"}, {"webm", u"webm"}};
    return Find(types, MatroskaType(file));
}

std::u16string_view KindOfAsf(const ByteView& file)
{
    constexpr std::size_t headSize = 8192;
    constexpr std::string_view pictures("\xC0\xEF\x19\xBC\x4D\x5B\xCF\x11\xA8\xFD\x00\x80\x5F\x5C\x44\x2B", 16);
    return file.Copy(headSize).find(pictures) == std::string::npos ? u"wma" : u"wmv";
}

} // namespace VyrHost::Media
