/// @file
/// The properties of documents, for lists, changes and names.
#pragma once

#include <VyrPlatform/documents/DocumentProperties.h>
#include <VyrPlatform/text/CString.h>

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

struct _GUID; // NOLINT(bugprone-reserved-identifier): the system's own tag

namespace VyrHost::Documents {

enum class PropertyKind : std::uint8_t
{
    Text,
    Time,
    Picture
};

/// A property and its name.
struct PropertyName
{
    /// In lower camel case.
    const char16_t* name;
    /// Its id in the summary information.
    std::uint32_t id;
    PropertyKind kind;
};

/// The properties that can be cleared (and set, unless they are pictures), in the order of display.
[[nodiscard]] std::span<const PropertyName> PropertyNames();

/// The property that is called `name`, without regard to case; null where there is none.
[[nodiscard]] const PropertyName* FindProperty(std::u16string_view name);

/// The result of reading a document.
struct Document
{
    VyrPlatform::DocumentProperties properties;
    /// Whether it is of a known kind.
    bool isDocument = false;
    /// The reason why it could not be read, for people; else empty.
    CString problem;
};

/// Reads the document at `path`. The extension tells its kind, unless it is a compound document.
[[nodiscard]] Document ReadDocument(const CString& path);

/// The handler for the extension of `path`: the one in the registry, else the one that this program knows; all zero if
/// there is none.
[[nodiscard]] _GUID HandlerOf(const CString& path);

} // namespace VyrHost::Documents
