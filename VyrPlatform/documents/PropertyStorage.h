/// @file
/// Writes the properties of documents: by the system's structured storage, and by handlers for other kinds.
///
/// On Windows the calling thread must have COM initialised. When a write returns, the document itself is changed.
///
/// On Linux a new document is written beside the old one, flushed, read back and compared with the old one. Then it
/// replaces the old one, with the same owner, mode, times and extended attributes; after any failure either the old or
/// the new document is complete at the path. A document that another program has open for writing or has locked is
/// refused, and so is one with several hard links, since its other names would keep the old document.
#pragma once

#include <VyrPlatform/Export.h>
#include <VyrPlatform/text/CString.h>

#include <cstdint>
#include <span>

// The system's own tags. On Linux the two interfaces are private to the library.
// NOLINTBEGIN(bugprone-reserved-identifier)
struct _GUID;
struct tagPROPVARIANT;
struct IPropertySetStorage;
struct IPropertyStorage;
// NOLINTEND(bugprone-reserved-identifier)

namespace VyrPlatform::PropertyStorage {

/// The system's result codes; those with the highest bit set are failures. Other codes are possible.
namespace Result {
inline constexpr std::uint32_t ok = 0;
inline constexpr std::uint32_t notSupported = 0x80004001;
inline constexpr std::uint32_t noInterface = 0x80004002;
inline constexpr std::uint32_t fileNotFound = 0x80030002;
inline constexpr std::uint32_t accessDenied = 0x80030005;
inline constexpr std::uint32_t writeFault = 0x8003001D;
/// Another program has the document open.
inline constexpr std::uint32_t shareViolation = 0x80030020;
/// Another program has locked the document.
inline constexpr std::uint32_t lockViolation = 0x80030021;
inline constexpr std::uint32_t invalidParameter = 0x80030057;
inline constexpr std::uint32_t mediumFull = 0x80030070;
inline constexpr std::uint32_t damaged = 0x80030109;
inline constexpr std::uint32_t classNotRegistered = 0x80040154;
/// The document has several hard links (on Linux).
inline constexpr std::uint32_t tooManyLinks = 0x80070476;
} // namespace Result

[[nodiscard]] constexpr bool IsFailure(std::uint32_t result) noexcept
{
    return (result & 0x80000000) != 0;
}

/// The property sets of documents, with the ids of their formats.
enum class StandardSet : std::uint8_t
{
    /// {F29F85E0-4FF9-1068-AB91-08002B27B3D9}: title, subject, author and the like.
    Summary,
    /// {D5CDD502-2E9C-101B-9397-08002B2CF9AE}: category, manager, company and the like.
    DocumentSummary
};

/// A document that is opened for its property sets; the destructor closes it.
class VYR_PLATFORM_API Document
{
public:
    /// Opens the compound document at `path` for reading and writing, exclusively.
    [[nodiscard]] static Document OpenCompound(const CString& path);
    /// Opens the document at `path` by the handler with this class id, which runs in this process. Linux has two of its
    /// own: one with the id under which Windows registers Office Open XML's handler, and one with the id that
    /// OpenDocument's best-known program registers for its handler.
    [[nodiscard]] static Document OpenByHandler(const CString& path, const _GUID& handler);

    Document(Document&& other) noexcept;
    Document& operator=(Document&& other) noexcept;
    ~Document();

    [[nodiscard]] bool IsOpen() const noexcept { return m_storage != nullptr; }
    /// The reason why it is not open; Result::ok when it is.
    [[nodiscard]] std::uint32_t GetError() const noexcept { return m_error; }
    /// Valid as long as this object lives; a null pointer when it is not open.
    [[nodiscard]] IPropertySetStorage* Get() const noexcept { return m_storage; }

private:
    Document(IPropertySetStorage* storage, std::uint32_t error) noexcept : m_storage(storage), m_error(error) {}

    IPropertySetStorage* m_storage;
    std::uint32_t m_error;
};

/// A property and its new value: VT_EMPTY removes it.
struct PropertyWrite
{
    std::uint32_t id;
    const tagPROPVARIANT* value;
};

/// A property set that is open for writing; the destructor closes it.
class VYR_PLATFORM_API PropertySet
{
public:
    /// Opens a set of `storage`, which must outlive it.
    [[nodiscard]] static PropertySet Open(IPropertySetStorage* storage, StandardSet set);

    PropertySet(PropertySet&& other) noexcept;
    PropertySet& operator=(PropertySet&& other) noexcept;
    ~PropertySet();

    [[nodiscard]] bool IsOpen() const noexcept { return m_properties != nullptr; }
    [[nodiscard]] std::uint32_t GetError() const noexcept { return m_error; }

    /// Writes all of `properties`, or none where the system supports that.
    ///
    /// A byte text (VT_LPSTR) is in the process's ANSI code page and is converted to that of the set; on Linux to a
    /// UTF-16 text where the set's code page lacks a character. The ids 0, 1 and those from 0x80000000 on are not
    /// properties of a document and are refused; the id 0xFFFFFFFF is ignored.
    /// @return a result code; Result::invalidParameter for a null value.
    [[nodiscard]] std::uint32_t Write(std::span<const PropertyWrite> properties) const;

private:
    PropertySet(IPropertyStorage* properties, std::uint32_t error) noexcept : m_properties(properties), m_error(error)
    {}

    IPropertyStorage* m_properties;
    std::uint32_t m_error;
};

/// Reads a class id: a number in braces, or the name of a program whose id is in the registry below HKEY_CLASSES_ROOT.
/// @return whether `id` was set.
[[nodiscard]] VYR_PLATFORM_API bool ReadClassId(const CString& text, _GUID& id);

} // namespace VyrPlatform::PropertyStorage
