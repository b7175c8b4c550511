// Each value is read from the first attribute, in order of precedence, that has it.
#include "ExtendedAttributes.h"

#include "DosAttribute.h"
#include "FileStatus.h"

#include <array>
#include <cerrno>
#include <cstddef>
#include <span>
#include <string_view>
#include <sys/xattr.h>
#include <vector>

namespace VyrPlatform::ExtendedAttributes {

namespace {

/// The value of one extended attribute. The buffer is larger than any valid value here, so a longer one is not valid.
class Value
{
public:
    Value(const NativePath& path, const char* name) noexcept
        : m_size(getxattr(path.Get(), name, m_bytes.data(), m_bytes.size())), m_error(m_size < 0 ? errno : 0)
    {}

    [[nodiscard]] std::span<const std::byte> Bytes() const noexcept
    {
        return {m_bytes.data(), m_size > 0 ? static_cast<std::size_t>(m_size) : 0};
    }
    /// Whether this file system has no attributes of this namespace.
    [[nodiscard]] bool IsUnsupported() const noexcept { return m_error == ENOTSUP; }
    /// The error code where the attribute may exist but could not be read; else 0.
    [[nodiscard]] int WhyUnread() const noexcept { return m_error == ENODATA || m_error == ENOTSUP ? 0 : m_error; }
    /// Whether the user may not read the attribute, which need not exist.
    [[nodiscard]] bool IsRefused() const noexcept { return m_error == EACCES || m_error == EPERM; }

