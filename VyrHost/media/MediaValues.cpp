// Opens a file once and calls the readers of its format.
#include <VyrHost/media/MediaValues.h>

#include <VyrHost/media/ExifTags.h>
#include <VyrHost/media/Movie.h>
#include <VyrHost/media/Music.h>
#include <VyrHost/media/OpenFile.h>
#include <VyrHost/media/PictureDates.h>
#include <VyrHost/media/PictureSizes.h>
#include <VyrHost/media/Texts.h>
#include <VyrHost/model/FolderSet.h>
#include <VyrLibraryUtils/pictures/Picture.h>

#include <algorithm>
#include <string>

namespace VyrHost::Media {

namespace {

namespace Pictures = VyrLibraryUtils::Pictures;

bool IsPacket(const Pictures::ByteView& bytes)
{
    return bytes.StartsWith("<?xpacket") || bytes.StartsWith("<x:xmpmeta") || bytes.StartsWith("<?xml");
}

/// The XMP packet in the file, or the file itself if it is a sidecar.
std::string PacketIn(Pictures::ByteSource& source)
{
    constexpr std::size_t longestSidecar = std::size_t{1} << 20;
    const Pictures::ByteView bytes(source);
    return IsPacket(bytes) ? bytes.Copy(longestSidecar) : Pictures::ReadPicture(source, Pictures::PictureTag::Xmp);
}

std::string PacketBeside(const CString& path)
{
    const std::u16string_view whole = path;
    const std::size_t dot = Model::NamePart(whole).rfind(u'.');
    const bool hasExtension = dot != std::u16string_view::npos && dot > 0;
    const std::u16string_view stem = hasExtension ? whole.substr(0, Model::FolderPart(whole).size() + dot) : whole;
    for (const std::u16string_view before : {whole, stem}) {
        OpenFile sidecar(CString::Join({before, u".xmp"}));
        if (sidecar.IsOpen() && IsPacket(Pictures::ByteView(sidecar.Source())))
            return PacketIn(sidecar.Source());
    }
    return {};
}

class Reading
{
public:
    Reading(const CString& path, OpenFile& file, const MediaQuestion& question)
        : m_path(path), m_file(file), m_source(file.Source()), m_bytes(m_source), m_question(question)
    {}

    MediaValues Run()
    {
        if (m_question.size || m_question.duration || m_question.tags || m_question.videoCreated)
            ReadMovieOrMusic();
        if (m_question.exifDates) {
            m_values.taken = ReadTaken(m_source);
            m_values.digitized = ReadDigitized(m_source);
        }
        if (m_question.xmpDate || ExifTagReader::AsksForXmp(m_question.exif))
            m_packet = PacketIn(m_source);
        if (m_question.xmpDate)
            ReadDateOfPacket();
        if (m_question.exif.any())
            ReadExifTags();
        return std::move(m_values);
    }

private:
    void ReadMovieOrMusic()
    {
        if (m_question.size && TakePictureSize())
            return;
        if (IsIsoMedia(m_bytes))
            Take(ReadIsoMovie(m_bytes, m_question.duration));
        else if (IsMatroska(m_bytes))
            Take(ReadMatroska(m_bytes));
        else if (IsAvi(m_bytes))
            Take(ReadAvi(m_bytes));
        const bool isDurationMissing = m_question.duration && !m_values.duration;
        if ((isDurationMissing || m_question.tags) && !IsMatroska(m_bytes) && !IsAvi(m_bytes))
            ReadTagsOfMusic(isDurationMissing);
    }

    void ReadTagsOfMusic(bool asksForDuration)
    {
        const MediaValues ofMovie = m_values;
        ReadMusic(m_file, {.duration = asksForDuration, .tags = m_question.tags}, m_values);
        for (CString MediaValues::*const text :
             {&MediaValues::title, &MediaValues::artist, &MediaValues::album, &MediaValues::genre})
            if ((m_values.*text).IsEmpty())
                m_values.*text = ofMovie.*text;
        for (unsigned MediaValues::*const number : {&MediaValues::track, &MediaValues::disc, &MediaValues::year})
            if (m_values.*number == 0)
                m_values.*number = ofMovie.*number;
    }

    /// Whether the file is a picture, which has neither a duration nor tags of music.
    bool TakePictureSize()
    {
        const auto size = ReadSizeOfPicture(m_source);
        if (!size)
            return false;
        m_values.width = size->width;
        m_values.height = size->height;
        return true;
    }

    void Take(const Movie& movie)
    {
        if (m_question.size) {
            m_values.width = movie.width;
            m_values.height = movie.height;
        }
        if (m_question.duration)
            m_values.duration = movie.duration;
        if (m_question.videoCreated)
            m_values.videoCreated = movie.created;
        if (m_question.tags)
            TakeTags(movie);
    }

    void TakeTags(const Movie& movie)
    {
        m_values.title = TextOf(movie.title);
        m_values.artist = TextOf(movie.artist);
        m_values.album = TextOf(movie.album);
        m_values.genre = TextOf(movie.genre);
        m_values.track = NumberAtFront(movie.track);
        m_values.disc = NumberAtFront(movie.disc);
        m_values.year = NumberAtFront(movie.year);
    }

    void ReadDateOfPacket()
    {
        m_values.xmpCreated = ReadXmpDate(m_packet);
        if (!m_values.xmpCreated)
            m_values.xmpCreated = ReadXmpDate(PacketBeside(m_path));
    }

    void ReadExifTags()
    {
        ExifTagReader reader(m_source, m_packet);
        for (std::size_t tag = 0; tag < exifTagCount; ++tag)
            if (m_question.exif[tag])
                m_values.exif[tag] = reader.Read(static_cast<ExifTag>(tag));
    }

    const CString& m_path;
    OpenFile& m_file;
    Pictures::ByteSource& m_source;
    Pictures::ByteView m_bytes;
    const MediaQuestion& m_question;
    std::string m_packet;
    MediaValues m_values;
};

} // namespace

MediaValues ReadMedia(const CString& path, const MediaQuestion& question)
{
    OpenFile file(path);
    if (file.IsOpen())
        return Reading(path, file, question).Run();
    MediaValues values;
    values.error = file.ErrorFor(path);
    return values;
}

} // namespace VyrHost::Media
