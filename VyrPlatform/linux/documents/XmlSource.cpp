#include "XmlSource.h"

#include "AddressContent.h"

#include <VyrPlatform/files/FileReader.h>
#include <VyrPlatform/text/Encoding.h>

#include <utility>

namespace VyrPlatform {

namespace {

bool HasScheme(const CString& address, std::u16string_view scheme)
{
    return address.Left(static_cast<int>(scheme.size())).CompareNoCase(scheme) == 0;
}

std::optional<XmlBytes> OpenFile(const CString& path)
{
    const auto file = std::make_shared<FileReader>(path);
    if (!file->IsOpen())
        return std::nullopt;
    return [file, offset = std::uint64_t{0}](std::span<char> buffer) mutable {
        const std::size_t count = file->ReadAt(offset, std::as_writable_bytes(buffer));
        offset += count;
        return static_cast<int>(count);
    };
}

} // namespace

std::optional<XmlBytes> OpenXmlSource(const CString& pathOrAddress)
{
    if (HasScheme(pathOrAddress, u"file:")) {
        const std::optional<std::string> path = PathOfFileAddress(Encoding::ToUtf8(pathOrAddress));
        return path ? OpenFile(Encoding::FromNameBytes(*path)) : std::nullopt;
    }
    if (!HasScheme(pathOrAddress, u"http:") && !HasScheme(pathOrAddress, u"https:"))
        return OpenFile(pathOrAddress);
    std::optional<std::string> content = FetchContent(Encoding::ToUtf8(pathOrAddress));
    if (!content)
        return std::nullopt;
    return [bytes = std::move(*content), offset = std::size_t{0}](std::span<char> buffer) mutable {
        const std::size_t count = bytes.copy(buffer.data(), buffer.size(), offset);
        offset += count;
        return static_cast<int>(count);
    };
}

} // namespace VyrPlatform
