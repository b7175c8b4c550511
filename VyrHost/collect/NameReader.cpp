// Makes names of bytes from the standard input.
#include <VyrHost/collect/NameReader.h>

#include <VyrHost/text/ByteOrderMark.h>
#include <VyrPlatform/files/FileSystem.h>
#include <VyrPlatform/text/Encoding.h>

namespace VyrHost::Collect {

CString NameReader::Name() const
{
    std::string_view bytes = m_isFirst && m_end == '\n' ? Text::SkipByteOrderMark(m_pending) : m_pending;
    // Where a backslash separates, no name holds a control character.
    if (m_end == '\n' && bytes.ends_with('\r') && VyrPlatform::FileSystem::IsSeparator(u'\\'))
        bytes.remove_suffix(1);
    return VyrPlatform::Encoding::FromNameBytes(bytes);
}

} // namespace VyrHost::Collect
