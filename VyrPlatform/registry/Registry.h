/// @file
/// The registry: a tree of keys, each with values.
///
/// On Windows it is the system's. On Linux a root key shows what the host has opened for it (LinuxRegistry.h,
/// RegistryFiles.h), and is empty before; below an empty root key operations return Error::notFound.
///
/// A path names keys below another key, separated by backslashes, without regard to case; a backslash at its end is
/// ignored. The empty path is the key itself. A path or a name ends at its first NUL.
#pragma once

#include <VyrPlatform/Export.h>
#include <VyrPlatform/files/FileTimes.h>
#include <VyrPlatform/text/CString.h>

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

struct HKEY__; // NOLINT(bugprone-reserved-identifier): the system's own tag

namespace VyrPlatform::Registry {

/// A root key (see WinTypes.h) or an open key.
using Handle = HKEY__*;

/// The error codes that callers distinguish, with Windows' numbers on both systems. Other codes are possible.
namespace Error {
inline constexpr std::uint32_t none = 0;
inline constexpr std::uint32_t notFound = 2;
inline constexpr std::uint32_t accessDenied = 5;
inline constexpr std::uint32_t invalidHandle = 6;
inline constexpr std::uint32_t notSupported = 50;
inline constexpr std::uint32_t invalidParameter = 87;
inline constexpr std::uint32_t badPathName = 161;
/// The buffer is too small.
inline constexpr std::uint32_t moreData = 234;
/// There is no item at this index.
inline constexpr std::uint32_t noMoreItems = 259;
/// The key was deleted after it had been opened.
inline constexpr std::uint32_t keyDeleted = 1018;
} // namespace Error

/// The types of values.
namespace ValueType {
inline constexpr std::uint32_t none = 0;
inline constexpr std::uint32_t text = 1;
/// A text with names of environment variables in percent signs.
inline constexpr std::uint32_t expandableText = 2;
inline constexpr std::uint32_t binary = 3;
/// Four bytes, the lowest first.
inline constexpr std::uint32_t number = 4;
inline constexpr std::uint32_t link = 6;
inline constexpr std::uint32_t texts = 7;
} // namespace ValueType

enum class Access : std::uint8_t
{
    Read,
    ReadWrite
};

/// An open key, which closes itself.
class VYR_PLATFORM_API Key
{
public:
    /// No key.
    Key() noexcept = default;
    Key(Key&& other) noexcept;
    Key& operator=(Key&& other) noexcept;
    ~Key();

    /// Opens the key at `path` below `parent`.
    [[nodiscard]] static Key Open(Handle parent, const CString& path, Access access);
    /// Opens the key at `path` below `parent` for reading and writing. A missing key is created, with those above it,
    /// and is kept when the system restarts.
    [[nodiscard]] static Key Create(Handle parent, const CString& path);

    [[nodiscard]] bool IsOpen() const noexcept { return m_handle != nullptr; }
    /// Valid as long as this object lives; a null pointer when it is not open.
    [[nodiscard]] Handle Get() const noexcept { return m_handle; }
    /// The reason why it is not open; Error::none for an open key and for no key.
    [[nodiscard]] std::uint32_t GetError() const noexcept { return m_error; }

private:
    Key(Handle handle, std::uint32_t error) noexcept : m_handle(handle), m_error(error) {}

    Handle m_handle = nullptr;
    std::uint32_t m_error = Error::none;
};

struct NameAtIndex
{
    std::uint32_t error = Error::none;
    /// Empty when there is an error.
    CString name;
};

/// The name of the key at `index` (from 0) directly below `key`. Keys are in the order of their upper-cased names.
/// Enumerating all of them upward takes linear time.
/// @param capacity the length of the name's buffer in code units, including the NUL: a longer name gives
/// Error::moreData.
[[nodiscard]] VYR_PLATFORM_API NameAtIndex EnumerateKey(Handle key, std::uint32_t index, std::uint32_t capacity);
/// The name of the value at `index` of `key`, in no particular order. The default value has an empty name.
[[nodiscard]] VYR_PLATFORM_API NameAtIndex EnumerateValue(Handle key, std::uint32_t index, std::uint32_t capacity);

struct ReadResult
{
    std::uint32_t error = Error::none;
    /// See ValueType; also set with Error::moreData, as is the count.
    std::uint32_t type = ValueType::none;
    /// The size of the value in bytes.
    std::uint32_t byteCount = 0;
};

/// Reads the value `name` (empty: the default value) of `key` into `buffer`. The bytes of `buffer` after the value may
/// change.
/// @param buffer at least one byte.
/// @return Error::moreData when the value does not fit: `buffer` then has unspecified content.
[[nodiscard]] VYR_PLATFORM_API ReadResult ReadValue(Handle key, const CString& name, std::span<std::byte> buffer);

/// The text that the value `name` refers to: `@FILE,-NUMBER` is a text in the resources of a program file.
/// @param capacity as of EnumerateKey.
/// @return nothing for any other text, and always on Linux, where such files are not loaded.
[[nodiscard]] VYR_PLATFORM_API std::optional<CString> LoadIndirectText(Handle key, const CString& name,
                                                                       std::uint32_t capacity);

/// The time when `key` was last written; nothing when it is unknown.
[[nodiscard]] VYR_PLATFORM_API std::optional<FileTicks> GetLastWrite(Handle key);

/// Sets the value `name` of `key` to a number.
/// @return Error::none when it was set.
[[nodiscard]] VYR_PLATFORM_API std::uint32_t SetNumber(Handle key, const CString& name, std::uint32_t number);
/// Deletes the value `name` of `key`.
/// @return Error::none when it was deleted.
[[nodiscard]] VYR_PLATFORM_API std::uint32_t RemoveValue(Handle key, const CString& name);
/// Deletes the key at `path` below `parent`, with all keys below it.
/// @param path not empty.
/// @return Error::none when it was deleted.
[[nodiscard]] VYR_PLATFORM_API std::uint32_t RemoveTree(Handle parent, const CString& path);

} // namespace VyrPlatform::Registry