    /// The first `count` bytes as a number, most significant first; nothing when there are fewer.
    [[nodiscard]] std::optional<std::uint64_t> BigEndian(std::size_t count) const noexcept
    {
        if (Bytes().size() < count)
            return std::nullopt;
        std::uint64_t number = 0;
        for (const std::byte byte : Bytes().first(count))
            number = number << 8 | std::to_integer<std::uint64_t>(byte);
        return number;
    }

private:
    std::array<std::byte, 1024> m_bytes;
    ssize_t m_size;
    int m_error;
};

/// Whether the file at `path` may have the attribute `name`: users who may not read values may still list names.
bool MayHave(const NativePath& path, std::string_view name)
{
    constexpr std::size_t mostBytes = 64 * 1024;
    std::string names(mostBytes, '\0');
    const ssize_t size = listxattr(path.Get(), names.data(), names.size());
    if (size < 0)
        return errno != ENOTSUP;
    std::string_view rest = std::string_view(names).substr(0, static_cast<std::size_t>(size));
    while (!rest.empty()) {
        const std::size_t end = rest.find('\0');
        if (rest.substr(0, end) == name)
            return true;
        rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
    }
    return false;
}

/// The error code if Samba's attribute, read as `value`, is unknown; 0 if the file has none.
int WhyUnknown(const NativePath& path, const Value& value)
{
    return value.IsRefused() && MayHave(path, sambaName) ? value.WhyUnread() : 0;
}

std::optional<FileTicks> ToSetTime(std::optional<std::uint64_t> number) noexcept
{
    return number.value_or(0) != 0 ? std::optional(static_cast<FileTicks>(*number)) : std::nullopt;
}

int Set(const NativePath& path, const char* name, std::span<const std::byte> value) noexcept
{
    return setxattr(path.Get(), name, value.data(), value.size(), 0) == 0 ? 0 : errno;
}

/// Writes a number as bytes, most significant first.
template <class Number>
int SetBigEndian(const NativePath& path, const char* name, Number number) noexcept
{
    std::array<std::byte, sizeof(Number)> value;
    for (std::size_t index = 0; index < value.size(); ++index)
        value[index] = static_cast<std::byte>(number >> 8 * (value.size() - 1 - index));
    return Set(path, name, value);
}

/// Sets Samba's attribute to the result of `change` for its value.
template <class Change>
int ChangeSamba(const NativePath& path, Change change)
{
    const Value before(path, sambaName);
    if (const int error = before.WhyUnread())
        return error;
    const std::vector<std::byte> value = change(before.Bytes());
    return value.empty() ? EINVAL : Set(path, sambaName, value);
}

std::optional<std::uint32_t> GetNtfsAttributes(const NativePath& path)
{
    const auto attributes = Value(path, ntfsAttributesName).BigEndian(sizeof(std::uint32_t));
    return attributes ? std::optional(static_cast<std::uint32_t>(*attributes)) : std::nullopt;
}

} // namespace

Reading<std::uint32_t> GetAttributes(const NativePath& path, const struct statx& status)
{
    const Value samba(path, sambaName);
    if (const int error = WhyUnknown(path, samba))
        return {std::nullopt, error};
    if (const auto attributes = ParseDosAttribute(samba.Bytes()).attributes)
        return {attributes};
    return {MayBeNtfs(status) ? GetNtfsAttributes(path) : std::nullopt};
}

Reading<FileTicks> GetSambaCreated(const NativePath& path)
{
    const Value samba(path, sambaName);
    return {ParseDosAttribute(samba.Bytes()).created, WhyUnknown(path, samba)};
}

std::optional<FileTicks> GetNtfsCreated(const NativePath& path)
{
    const Value creationTime(path, ntfsCreatedName);
    if (creationTime.IsUnsupported())
        return std::nullopt;
    if (const auto created = ToSetTime(creationTime.BigEndian(sizeof(FileTicks))))
        return created;
    // The creation time is the first of the times.
    return ToSetTime(Value(path, "system.ntfs_times_be").BigEndian(sizeof(FileTicks)));
}

int SetSambaCreated(const NativePath& path, FileTicks created)
{
    return ChangeSamba(path, [created](std::span<const std::byte> value) { return WithCreated(value, created); });
}

int SetNtfsCreated(const NativePath& path, FileTicks created)
{
    return SetBigEndian(path, ntfsCreatedName, created);
}

int SetCreated(const NativePath& path, FileTicks created)
{
    // Samba's attribute is read first, so it is written where it exists.
    const Reading<FileTicks> samba = GetSambaCreated(path);
    if (samba.value || samba.error != 0 || SetNtfsCreated(path, created) != 0)
        return SetSambaCreated(path, created);
    return 0;
}

int SetAttributes(const NativePath& path, std::uint32_t attributes, bool isWorthKeeping)
{
    if (!ParseDosAttribute(Value(path, sambaName).Bytes()).attributes) {
        if (GetNtfsAttributes(path))
            return SetBigEndian(path, ntfsAttributesName, attributes);
        if (!isWorthKeeping)
            return 0;
    }
    return ChangeSamba(path,
                       [attributes](std::span<const std::byte> value) { return WithAttributes(value, attributes); });
}

std::optional<std::string> ReadRaw(const NativePath& path, const char* name)
{
    const Value value(path, name);
    const auto bytes = value.Bytes();
    if (bytes.empty())
        return std::nullopt;
    return std::string(reinterpret_cast<const char*>(bytes.data()), bytes.size());
}

int WriteRaw(const NativePath& path, const char* name, const std::optional<std::string>& value) noexcept
{
    const int result =
        value ? setxattr(path.Get(), name, value->data(), value->size(), 0) : removexattr(path.Get(), name);
    return result == 0 || (!value && errno == ENODATA) ? 0 : errno;
}

Snapshot::Snapshot(const NativePath& path)
{
    for (const char* const name : {sambaName, ntfsAttributesName, ntfsCreatedName}) {
        const Value value(path, name);
        if (!value.IsUnsupported() && value.WhyUnread() == 0)
            m_values.emplace_back(name, ReadRaw(path, name));
    }
}

void Snapshot::PutBack(const NativePath& path) const noexcept
{
    for (const auto& [name, value] : m_values)
        static_cast<void>(WriteRaw(path, name, value));
}

} // namespace VyrPlatform::ExtendedAttributes
