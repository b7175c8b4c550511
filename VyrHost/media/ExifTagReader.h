/// @file
/// Reads tags by the table of their names.
#pragma once

#include <VyrHost/media/ExifTags.h>
#include <VyrLibraryUtils/pictures/ByteSource.h>
#include <VyrPlatform/text/CString.h>

#include <string_view>

namespace VyrHost::Media {

class ExifTagReader
{
public:
    /// `packet` is the picture's packet of XMP, where a tag that is asked for needs it. Both must outlive the reader.
    ExifTagReader(VyrLibraryUtils::Pictures::ByteSource& source, std::string_view packet)
        : m_source(source), m_packet(packet)
    {}

    /// Whether one of `tags` stands in the packet of XMP.
    [[nodiscard]] static bool AsksForXmp(const ExifTagSet& tags);
    /// The text of `tag`; empty where the picture lacks it.
    [[nodiscard]] CString Read(ExifTag tag);

private:
    VyrLibraryUtils::Pictures::ByteSource& m_source;
    std::string_view m_packet;
};

} // namespace VyrHost::Media
