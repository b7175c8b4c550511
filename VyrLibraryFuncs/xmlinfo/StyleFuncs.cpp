#include <VyrLibraryFuncs/xmlinfo/StyleFuncs.h>

#include "ElementWalk.h"

#include <VyrLibraryFuncs/xmlinfo/MSXMLFuncs.h>

#include <VyrLibraryUtils/FileUtils.h>
#include <VyrLibraryUtils/StringUtils.h>

#include <utility>

using MSXML2::IXMLDOMDocumentPtr;
using MSXML2::IXMLDOMElementPtr;
using MSXML2::IXMLDOMNodeListPtr;
using VyrLibraryUtils::FileUtils;
using VyrLibraryUtils::StringUtils;

namespace VyrLibraryFuncs {

StyleFuncs::StyleFuncs() = default;

StyleFuncs::~StyleFuncs() = default;

StyleFuncs& StyleFuncs::operator=(const StyleFuncs&) = default;

void StyleFuncs::InitializeStylesInformation()
{
    m_designItemsList.clear();
}

int StyleFuncs::GetStylesInformation(CString path)
{
    if (!FileUtils::IsFileExist(path))
        return 0;
    InitializeStylesInformation();
    const IXMLDOMDocumentPtr document = MSXMLFuncs::LoadXmlFile(std::move(path));
    return document ? SetStylesAttributes(document) : 0;
}

void StyleFuncs::SetDesignItemsList(std::vector<DESIGNITEM> items)
{
    m_designItemsList = std::move(items);
}

std::vector<StyleFuncs::DESIGNITEM> StyleFuncs::GetDesignItemsList()
{
    return m_designItemsList;
}

int StyleFuncs::SetStylesAttributes(IXMLDOMDocumentPtr document)
{
    static_cast<void>(VyrPlatform::MessageQueue::DrainOne());
    const IXMLDOMElementPtr root = GetRoot(document);
    if (!root)
        return 0;
    int isRead = 0;
    ForEachElement(GetElements(root, u"design"), [&](const IXMLDOMElementPtr& design) {
        m_designItemsList = GetDesignMoreInfoElementItems(GetElements(design, u"moreinfo"));
        isRead = 1;
    });
    return isRead;
}

std::vector<StyleFuncs::DESIGNITEM> StyleFuncs::GetDesignMoreInfoElementItems(IXMLDOMNodeListPtr moreInfos)
{
    std::vector<DESIGNITEM> items;
    ForEachElement(moreInfos, [&](const IXMLDOMElementPtr& moreInfo) {
        DESIGNITEM working;
        ForEachElement(GetElements(moreInfo, u"item"), [&](const IXMLDOMElementPtr& item) {
            if (const std::optional<CString> id = GetAttribute(item, u"id"))
                working.id = StringUtils::StringToIntNumber(*id);
            working.value = GetAttribute(item, u"value").value_or(working.value);
            working.name = GetAttribute(item, u"name").value_or(working.name);
            items.push_back(working);
        });
    });
    return items;
}

} // namespace VyrLibraryFuncs
