// The implementation of the system's interfaces to property sets.
#pragma once

#include <VyrPlatform/documents/PropertyStorage.h>

#include <cstdint>
#include <memory>
#include <span>

/// A property set that is open for writing.
struct IPropertyStorage
{
    IPropertyStorage() = default;
    IPropertyStorage(const IPropertyStorage&) = delete;
    IPropertyStorage& operator=(const IPropertyStorage&) = delete;
    virtual ~IPropertyStorage() = default;

    /// Writes properties that can be written: none has a null value or an id that is not one of a document's
    /// properties.
    /// @return a result code.
    [[nodiscard]] virtual std::uint32_t
    Write(std::span<const VyrPlatform::PropertyStorage::PropertyWrite> properties) = 0;
};

/// An open document.
struct IPropertySetStorage
{
    IPropertySetStorage() = default;
    IPropertySetStorage(const IPropertySetStorage&) = delete;
    IPropertySetStorage& operator=(const IPropertySetStorage&) = delete;
    virtual ~IPropertySetStorage() = default;

    /// Opens a set, which refers to this document.
    /// @return a result code.
    [[nodiscard]] virtual std::uint32_t Open(VyrPlatform::PropertyStorage::StandardSet set,
                                             std::unique_ptr<IPropertyStorage>& opened) = 0;
};

namespace VyrPlatform {

/// The result code for an error code of the system; Result::ok for 0.
[[nodiscard]] std::uint32_t ToResult(int error) noexcept;

/// Opens a compound document.
/// @return a result code.
[[nodiscard]] std::uint32_t OpenCompoundDocument(const CString& path, std::unique_ptr<IPropertySetStorage>& opened);

/// Opens a document by one of the handlers of Linux.
/// @return a result code.
[[nodiscard]] std::uint32_t OpenByOwnHandler(const CString& path, const _GUID& handler,
                                             std::unique_ptr<IPropertySetStorage>& opened);

} // namespace VyrPlatform
