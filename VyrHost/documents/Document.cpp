// Reads documents by the handlers of their kinds.
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
    {u"title", Id::title, true},
    {u"subject", Id::subject, true},
    {u"author", Id::author, true},
    {u"keywords", Id::keywords, true},
    {u"comments", Id::comments, true},
    {u"lastAuthor", Id::lastAuthor, true},
    {u"revision", Id::revision, true},
    {u"template", Id::templateName, true},
    {u"application", Id::application, true},
    {u"created", Id::created, false},
    {u"saved", Id::saved, false},
    {u"printed", Id::printed, false},
    {u"thumbnail", Id::thumbnail, false},
};

OfficePropertyFuncs::CLSID_ITEM Item(const char16_t* extension, const GUID& handler)
{
    return {extension, handler, 1};
}

/// For machines that have registered none.
std::vector<OfficePropertyFuncs::CLSID_ITEM> KnownHandlers()
{
    std::vector<OfficePropertyFuncs::CLSID_ITEM> items;
    for (const char16_t* const extension :
         {u".docx", u".docm", u".dotx", u".dotm", u".xlsx", u".xlsm", u".xltx", u".xltm", u".xlsb", u".pptx", u".pptm",
          u".potx", u".potm", u".ppsx", u".ppsm"})
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
    // A list has thousands of files, but few extensions.
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
        document.problem = u"it is no document whose properties are known";
    else if (result != Result::ok)
        document.problem = Text::ErrorText(result);
    return document;
}

} // namespace VyrHost::Documents
