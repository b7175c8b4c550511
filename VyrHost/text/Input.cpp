#include <VyrHost/text/Input.h>

#include <VyrHost/text/Errors.h>
#include <VyrHost/text/SafeText.h>
#include <VyrHostPlatform/Console.h>
#include <VyrHostPlatform/ReadToEnd.h>
#include <VyrPlatform/files/FileSystem.h>
#include <VyrPlatform/text/Encoding.h>

#include <string>
#include <utility>

namespace VyrHost::Text {

void ReadStandardInput(const std::function<void(std::string_view piece)>& use)
{
    std::uint32_t error = 0;
    for (std::string piece = VyrHostPlatform::Console::ReadInput(error); !piece.empty();
         piece = VyrHostPlatform::Console::ReadInput(error))
        use(piece);
    if (error != 0)
        throw UsageError("cannot read the standard input: " + SafeText(ErrorText(error)));
}

std::string ReadInputFile(const CString& path)
{
    std::string bytes;
    if (path == u"-") {
        ReadStandardInput([&bytes](std::string_view piece) { bytes += piece; });
        return bytes;
    }
    std::uint32_t error = 0;
    auto content = VyrHostPlatform::ReadToEnd(path, error);
    if (!content)
        throw UsageError("cannot read '" + SafeText(path) + "': " + SafeText(ErrorText(error)));
    return std::move(*content);
}

CString NameReader::Name() const
{
    std::string_view bytes = m_isFirst && m_end == '\n' ? Text::SkipByteOrderMark(m_pending) : m_pending;
    // Where a backslash is a separator, names cannot contain control characters.
    if (m_end == '\n' && bytes.ends_with('\r') && VyrPlatform::FileSystem::IsSeparator(u'\\'))
        bytes.remove_suffix(1);
    return VyrPlatform::Encoding::FromNameBytes(bytes);
}

} // namespace VyrHost::Text
