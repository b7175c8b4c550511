// Reads and writes attributes and creation times in extended attributes, in the order in which one takes precedence.
#include "ExtendedAttributes.h"

#include "DosAttribute.h"

#include <array>
#include <cerrno>
#include <cstddef>
#include <span>
#include <sys/xattr.h>
#include <vector>

namespace VyrPlatform::ExtendedAttributes {

namespace {

constexpr const char* SambaName = "user.DOSATTRIB";
constexpr const char* NtfsCreatedName = "system.ntfs_crtime_be";

/// The value of one extended attribute; longer than any that is read here, so that a longer one is none of them.
class Value
{
public:
    Value(const NativePath& path, const char* name) noexcept
        : m_size(getxattr(path.Get(), name, m_bytes.data(), m_bytes.size()))
    {}

    [[nodiscard]] std::span<const std::byte> Bytes() const noexcept
    {
        return {m_bytes.data(), m_size > 0 ? static_cast<std::size_t>(m_size) : 0};
    }
    /// Whether this file system has no attributes of this family at all.
    [[nodiscard]] bool IsUnsupported() const noexcept { return m_size < 0 && errno == ENOTSUP; }

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
};

std::optional<FileTicks> ToSetTime(std::optional<std::uint64_t> number) noexcept
{
    return number.value_or(0) != 0 ? std::optional(static_cast<FileTicks>(*number)) : std::nullopt;
}

} // namespace

std::optional<std::uint32_t> GetAttributes(const NativePath& path)
{
    if (const DosAttribute samba = ParseDosAttribute(Value(path, SambaName).Bytes()); samba.attributes)
        return samba.attributes;
    const Value ntfs(path, "system.ntfs_attrib_be");
    if (const auto attributes = ntfs.BigEndian(sizeof(std::uint32_t)))
        return static_cast<std::uint32_t>(*attributes);
    return std::nullopt;
}

std::optional<FileTicks> GetSambaCreated(const NativePath& path)
{
    return ParseDosAttribute(Value(path, SambaName).Bytes()).created;
}

std::optional<FileTicks> GetNtfsCreated(const NativePath& path)
{
    const Value creationTime(path, NtfsCreatedName);
    if (creationTime.IsUnsupported())
        return std::nullopt;
    if (const auto created = ToSetTime(creationTime.BigEndian(sizeof(FileTicks))))
        return created;
    // The creation time is the first of its times.
    return ToSetTime(Value(path, "system.ntfs_times_be").BigEndian(sizeof(FileTicks)));
}

int SetSambaCreated(const NativePath& path, FileTicks created)
{
    const std::vector<std::byte> value = WithCreated(Value(path, SambaName).Bytes(), created);
    if (value.empty())
        return EINVAL;
    return setxattr(path.Get(), SambaName, value.data(), value.size(), 0) == 0 ? 0 : errno;
}

int SetNtfsCreated(const NativePath& path, FileTicks created)
{
    std::array<std::byte, sizeof(FileTicks)> value;
    for (std::size_t index = 0; index < value.size(); ++index)
        value[index] = static_cast<std::byte>(created >> 8 * (value.size() - 1 - index));
    return setxattr(path.Get(), NtfsCreatedName, value.data(), value.size(), 0) == 0 ? 0 : errno;
}

} // namespace VyrPlatform::ExtendedAttributes
