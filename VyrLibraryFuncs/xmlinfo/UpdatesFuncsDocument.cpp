#include "ElementWalk.h"

#include <VyrLibraryFuncs/xmlinfo/MSXMLFuncs.h>
#include <VyrLibraryFuncs/xmlinfo/UpdatesFuncs.h>

#include <VyrLibraryUtils/StringUtils.h>

#include <utility>

using MSXML2::IXMLDOMDocumentPtr;
using MSXML2::IXMLDOMElementPtr;
using MSXML2::IXMLDOMNodeListPtr;
using VyrLibraryUtils::StringUtils;

namespace VyrLibraryFuncs {

int UpdatesFuncs::GetUpdatesInformation(CString path)
{
    InitializeUpdatesInformation();
    const IXMLDOMDocumentPtr document = MSXMLFuncs::LoadXmlFile(std::move(path));
    return document ? SetUpdatesAttributes(document) : 0;
}

int UpdatesFuncs::SetUpdatesAttributes(IXMLDOMDocumentPtr document)
{
    static_cast<void>(VyrPlatform::MessageQueue::DrainOne());
    const IXMLDOMElementPtr root = GetRoot(document);
    if (!root)
        return 0;
    const IXMLDOMNodeListPtr updates = GetElements(root, u"update");
    if (!updates)
        return 0;
    const std::pair<const char16_t*, CString*> settings[] = {{u"type", &m_type},
                                                             {u"name", &m_productName},
                                                             {u"version", &m_version},
                                                             {u"edition", &m_edition},
                                                             {u"platformbit", &m_platformBit},
                                                             {u"detailsURL", &m_detailsUrl},
                                                             {u"downloadURL", &m_downloadUrl}};
    int isRead = 0;
    ForEachElement(updates, [&](const IXMLDOMElementPtr& update) {
        m_updateItemsList = GetMoreInfoElementItems(GetElements(update, u"moreinfo"));
        // The attributes are those of the first element, the items those of the last.
        const IXMLDOMElementPtr first = GetElement(updates, 0);
        for (const auto& [name, setting] : settings)
            *setting = GetAttribute(first, name).value_or(*setting);
        isRead = 1;
    });
    return isRead;
}

std::vector<UpdatesFuncs::UPDATEITEM> UpdatesFuncs::GetMoreInfoElementItems(IXMLDOMNodeListPtr moreInfos)
{
    std::vector<UPDATEITEM> items;
    int category = 0;
    ForEachElement(moreInfos, [&](const IXMLDOMElementPtr& moreInfo) {
        ForEachElement(GetElements(moreInfo, u"item"), [&](const IXMLDOMElementPtr& item) {
            if (const std::optional<CString> text = GetLastText(GetElements(item, u"category")))
                category = StringUtils::StringToIntNumber(*text);
            const std::optional<CString> description = GetLastText(GetElements(item, u"description"));
            items.push_back({category, description.value_or(CString())});
        });
    });
    return items;
}

} // namespace VyrLibraryFuncs
