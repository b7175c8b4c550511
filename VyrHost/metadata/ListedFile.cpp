// Reads each property of a file once.
#include <VyrHost/metadata/ListedFile.h>

#include <VyrLibraryUtils/DateTimeUtils.h>
#include <VyrLibraryUtils/ImageUtils.h>
#include <VyrPlatform/files/FileAttributes.h>
#include <VyrPlatform/files/FileTimes.h>

namespace VyrHost::Metadata {

using VyrLibraryUtils::DateTimeUtils;
using VyrLibraryUtils::ImageUtils;
using VyrPlatform::FileTicks;
using FileKind = VyrPlatform::FileSystem::Kind;

CString ListedFile::ShownPath() const
{
    return CString::Join({m_list->folders[Entry().folder].shown, Entry().name});
}

CString ListedFile::Path() const
{
    return m_list->PathOf(Entry());
}

FileKind ListedFile::Kind() const
{
    return Entry().kind;
}

const VyrPlatform::FileSystem::Entry& ListedFile::State() const
{
    if (!m_state)
        m_state = VyrPlatform::FileSystem::Query(Path());
    return *m_state;
}

std::optional<std::int64_t> ListedFile::Size() const
{
    return State().kind == FileKind::File ? std::optional(State().size) : std::nullopt;
}

std::optional<FileTicks> ListedFile::Modified() const
{
    return State().modified;
}

std::optional<FileTicks> ListedFile::Accessed() const
{
    return State().accessed;
}

std::optional<FileTicks> ListedFile::Created() const
{
    if (!m_created)
        m_created = VyrPlatform::FileTimes::GetCreated(Path());
    return *m_created;
}

std::uint32_t ListedFile::Attributes() const
{
    if (!m_attributes)
        m_attributes = VyrPlatform::FileAttributes::Get(Path());
    return *m_attributes;
}

const ListedFile::KnownMark& ListedFile::ReadMark() const
{
    if (!m_mark) {
        std::uint32_t error = 0;
        const auto forms = VyrPlatform::NamedStreams::ReadZoneMark(Path(), error);
        m_mark = std::make_unique<KnownMark>();
        if (forms)
            *m_mark = {!forms->empty(), Metadata::ReadMark(*forms)};
    }
    return *m_mark;
}

std::optional<bool> ListedFile::IsMarked() const
{
    return ReadMark().isMarked;
}

const ZoneMark& ListedFile::Mark() const
{
    return ReadMark().mark;
}

const ListedFile::Picture& ListedFile::ReadPicture() const
{
    if (!m_picture) {
        const CString path = Path();
        m_picture = std::make_unique<Picture>(
            Picture{DateTimeUtils::GetExifDateTime(ImageUtils::GetPropertyTagExifDTOrig(path)),
                    ImageUtils::GetEquipMake(path), ImageUtils::GetEquipModel(path)});
    }
    return *m_picture;
}

COleDateTime ListedFile::Taken() const
{
    return ReadPicture().taken;
}

CString ListedFile::Make() const
{
    return ReadPicture().make;
}

CString ListedFile::Model() const
{
    return ReadPicture().model;
}

} // namespace VyrHost::Metadata
