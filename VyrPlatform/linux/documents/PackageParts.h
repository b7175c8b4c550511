// The parts of a document in a ZIP archive that hold its properties.
#pragma once

#include "DocumentFile.h"
#include "PropertyXml.h"
#include "ZipArchive.h"

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace VyrPlatform {

/// The format that the handler with this class id writes; nothing for other ids.
[[nodiscard]] std::optional<PropertyFormat> FormatOfHandler(const _GUID& handler);

/// The part with the properties, and the parts that change if it is new.
struct PropertyPart
{
    std::string name;
    std::string text;
    ZipMembers others;
};

/// Nothing when the archive is damaged, or holds no such document.
[[nodiscard]] std::optional<PropertyPart> FindPropertyPart(PropertyFormat format, int file);

struct PackagePart
{
    std::string name;
    PropertyFormat format;
    /// Empty when it cannot be read.
    std::string text;
};

/// The other parts of an Office Open XML package that hold properties: the extended ones and the user's own.
[[nodiscard]] std::vector<PackagePart> FindFurtherParts(int file);

struct PackageTraits
{
    bool isSigned = false;
    bool isEncrypted = false;
    bool hasThumbnail = false;
};

[[nodiscard]] PackageTraits ReadPackageTraits(PropertyFormat format, int file);

/// An edit that gives members of an archive new contents.
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

} // namespace VyrPlatform
