// Reads the thumbnails of pictures, and addresses pictures that have none.
#include <VyrHost/reports/Thumbnail.h>

#include <VyrHost/reports/HtmlText.h>
#include <VyrLibraryUtils/pictures/Picture.h>
#include <VyrPlatform/files/FileReader.h>
#include <VyrPlatform/files/FileSystem.h>
#include <VyrPlatform/files/FullPath.h>
#include <VyrPlatform/text/Encoding.h>

#include <algorithm>
#include <array>
#include <span>
#include <string_view>
#include <vector>

namespace VyrHost::Reports {

namespace {

namespace Pictures = VyrLibraryUtils::Pictures;

/// RFC 4648, section 4.
std::string Base64(std::string_view bytes)
{
    constexpr std::string_view digits = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    std::string text;
    text.reserve((bytes.size() + 2) / 3 * 4);
    for (std::size_t at = 0; at < bytes.size(); at += 3) {
        const std::string_view group = bytes.substr(at, 3);
        std::uint32_t bits = 0;
        for (std::size_t byte = 0; byte < 3; ++byte)
            bits = bits << 8 | (byte < group.size() ? static_cast<unsigned char>(group[byte]) : 0U);
        for (std::size_t digit = 0; digit < 4; ++digit)
            text += digit <= group.size() ? digits[bits >> (18 - 6 * digit) & 0x3F] : '=';
    }
    return text;
}

int OrientationOf(Pictures::ByteSource& source)
{
    const std::string digit = Pictures::ReadPicture(source, Pictures::PictureTag::Orientation);
    return digit.size() == 1 && digit[0] >= '2' && digit[0] <= '8' ? digit[0] - '0' : 1;
}

std::vector<std::u16string_view> PartsOf(std::u16string_view path)
{
    std::vector<std::u16string_view> parts;
    while (!path.empty()) {
        const auto end = std::find_if(path.begin(), path.end(), VyrPlatform::FileSystem::IsSeparator);
        const auto length = static_cast<std::size_t>(end - path.begin());
        parts.push_back(path.substr(0, length));
        path.remove_prefix(std::min(length + 1, path.size()));
    }
    return parts;
}

/// The picture itself.
std::optional<Thumbnail> LinkedPicture(Pictures::ByteSource& source, const CString& path, const CString& reportFolder)
{
    const auto size = Pictures::ReadPictureSize(source);
    if (!size)
        return std::nullopt;
    std::optional<std::string> address =
        RelativeAddress(VyrPlatform::GetRealPath(path), VyrPlatform::GetRealPath(reportFolder));
    if (!address)
        return std::nullopt;
    // Browsers rotate it by its own tags.
    return Thumbnail{std::move(*address), *size};
}

} // namespace

std::optional<Thumbnail> ThumbnailOf(const CString& path, const CString& reportFolder)
{
    std::array<char, Pictures::FileSource::beginningSize> beginning;
    const VyrPlatform::FileReader file(path, std::as_writable_bytes(std::span(beginning)));
    Pictures::FileSource source(file, std::string_view(beginning.data(), file.BeginningSize()));
    const std::string embedded = Pictures::ReadPicture(source, Pictures::PictureTag::Thumbnail);
    const auto size = Pictures::ReadPictureSizeOf(embedded);
    if (!size)
        return LinkedPicture(source, path, reportFolder);
    return Thumbnail{"data:image/jpeg;base64," + Base64(embedded), *size, OrientationOf(source)};
}

std::optional<std::string> RelativeAddress(const CString& path, const CString& folder)
{
    const std::vector<std::u16string_view> to = PartsOf(path);
    const std::vector<std::u16string_view> from = PartsOf(folder);
    const auto [firstTo, firstFrom] = std::mismatch(to.begin(), to.end(), from.begin(), from.end());
    // The first part is the drive, or nothing.
    if (firstTo == to.begin() || firstTo == to.end())
        return std::nullopt;
    std::string address = ".";
    for (auto step = firstFrom; step != from.end(); ++step)
        address += "/..";
    for (auto part = firstTo; part != to.end(); ++part)
        address.append("/").append(PercentEncoded(VyrPlatform::Encoding::ToNameBytes(*part)));
    return address;
}

} // namespace VyrHost::Reports
