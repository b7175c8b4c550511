// Handlers of documents that are ZIP archives: Office Open XML and OpenDocument.
#include "DocumentFile.h"
#include "PartXml.h"
#include "PropertySets.h"
#include "PropertyXml.h"
#include "ZipArchive.h"

#include <VyrPlatform/WinTypes.h>

#include <optional>
#include <utility>

namespace VyrPlatform {

namespace {

using PropertyStorage::PropertyWrite;
using PropertyStorage::StandardSet;
namespace Result = PropertyStorage::Result;

/// {993BE281-6695-4BA5-8A2A-7AACBFAAB69E}
constexpr GUID officeOpenXmlHandler{0x993BE281, 0x6695, 0x4BA5, {0x8A, 0x2A, 0x7A, 0xAC, 0xBF, 0xAA, 0xB6, 0x9E}};
/// {AE424E85-F6DF-4910-A6A9-438797986431}
constexpr GUID openDocumentHandler{0xAE424E85, 0xF6DF, 0x4910, {0xA6, 0xA9, 0x43, 0x87, 0x97, 0x98, 0x64, 0x31}};

const char contentTypes[] = "[Content_Types].xml";
const char typesSpace[] = "http://schemas.openxmlformats.org/package/2006/content-types";
const char relationships[] = "_rels/.rels";
const char relationshipsSpace[] = "http://schemas.openxmlformats.org/package/2006/relationships";
const char coreRelationship[] = "http://schemas.openxmlformats.org/package/2006/relationships/metadata/core-properties";
const char coreContentType[] = "application/vnd.openxmlformats-package.core-properties+xml";
const char corePart[] = "docProps/core.xml";
const char metaPart[] = "meta.xml";

/// The part that the package's relationships name as its core properties, without the slash in front; empty when they
/// name none.
std::string FindCorePart(xmlDoc* package)
{
    for (const xmlNode* node = xmlDocGetRootElement(package)->children; node; node = node->next) {
        if (!IsElement(node, relationshipsSpace, "Relationship"))
            continue;
        const XmlText type(xmlGetNoNsProp(node, ToXml("Type")));
        const XmlText target(xmlGetNoNsProp(node, ToXml("Target")));
        const std::string_view part = FromXml(target.get());
        if (FromXml(type.get()).ends_with("/metadata/core-properties"))
            return std::string(part.substr(part.starts_with('/') ? 1 : 0));
    }
    return {};
}

/// An id that no relationship has.
std::string FreeId(xmlDoc* package)
{
    std::string id = "rIdCore";
    const auto isTaken = [package](const std::string& tried) {
        for (const xmlNode* node = xmlDocGetRootElement(package)->children; node; node = node->next) {
            const XmlText taken(node->type == XML_ELEMENT_NODE ? xmlGetNoNsProp(node, ToXml("Id")) : nullptr);
            if (FromXml(taken.get()) == tried)
                return true;
        }
        return false;
    };
    while (isTaken(id))
        id += 'x';
    return id;
}

void AddRelationship(xmlDoc* package)
{
    xmlNode* const root = xmlDocGetRootElement(package);
    xmlNode* const node = xmlNewChild(root, root->ns, ToXml("Relationship"), nullptr);
    xmlNewProp(node, ToXml("Id"), ToXml(FreeId(package).c_str()));
    xmlNewProp(node, ToXml("Type"), ToXml(coreRelationship));
    xmlNewProp(node, ToXml("Target"), ToXml(corePart));
}

void AddContentType(xmlDoc* types)
{
    xmlNode* const root = xmlDocGetRootElement(types);
    xmlNode* const node = xmlNewChild(root, root->ns, ToXml("Override"), nullptr);
    xmlNewProp(node, ToXml("PartName"), ToXml((std::string("/") + corePart).c_str()));
    xmlNewProp(node, ToXml("ContentType"), ToXml(coreContentType));
}

/// The member as XML with the root `space`; null when it is no such thing.
XmlTree ReadPart(const ZipArchive& archive, const char* name, std::string_view space, std::string_view root)
{
    const auto text = archive.Read(name, longestPropertyXml);
    XmlTree document = text ? ReadXml(*text) : nullptr;
    return document && IsElement(xmlDocGetRootElement(document.get()), space, root) ? std::move(document) : nullptr;
}

/// The part with the properties, and the parts that are to be changed where it is new.
struct PropertyPart
{
    std::string name;
    std::string text;
    ZipMembers others;
};

/// Nothing when the package is damaged.
std::optional<PropertyPart> FindOfficeOpenXmlPart(const ZipArchive& archive)
{
    const XmlTree package = ReadPart(archive, relationships, relationshipsSpace, "Relationships");
    const XmlTree types = ReadPart(archive, contentTypes, typesSpace, "Types");
    if (!package || !types)
        return std::nullopt;
    const std::string named = FindCorePart(package.get());
    if (!named.empty()) {
        auto text = archive.Read(named, longestPropertyXml);
        return text ? std::optional(PropertyPart{named, std::move(*text), {}}) : std::nullopt;
    }
    if (archive.Has(corePart))
        return std::nullopt;
    AddRelationship(package.get());
    AddContentType(types.get());
    return PropertyPart{corePart,
                        EmptyCoreProperties(),
                        {{relationships, WriteXml(package.get())}, {contentTypes, WriteXml(types.get())}}};
}

std::optional<PropertyPart> FindOpenDocumentPart(const ZipArchive& archive)
{
    constexpr std::size_t longestType = 200;
    const auto type = archive.Read("mimetype", longestType);
    auto text = archive.Read(metaPart, longestPropertyXml);
    if (!type || !type->starts_with("application/vnd.oasis.opendocument.") || !text)
        return std::nullopt;
    return PropertyPart{metaPart, std::move(*text), {}};
}

std::optional<PropertyPart> FindPart(PropertyFormat format, int file)
{
    const ZipArchive archive(file);
    if (!archive.IsOpen())
        return std::nullopt;
    return format == PropertyFormat::OfficeOpenXml ? FindOfficeOpenXmlPart(archive) : FindOpenDocumentPart(archive);
}

/// A document some of whose members get a new content.
class MemberEdit : public DocumentEdit
{
public:
    explicit MemberEdit(ZipMembers members) : m_members(std::move(members)) {}

