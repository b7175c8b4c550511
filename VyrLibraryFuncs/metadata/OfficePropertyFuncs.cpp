#include <VyrLibraryFuncs/metadata/OfficePropertyFuncs.h>

#include <VyrLibraryUtils/PropertyUtils.h>
#include <VyrPlatform/documents/PropertyStorage.h>
#include <VyrPlatform/process/DebugOutput.h>
#include <VyrPlatform/process/MessageQueue.h>
#include <VyrPlatform/registry/RegistryValue.h>

#include <optional>

using VyrLibraryUtils::PropertyUtils;
namespace PropertyStorage = VyrPlatform::PropertyStorage;
namespace Registry = VyrPlatform::Registry;
using Registry::Access;
using Registry::Key;

namespace VyrLibraryFuncs {

namespace {

/// Handles one pending event; a requested stop has no effect here.
void HandleOneEvent()
{
    static_cast<void>(VyrPlatform::MessageQueue::DrainOne());
}

/// The class id in the default value of the key at `path`.
std::optional<GUID> ReadHandler(const CString& path)
{
    const Key found = Key::Open(HKEY_CLASSES_ROOT, path, Access::Read);
    if (!found.IsOpen())
        return std::nullopt;
    const Key key = Key::Open(found.Get(), CString(), Access::Read);
    const std::optional<CString> text = key.IsOpen() ? Registry::ReadText(key.Get(), CString()) : std::nullopt;
    GUID handler{};
    if (!text || !PropertyStorage::ReadClassId(*text, handler))
        return std::nullopt;
    return handler;
}

} // namespace

OfficePropertyFuncs::OfficePropertyFuncs() = default;
OfficePropertyFuncs::~OfficePropertyFuncs() = default;
OfficePropertyFuncs& OfficePropertyFuncs::operator=(const OfficePropertyFuncs&) = default;

std::vector<OfficePropertyFuncs::CLSID_ITEM>
OfficePropertyFuncs::GetClassIdItemList(std::vector<std::pair<CString, int>> extensions)
{
    std::vector<CLSID_ITEM> items;
    for (const auto& [extension, flag] : extensions) {
        HandleOneEvent();
        if (flag == 0)
            items.push_back({extension, GUID{}, 0});
        else if (const std::optional<GUID> handler = ReadHandler(GetPropertyHandlerRegKey(extension)))
            items.push_back({extension, *handler, flag});
    }
    return items;
}

GUID OfficePropertyFuncs::GetClassId(CString extension, std::vector<CLSID_ITEM> items)
{
    for (const CLSID_ITEM& item : items) {
        HandleOneEvent();
        if (item.extension.CompareNoCase(extension) == 0)
            return item.clsid;
    }
    return GUID{};
}

CString OfficePropertyFuncs::GetPropertyHandlerRegKey(CString extension)
{
    CString path;
    path.Format(m_propertyHandlerPattern, extension);
    return path;
}

int OfficePropertyFuncs::SetDumpProps(CString path, std::uint32_t propertyId, PROPVARIANT* value, GUID clsid)
{
    const bool isCompound = PropertyUtils::IsOLE2Document(path) != 0;
    if (!isCompound && clsid == GUID{})
        return 0;
    const PropertyStorage::Document document = isCompound ? PropertyStorage::Document::OpenCompound(path)
                                                          : PropertyStorage::Document::OpenByHandler(path, clsid);
    return document.IsOpen() ? SetDumpBuiltInProps(document.Get(), propertyId, value) : 0;
}

int OfficePropertyFuncs::SetDumpBuiltInProps(IPropertySetStorage* storage, std::uint32_t propertyId, PROPVARIANT* value)
{
    const auto properties = PropertyStorage::PropertySet::Open(storage, PropertyStorage::StandardSet::Summary);
    if (!properties.IsOpen()) {
        VyrPlatform::DebugOutput::Write(u"No Summary-Information.\n");
        return 0;
    }
    const PropertyStorage::PropertyWrite write[] = {{propertyId, value}};
    const std::uint32_t result = properties.Write(write);
    if (!PropertyStorage::IsFailure(result))
        return 1;
    CString text;
    text.Format(u"IPropertyStg::WriteMultiple() failed w/error %08lx\n", result);
    VyrPlatform::DebugOutput::Write(text);
    return 0;
}

} // namespace VyrLibraryFuncs
