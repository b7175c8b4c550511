// Private-profile files on Linux are read and written as a whole.
#include <VyrPlatform/common/files/TemporaryPath.h>
#include <VyrPlatform/documents/PrivateProfile.h>
#include <VyrPlatform/files/FileCopy.h>
#include <VyrPlatform/files/FileReader.h>
#include <VyrPlatform/files/FileStream.h>
#include <VyrPlatform/files/FileSystem.h>

#include "ProfileText.h"

#include <cerrno>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>

namespace VyrPlatform::PrivateProfile {

namespace {

constexpr std::uint64_t largestFile = 64 * 1024 * 1024;

/// Reads the file at `path` into `bytes`.
/// @return 0, else the system's error code.
std::uint32_t Read(const CString& path, std::string& bytes)
{
    const FileReader reader(path);
    if (!reader.IsOpen())
        return reader.Error();
    if (reader.Size() > largestFile)
        return EFBIG;
    bytes.resize(static_cast<std::size_t>(reader.Size()));
    bytes.resize(reader.ReadAt(0, std::as_writable_bytes(std::span(bytes))));
    return 0;
}

std::optional<CString> Find(const CString& path, const CString& section, const CString& key)
{
    std::string bytes;
    if (Read(path, bytes) != 0)
        return std::nullopt;
    return ProfileText(bytes).Find(section, key);
}

std::uint32_t WriteFile(const CString& path, std::string_view bytes)
{
    FileStream stream;
    std::uint32_t error = stream.Open(path, FileStream::Access::Write, FileStream::Creation::CreateEmpty, {});
    if (!error)
        error = stream.Write(std::as_bytes(std::span(bytes)));
    const std::uint32_t closingError = stream.Close();
    return error ? error : closingError;
}

/// Writes a copy of the file at `path`, which keeps its mode and attributes, and replaces the file by it.
std::uint32_t ReplaceFile(const CString& path, std::string_view bytes)
{
    const CString temporary = MakeTemporaryPath(path);
    std::uint32_t error = FileCopy::Copy(path, temporary);
    if (!error)
        error = WriteFile(temporary, bytes);
    if (!error)
        error = FileCopy::Move(temporary, path);
    if (error)
        static_cast<void>(FileSystem::RemoveFile(temporary));
    return error;
}

int DigitOf(char16_t unit) noexcept
{
    if (unit >= u'0' && unit <= u'9')
        return unit - u'0';
    if (unit >= u'a' && unit <= u'f')
        return unit - u'a' + 10;
    return unit >= u'A' && unit <= u'F' ? unit - u'A' + 10 : 16;
}

/// Removes the prefix of a base from `text`, and returns the base.
int TakeBase(std::u16string_view& text) noexcept
{
    using namespace std::string_view_literals;
    for (const auto& [prefix, base] : {std::pair(u"0x"sv, 16), std::pair(u"0o"sv, 8), std::pair(u"0b"sv, 2)})
        if (text.starts_with(prefix)) {
            text.remove_prefix(prefix.size());
            return base;
        }
    return 10;
}

std::int32_t ToNumber(std::u16string_view text) noexcept
{
    while (!text.empty() && text.front() <= u' ')
        text.remove_prefix(1);
    const bool isNegative = text.starts_with(u'-');
    if (isNegative || text.starts_with(u'+'))
        text.remove_prefix(1);
    const int base = TakeBase(text);
    std::uint32_t number = 0;
    for (const char16_t unit : text) {
        const int digit = DigitOf(unit);
        if (digit >= base)
            break;
        number = number * static_cast<std::uint32_t>(base) + static_cast<std::uint32_t>(digit);
    }
    return static_cast<std::int32_t>(isNegative ? 0 - number : number);
}

} // namespace

CString ReadText(const CString& path, const CString& section, const CString& key, int capacity)
{
    return Find(path, section, key).value_or(CString()).Left(capacity - 1);
}

std::int32_t ReadInteger(const CString& path, const CString& section, const CString& key, std::int32_t defaultNumber)
{
    const std::optional<CString> value = Find(path, section, key);
    return value && !value->IsEmpty() ? ToNumber(*value) : defaultNumber;
}

std::uint32_t WriteText(const CString& path, const CString& section, const CString& key, const CString& value)
{
    std::string bytes;
    const std::uint32_t error = Read(path, bytes);
    if (error && error != ENOENT)
        return error;
    ProfileText text(bytes);
    if (!text.Set(section, key, value))
        return 0;
    return error ? WriteFile(path, text.ToBytes()) : ReplaceFile(path, text.ToBytes());
}

} // namespace VyrPlatform::PrivateProfile
