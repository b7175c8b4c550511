// Makes names of bytes from the standard input.
#include <VyrHost/entries/NameReader.h>

#include <VyrHost/entries/Utf8Mark.h>
#include <VyrPlatform/files/FileSystem.h>
#include <VyrPlatform/text/Encoding.h>

namespace VyrHost {

CString NameReader::Name() const
{
    std::string_view bytes = m_isFirst && m_end == '\n' ? BehindUtf8Mark(m_pending) : m_pending;
    // Where a backslash separates, no name holds a control character.
    if (m_end == '\n' && bytes.ends_with('\r') && VyrPlatform::FileSystem::IsSeparator(u'\\'))
        bytes.remove_suffix(1);
    return VyrPlatform::Encoding::FromNameBytes(bytes);
}

} // namespace VyrHost
