#include <VyrLibraryFuncs/xmlinfo/MSXMLFuncs.h>

#include <VyrPlatform/documents/ComText.h>

using MSXML2::IXMLDOMDocumentPtr;

namespace VyrLibraryFuncs {

namespace {

constexpr CLSID documentClass{0xF5078F32, 0xC551, 0x11D3, {0x89, 0xB9, 0x00, 0x00, 0xF8, 0x1F, 0xE2, 0x21}};
constexpr CLSID freeThreadedDocumentClass{0xF5078F33, 0xC551, 0x11D3, {0x89, 0xB9, 0x00, 0x00, 0xF8, 0x1F, 0xE2, 0x21}};

IXMLDOMDocumentPtr Load(const CLSID& classId, const CString& path)
{
    IXMLDOMDocumentPtr document(classId);
    if (!document)
        return {};
    _com_util::CheckError(document->put_async(VARIANT_FALSE));
    VARIANT_BOOL isLoaded = VARIANT_FALSE;
    _com_util::CheckError(document->load(_variant_t(VyrPlatform::ToBstr(path)), &isLoaded));
    return isLoaded == VARIANT_TRUE ? document : IXMLDOMDocumentPtr();
}

} // namespace

MSXMLFuncs::MSXMLFuncs() = default;

MSXMLFuncs::~MSXMLFuncs() = default;

MSXMLFuncs& MSXMLFuncs::operator=(const MSXMLFuncs&) = default;

IXMLDOMDocumentPtr MSXMLFuncs::LoadXmlFile(CString path)
{
    return Load(documentClass, path);
}

IXMLDOMDocumentPtr MSXMLFuncs::LoadXsltFile(CString path)
{
    return Load(freeThreadedDocumentClass, path);
}

} // namespace VyrLibraryFuncs
