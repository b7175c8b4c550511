#include "PropertyHandler.h"

#include <VyrPlatform/text/WindowsCString.h>

#include <objbase.h>

namespace VyrPlatform {

namespace {

// The import library may lack them.
constexpr GUID propertySetStorageId{0x0000013A, 0, 0, {0xC0, 0, 0, 0, 0, 0, 0, 0x46}};
constexpr GUID persistFileId{0x0000010B, 0, 0, {0xC0, 0, 0, 0, 0, 0, 0, 0x46}};

} // namespace

HRESULT AskForSets(IUnknown* object, IPropertySetStorage*& storage) noexcept
{
    void* asked = nullptr;
    const HRESULT result = object->QueryInterface(propertySetStorageId, &asked);
    storage = SUCCEEDED(result) ? static_cast<IPropertySetStorage*>(asked) : nullptr;
    return result;
}

HRESULT LoadByHandler(const CString& path, const GUID& handler, DWORD mode, IPropertySetStorage*& storage) noexcept
{
    storage = nullptr;
    void* created = nullptr;
    HRESULT result = ::CoCreateInstance(handler, nullptr, CLSCTX_INPROC_SERVER, persistFileId, &created);
    if (FAILED(result))
        return result;
    auto* const file = static_cast<IPersistFile*>(created);
    result = file->Load(ToWide(path), mode);
    if (SUCCEEDED(result))
        result = AskForSets(file, storage);
    file->Release();
    return result;
}

} // namespace VyrPlatform
