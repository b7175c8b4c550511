// Handlers of documents that are ZIP archives: Office Open XML and OpenDocument.
#include "DocumentFile.h"
#include "PackageParts.h"
#include "PropertySets.h"
#include "PropertyXml.h"

#include <VyrPlatform/WinTypes.h>

#include <optional>
#include <utility>

namespace VyrPlatform {

namespace {

using PropertyStorage::PropertyWrite;
using PropertyStorage::StandardSet;
namespace Result = PropertyStorage::Result;

class ZipSet : public IPropertyStorage
{
public:
    ZipSet(DocumentFile& file, PropertyFormat format) : m_file(file), m_format(format) {}

    [[nodiscard]] std::uint32_t Write(std::span<const PropertyWrite> properties) override
    {
        auto part = FindPropertyPart(m_format, m_file.Get());
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
        return FindPropertyPart(m_format, m_file.Get()) ? Result::ok : Result::damaged;
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
    const auto format = FormatOfHandler(handler);
    if (!format)
        return Result::classNotRegistered;
    auto document = std::make_unique<ZipDocument>(path, *format);
    const std::uint32_t result = document->Check();
    if (result == Result::ok)
        opened = std::move(document);
    return result;
}

} // namespace VyrPlatform
