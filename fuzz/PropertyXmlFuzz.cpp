// Any text as the properties of a document in XML: it is read in bounded time, what was edited can be edited again, and
// nothing is left of what was cleared.
#include <VyrPlatform/WinTypes.h>
#include <VyrPlatform/linux/documents/PropertyXml.h>

#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

using namespace VyrPlatform;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view xml(reinterpret_cast<const char*>(data), size);
    std::u16string text = u"a <b> & c, d";
    PROPVARIANT value{};
    value.vt = VT_LPWSTR;
    value.pwszVal = text.data();
    const PROPVARIANT nothing{};
    const PropertyStorage::PropertyWrite writes[] = {{2, &value}, {4, &nothing}, {5, &value}};
    for (const PropertyFormat format : {PropertyFormat::OfficeOpenXml, PropertyFormat::OpenDocument,
                                        PropertyFormat::Extended, PropertyFormat::Custom}) {
        DocumentProperties before;
        const bool isRead = ReadPropertyXml(format, xml, before);
        const EditedXml cleared = ClearPropertyXml(format, xml);
        DocumentProperties after;
        const bool isCleared = cleared.result == PropertyStorage::Result::ok;
        if (isCleared && (!isRead || !ReadPropertyXml(format, cleared.text, after) || !after.texts.empty() ||
                          !after.times.empty() || after.others != 0))
            std::abort();
        const EditedXml edited = EditPropertyXml(format, xml, writes);
        if (edited.result != PropertyStorage::Result::ok)
            continue;
        const EditedXml again = EditPropertyXml(format, edited.text, writes);
        if (again.result != PropertyStorage::Result::ok || again.text != edited.text)
            std::abort();
    }
    return 0;
}