    [[nodiscard]] int Write(int source, int target) override
    {
        return ZipArchive::WriteWith(source, target, m_members);
    }
    [[nodiscard]] bool IsWritten(int source, int target) override
    {
        return ZipArchive::IsSameBut(source, target, m_members);
    }

private:
    ZipMembers m_members;
};

class ZipSet : public IPropertyStorage
{
public:
    ZipSet(DocumentFile& file, PropertyFormat format) : m_file(file), m_format(format) {}

    [[nodiscard]] std::uint32_t Write(std::span<const PropertyWrite> properties) override
    {
        auto part = FindPart(m_format, m_file.Get());
        if (!part)
            return Result::damaged;
        EditedXml edited = EditPropertyXml(m_format, part->text, properties);
        if (edited.result != Result::ok)
            return edited.result;
        ZipMembers members = std::move(part->others);
        members[part->name] = std::move(edited.text);
        MemberEdit edit(std::move(members));
        return ToResult(m_file.Replace(edit));
    }

private:
    DocumentFile& m_file;
    PropertyFormat m_format;
};

class ZipDocument : public IPropertySetStorage
{
public:
    ZipDocument(const CString& path, PropertyFormat format) : m_file(path), m_format(format) {}

    /// A result code.
    [[nodiscard]] std::uint32_t Check() const
    {
        if (m_file.Error() != 0)
            return ToResult(m_file.Error());
        return FindPart(m_format, m_file.Get()) ? Result::ok : Result::damaged;
    }

    [[nodiscard]] std::uint32_t Open(StandardSet set, std::unique_ptr<IPropertyStorage>& opened) override
    {
        if (set != StandardSet::Summary)
            return Result::fileNotFound;
        opened = std::make_unique<ZipSet>(m_file, m_format);
        return Result::ok;
    }

private:
    DocumentFile m_file;
    PropertyFormat m_format;
};

} // namespace

std::uint32_t OpenByOwnHandler(const CString& path, const GUID& handler, std::unique_ptr<IPropertySetStorage>& opened)
{
    const bool isOfficeOpenXml = handler == officeOpenXmlHandler;
    if (!isOfficeOpenXml && handler != openDocumentHandler)
        return Result::classNotRegistered;
    auto document = std::make_unique<ZipDocument>(path, isOfficeOpenXml ? PropertyFormat::OfficeOpenXml
                                                                        : PropertyFormat::OpenDocument);
    const std::uint32_t result = document->Check();
    if (result == Result::ok)
        opened = std::move(document);
    return result;
}

} // namespace VyrPlatform
