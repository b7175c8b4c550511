// Finds the parts of a package by its relationships: ECMA-376 part 2, 9 and 13; OpenDocument 1.2 part 3.
#include "PackageParts.h"

#include "PartXml.h"

#include <VyrPlatform/documents/PropertyHandlers.h>

namespace VyrPlatform {

namespace {

const char contentTypes[] = "[Content_Types].xml";
const char typesSpace[] = "http://schemas.openxmlformats.org/package/2006/content-types";
const char relationships[] = "_rels/.rels";
const char relationshipsSpace[] = "http://schemas.openxmlformats.org/package/2006/relationships";
const char coreRelationship[] = "http://schemas.openxmlformats.org/package/2006/relationships/metadata/core-properties";
const char coreContentType[] = "application/vnd.openxmlformats-package.core-properties+xml";
const char corePart[] = "docProps/core.xml";
const char metaPart[] = "meta.xml";

/// The part that the package's relationships name with a type that ends in `type`, or in `strict` (ISO/IEC 29500,
/// strict), without the slash in front; empty when they name none.
std::string FindRelated(xmlDoc* package, std::string_view type, std::string_view strict = {})
{
    for (const xmlNode* node = xmlDocGetRootElement(package)->children; node; node = node->next) {
        if (!IsElement(node, relationshipsSpace, "Relationship"))
            continue;
        const XmlText named(xmlGetNoNsProp(node, ToXml("Type")));
        const XmlText target(xmlGetNoNsProp(node, ToXml("Target")));
        const std::string_view part = FromXml(target.get());
        const std::string_view found = FromXml(named.get());
        if (found.ends_with(type) || (!strict.empty() && found.ends_with(strict)))
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

/// The member as XML with the root `root` in `space`; null when it is something else.
XmlTree ReadPart(const ZipArchive& archive, const char* name, std::string_view space, std::string_view root)
{
    const auto text = archive.Read(name, longestPropertyXml);
    XmlTree document = text ? ReadXml(*text) : nullptr;
    return document && IsElement(xmlDocGetRootElement(document.get()), space, root) ? std::move(document) : nullptr;
}

/// Nothing when the package is damaged.
std::optional<PropertyPart> FindOfficeOpenXmlPart(const ZipArchive& archive)
{
    const XmlTree package = ReadPart(archive, relationships, relationshipsSpace, "Relationships");
    const XmlTree types = ReadPart(archive, contentTypes, typesSpace, "Types");
    if (!package || !types)
        return std::nullopt;
    const std::string named = FindRelated(package.get(), "/metadata/core-properties");
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

/// The part of this relationship with its content; nothing when there is none. One that cannot be read is empty.
std::optional<PackagePart> ReadRelated(const ZipArchive& archive, xmlDoc* package, PropertyFormat format,
                                       std::string_view type, std::string_view strict)
{
    const std::string name = FindRelated(package, type, strict);
    if (name.empty())
        return std::nullopt;
    return PackagePart{name, format, archive.Read(name, longestPropertyXml).value_or(std::string())};
}

} // namespace

std::optional<PropertyFormat> FormatOfHandler(const GUID& handler)
{
    if (handler == PropertyHandlerId::officeOpenXml)
        return PropertyFormat::OfficeOpenXml;
    return handler == PropertyHandlerId::openDocument ? std::optional(PropertyFormat::OpenDocument) : std::nullopt;
}

std::optional<PropertyPart> FindPropertyPart(PropertyFormat format, int file)
{
    const ZipArchive archive(file);
    if (!archive.IsOpen())
        return std::nullopt;
    return format == PropertyFormat::OfficeOpenXml ? FindOfficeOpenXmlPart(archive) : FindOpenDocumentPart(archive);
}

std::vector<PackagePart> FindFurtherParts(int file)
{
    const ZipArchive archive(file);
    const XmlTree package = ReadPart(archive, relationships, relationshipsSpace, "Relationships");
    std::vector<PackagePart> parts;
    if (!package)
        return parts;
    if (auto part = ReadRelated(archive, package.get(), PropertyFormat::Extended, "/extended-properties",
                                "/extendedProperties"))
        parts.push_back(std::move(*part));
    if (auto part =
            ReadRelated(archive, package.get(), PropertyFormat::Custom, "/custom-properties", "/customProperties"))
        parts.push_back(std::move(*part));
    return parts;
}

PackageTraits ReadPackageTraits(PropertyFormat format, int file)
{
    const ZipArchive archive(file);
    PackageTraits traits;
    if (format == PropertyFormat::OpenDocument) {
        traits.isSigned = archive.Has("META-INF/documentsignatures.xml");
        traits.isEncrypted =
            archive.Read("META-INF/manifest.xml", longestPropertyXml).value_or(std::string()).find("encryption-data") !=
            std::string::npos;
        traits.hasThumbnail = archive.Has("Thumbnails/thumbnail.png");
        return traits;
    }
    if (const XmlTree package = ReadPart(archive, relationships, relationshipsSpace, "Relationships")) {
        traits.isSigned = !FindRelated(package.get(), "/digital-signature/origin").empty();
        traits.hasThumbnail = !FindRelated(package.get(), "/metadata/thumbnail").empty();
    }
    return traits;
}

} // namespace VyrPlatform
