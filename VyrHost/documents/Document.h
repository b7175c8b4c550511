/// @file
/// What documents tell of themselves, for whoever lists them, changes them or makes names of them.
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

/// A property as people name it.
struct PropertyName
{
    /// In lower camel case.
    const char16_t* name;
    /// Of the summary information.
    std::uint32_t id;
    PropertyKind kind;
};

/// Those that can be cleared, and set unless they are pictures, in the order in which they are shown.
[[nodiscard]] std::span<const PropertyName> PropertyNames();

/// The property that is called `name`, without regard to case; null where there is none.
[[nodiscard]] const PropertyName* FindProperty(std::u16string_view name);

/// A document that was read.
struct Document
{
    VyrPlatform::DocumentProperties properties;
    /// It is of a kind whose properties are known.
    bool isDocument = false;
    /// Why it could not be read, for people; empty when it was.
    CString problem;
};

/// Reads the document at `path`, whose kind its extension tells unless it is a compound document.
[[nodiscard]] Document ReadDocument(const CString& path);

/// The handler of documents with the extension of `path`: the one that the registry names, else the one that this
/// program knows; all zero where there is none.
[[nodiscard]] _GUID HandlerOf(const CString& path);

} // namespace VyrHost::Documents
