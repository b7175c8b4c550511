// The property sets of a compound document: found in the container, edited as bytes, and written back.
#include "CompoundEdit.h"
#include "CompoundFile.h"
#include "DocumentFile.h"
#include "PropertySets.h"

#include <VyrPlatform/WinTypes.h>
#include <VyrPlatform/common/documents/PropertySetStream.h>

#include <cerrno>
#include <optional>
#include <utility>

namespace VyrPlatform {

namespace {

using PropertyStorage::PropertyWrite;
using PropertyStorage::StandardSet;
namespace Result = PropertyStorage::Result;

std::u16string_view StreamName(StandardSet set) noexcept
{
    return set == StandardSet::Summary ? summaryStream : documentStream;
}

FormatId FormatOf(StandardSet set) noexcept
{
    return set == StandardSet::Summary ? summaryFormat : documentFormat;
}

class CompoundSet : public IPropertyStorage
{
public:
    CompoundSet(DocumentFile& file, StandardSet set, PropertySetStream stream)
        : m_file(file), m_set(set), m_stream(std::move(stream))
    {}

    [[nodiscard]] std::uint32_t Write(std::span<const PropertyWrite> properties) override
    {
        PropertySetStream edited = m_stream;
        PropertySection& section = *edited.Find(FormatOf(m_set));
        const std::uint32_t codePage = section.CodePage().value_or(defaultCodePage);
        for (const PropertyWrite& property : properties) {
            if (property.value->vt == VT_EMPTY) {
                section.Remove(property.id);
                continue;
            }
            auto stored = StorePropertyValue(*property.value, codePage);
            if (!stored)
                return Result::invalidParameter;
            section.Set(property.id, std::move(*stored));
        }
        StreamsEdit edit({{StreamName(m_set), edited.Serialise()}});
        const int error = m_file.Replace(edit);
        if (error == 0)
            m_stream = std::move(edited);
        return ToResult(error);
    }

private:
    DocumentFile& m_file;
    StandardSet m_set;
    PropertySetStream m_stream;
};

class CompoundDocument : public IPropertySetStorage
{
public:
    explicit CompoundDocument(const CString& path) : m_file(path) {}

    /// 0, or the error code.
    [[nodiscard]] int Check() const
    {
        if (const int error = m_file.Error())
            return error;
        return IsCompoundDocument(m_file.Get()) ? 0 : EILSEQ;
    }

    [[nodiscard]] std::uint32_t Open(StandardSet set, std::unique_ptr<IPropertyStorage>& opened) override
    {
        const auto container = CompoundFile::Read(m_file.Get());
        if (!container)
            return Result::damaged;
        if (!container->HasStream(StreamName(set)))
            return Result::fileNotFound;
        const auto bytes = container->ReadStream(StreamName(set));
        auto stream = bytes ? PropertySetStream::Parse(*bytes) : std::nullopt;
        if (!stream)
            return Result::damaged;
        if (!stream->Find(FormatOf(set)))
            return Result::fileNotFound;
        opened = std::make_unique<CompoundSet>(m_file, set, std::move(*stream));
        return Result::ok;
    }

private:
    DocumentFile m_file;
};

} // namespace

std::uint32_t OpenCompoundDocument(const CString& path, std::unique_ptr<IPropertySetStorage>& opened)
{
    auto document = std::make_unique<CompoundDocument>(path);
    const int error = document->Check();
    if (error == 0)
        opened = std::move(document);
    return ToResult(error);
}

} // namespace VyrPlatform
