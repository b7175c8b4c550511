// Reads documents through the handlers of their kinds.
#include <VyrHost/documents/Document.h>

#include <VyrHost/text/Errors.h>
#include <VyrLibraryFuncs/metadata/OfficePropertyFuncs.h>
#include <VyrLibraryFuncs/name/NameFuncs.h>
#include <VyrPlatform/documents/PropertyHandlers.h>
#include <VyrPlatform/documents/PropertyStorage.h>

#include <map>
#include <utility>

namespace VyrHost::Documents {

namespace {

using VyrLibraryFuncs::NameFuncs;
using VyrLibraryFuncs::OfficePropertyFuncs;
namespace HandlerId = VyrPlatform::PropertyHandlerId;
namespace Id = VyrPlatform::SummaryId;
namespace Result = VyrPlatform::PropertyStorage::Result;

constexpr PropertyName names[] = {
    {u"title", Id::title, PropertyKind::Text},
    {u"subject", Id::subject, PropertyKind::Text},
    {u"author", Id::author, PropertyKind::Text},
    {u"keywords", Id::keywords, PropertyKind::Text},
    {u"comments", Id::comments, PropertyKind::Text},
    {u"lastAuthor", Id::lastAuthor, PropertyKind::Text},
    {u"revision", Id::revision, PropertyKind::Text},
    {u"template", Id::templateName, PropertyKind::Text},
    {u"application", Id::application, PropertyKind::Text},
    {u"created", Id::created, PropertyKind::Time},
    {u"saved", Id::saved, PropertyKind::Time},
    {u"printed", Id::printed, PropertyKind::Time},
    {u"thumbnail", Id::thumbnail, PropertyKind::Picture},
};

OfficePropertyFuncs::CLSID_ITEM Item(const char16_t* extension, const GUID& handler)
{
    return {extension, handler, 1};
}

/// For machines without registered handlers.
std::vector<OfficePropertyFuncs::CLSID_ITEM> KnownHandlers()
{
    std::vector<OfficePropertyFuncs::CLSID_ITEM> items;
    for (const char16_t* const extension :
         {u".docx", u".docm", u".dotx", u".dotm", u".xlsx", u".xlsm", u".xltx", u".xltm", u".xlsb",
          u".xlam", u".pptx", u".pptm", u".potx", u".potm", u".ppsx", u".ppsm", u".ppam", u".sldx",
          u".sldm", u".vsdx", u".vsdm", u".vssx", u".vssm", u".vstx", u".vstm"})
        items.push_back(Item(extension, HandlerId::officeOpenXml));
    for (const char16_t* const extension : {u".odt", u".ott", u".ods", u".ots", u".odp", u".otp", u".odg", u".otg"})
        items.push_back(Item(extension, HandlerId::openDocument));
    return items;
}

GUID FindHandler(const CString& extension)
{
    const GUID registered =
        OfficePropertyFuncs::GetClassId(extension, OfficePropertyFuncs::GetClassIdItemList({{extension, 1}}));
    return registered == GUID{} ? OfficePropertyFuncs::GetClassId(extension, KnownHandlers()) : registered;
}

} // namespace

std::span<const PropertyName> PropertyNames()
{
    return names;
}

const PropertyName* FindProperty(std::u16string_view name)
{
    for (const PropertyName& known : names)
        if (CString(name).CompareNoCase(known.name) == 0)
            return &known;
    return nullptr;
}

GUID HandlerOf(const CString& path)
{
    // Cached: a list has thousands of files, but few extensions.
    static std::map<CString, GUID> found;
    const CString extension = NameFuncs::GetExtension(path);
    const auto known = found.find(extension);
    return known != found.end() ? known->second : found.emplace(extension, FindHandler(extension)).first->second;
}

Document ReadDocument(const CString& path)
{
    Document document;
    const std::uint32_t result = VyrPlatform::ReadDocumentProperties(path, HandlerOf(path), document.properties);
    document.isDocument = result != Result::notSupported;
    if (!document.isDocument)
        document.problem = u"it is not a document whose properties are known";
    else if (result != Result::ok)
        document.problem = Text::ErrorText(result);
    return document;
}

} // namespace VyrHost::Documents
