// Property sets by structured storage, and by the handlers that the registry names.
#include <VyrPlatform/documents/PropertyStorage.h>

#include "PropertyHandler.h"

#include <VyrPlatform/WinTypes.h>
#include <VyrPlatform/text/WindowsCString.h>

#include <utility>
#include <vector>
#include <windows.h>

#include <objbase.h>
#include <propidl.h>

namespace VyrPlatform::PropertyStorage {

namespace {

static_assert(Result::damaged == static_cast<std::uint32_t>(STG_E_DOCFILECORRUPT) &&
              Result::shareViolation == static_cast<std::uint32_t>(STG_E_SHAREVIOLATION) &&
              Result::lockViolation == static_cast<std::uint32_t>(STG_E_LOCKVIOLATION) &&
              Result::invalidParameter == static_cast<std::uint32_t>(STG_E_INVALIDPARAMETER) &&
              Result::classNotRegistered == static_cast<std::uint32_t>(REGDB_E_CLASSNOTREG));

constexpr DWORD exclusive = STGM_READWRITE | STGM_SHARE_EXCLUSIVE;
constexpr GUID summaryFormat{0xF29F85E0, 0x4FF9, 0x1068, {0xAB, 0x91, 0x08, 0x00, 0x2B, 0x27, 0xB3, 0xD9}};
constexpr GUID documentFormat{0xD5CDD502, 0x2E9C, 0x101B, {0x93, 0x97, 0x08, 0x00, 0x2B, 0x2C, 0xF9, 0xAE}};
// The import library may lack it.
constexpr GUID propertySetStorageId{0x0000013A, 0, 0, {0xC0, 0, 0, 0, 0, 0, 0, 0x46}};

std::uint32_t Code(HRESULT result) noexcept
{
    return static_cast<std::uint32_t>(result);
}

void Release(IUnknown* object) noexcept
{
    if (object)
        object->Release();
}

} // namespace

Document::Document(Document&& other) noexcept
    : m_storage(std::exchange(other.m_storage, nullptr)), m_error(other.m_error)
{}

Document& Document::operator=(Document&& other) noexcept
{
    std::swap(m_storage, other.m_storage);
    std::swap(m_error, other.m_error);
    return *this;
}

Document::~Document()
{
    Release(m_storage);
}

Document Document::OpenCompound(const CString& path)
{
    void* opened = nullptr;
    const HRESULT result =
        ::StgOpenStorageEx(ToWide(path), exclusive, STGFMT_STORAGE, 0, nullptr, nullptr, propertySetStorageId, &opened);
    if (FAILED(result))
        return {nullptr, Code(result)};
    auto* const object = static_cast<IUnknown*>(opened);
    IPropertySetStorage* storage = nullptr;
    const HRESULT asked = AskForSets(object, storage);
    object->Release();
    return {storage, Code(asked)};
}

Document Document::OpenByHandler(const CString& path, const _GUID& handler)
{
    IPropertySetStorage* storage = nullptr;
    const HRESULT result = LoadByHandler(path, handler, exclusive, storage);
    return {storage, Code(result)};
}

PropertySet::PropertySet(PropertySet&& other) noexcept
    : m_properties(std::exchange(other.m_properties, nullptr)), m_error(other.m_error)
{}

PropertySet& PropertySet::operator=(PropertySet&& other) noexcept
{
    std::swap(m_properties, other.m_properties);
    std::swap(m_error, other.m_error);
    return *this;
}

PropertySet::~PropertySet()
{
    Release(m_properties);
}

PropertySet PropertySet::Open(IPropertySetStorage* storage, StandardSet set)
{
    IPropertyStorage* properties = nullptr;
    const HRESULT result =
        storage->Open(set == StandardSet::Summary ? summaryFormat : documentFormat, exclusive, &properties);
    return SUCCEEDED(result) ? PropertySet(properties, Result::ok) : PropertySet(nullptr, Code(result));
}

std::uint32_t PropertySet::Write(std::span<const PropertyWrite> properties) const
{
    std::vector<PROPSPEC> ids;
    std::vector<PROPVARIANT> values;
    for (const PropertyWrite& property : properties) {
        if (!property.value)
            return Result::invalidParameter;
        PROPSPEC& member = ids.emplace_back();
        member.ulKind = PRSPEC_PROPID;
        member.propid = property.id;
        values.push_back(*property.value);
    }
    if (ids.empty())
        return Result::ok;
    return Code(
        m_properties->WriteMultiple(static_cast<ULONG>(ids.size()), ids.data(), values.data(), properties.front().id));
}

bool ReadClassId(const CString& text, _GUID& id)
{
    return SUCCEEDED(::CLSIDFromString(ToWide(text), &id));
}

} // namespace VyrPlatform::PropertyStorage
