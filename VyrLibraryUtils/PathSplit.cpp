#include <VyrLibraryUtils/PathSplit.h>
#include <VyrPlatform/files/FileSystem.h>

namespace VyrLibraryUtils {

namespace {

using VyrPlatform::FileSystem::IsSeparator;

bool StartsWithDrive(std::u16string_view path) noexcept
{
    // Lower-casing an ASCII letter is setting one bit.
    return path.size() >= 2 && path[1] == u':' && (path[0] | 0x20) >= u'a' && (path[0] | 0x20) <= u'z';
}

bool IsWindowsStyle(std::u16string_view path) noexcept
{
    if (IsSeparator(u'\\') || path.starts_with(u"\\\\"))
        return true;
    return path.size() >= 3 && StartsWithDrive(path) && (path[2] == u'\\' || path[2] == u'/');
}

} // namespace

PathSplit::PathSplit(std::u16string_view path) noexcept
    : m_path(path), m_isWindowsStyle(IsWindowsStyle(path)), m_name(FindName()), m_extension(FindExtension())
{}

std::size_t PathSplit::FindName() const noexcept
{
    std::size_t at = m_path.size();
    while (at > 0 && !IsSeparator(m_path[at - 1]))
        --at;
    return at == 0 && m_isWindowsStyle && StartsWithDrive(m_path) ? 2 : at;
}

std::size_t PathSplit::FindExtension() const noexcept
{
    const std::size_t dot = m_path.rfind(u'.');
    const std::size_t start = m_path.find_first_not_of(u'.', m_name);
    return dot == m_path.npos || dot < start ? m_path.size() : dot;
}

std::size_t PathSplit::SkipSeparators(std::size_t at) const noexcept
{
    while (at < m_path.size() && IsSeparator(m_path[at]))
        ++at;
    return at;
}

std::size_t PathSplit::SkipComponent(std::size_t at) const noexcept
{
    while (at < m_path.size() && !IsSeparator(m_path[at]))
        ++at;
    return SkipSeparators(at);
}

std::size_t PathSplit::EndOfShare() const noexcept
{
    // \\?\C:\, \\?\Volume{...}\, \\?\UNC\server\share\, \\.\device\ or \\server\share\.
    const bool isDevice = m_path.size() >= 4 && (m_path[2] == u'?' || m_path[2] == u'.') && IsSeparator(m_path[3]);
    if (!isDevice)
        return SkipComponent(SkipComponent(2));
    const std::size_t end = SkipComponent(4);
    const std::u16string_view device = m_path.substr(4, end - 4);
    const bool isShare = device.starts_with(u"UNC") && device.size() > 3 && IsSeparator(device[3]);
    return isShare ? SkipComponent(SkipComponent(end)) : end;
}

std::u16string_view PathSplit::Root() const noexcept
{
    std::size_t end = SkipSeparators(0);
    if (m_isWindowsStyle && end >= 2)
        end = EndOfShare();
    else if (m_isWindowsStyle && StartsWithDrive(m_path))
        end = SkipSeparators(2);
    return m_path.substr(0, end);
}

char16_t PathSplit::Separator() const noexcept
{
    for (std::size_t at = m_path.size(); at > 0; --at)
        if (IsSeparator(m_path[at - 1]))
            return m_path[at - 1];
    return m_isWindowsStyle ? u'\\' : u'/';
}

} // namespace VyrLibraryUtils
