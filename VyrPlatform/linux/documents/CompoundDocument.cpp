// The property sets of a compound document: found in the container, edited as bytes, written anew and checked by
// libgsf, which reads such files on its own.
#include "CompoundFile.h"
#include "DocumentFile.h"
#include "PropertySets.h"

#include <VyrPlatform/WinTypes.h>
#include <VyrPlatform/common/documents/PropertySetStream.h>
#include <VyrPlatform/linux/files/FileContent.h>

#include <cerrno>
#include <fcntl.h>
#include <gsf/gsf-infile-msole.h>
#include <gsf/gsf-infile.h>
#include <gsf/gsf-input-stdio.h>
#include <optional>
#include <string>
#include <unistd.h>
#include <utility>

namespace VyrPlatform {

namespace {

using PropertyStorage::PropertyWrite;
using PropertyStorage::StandardSet;
namespace Result = PropertyStorage::Result;

std::u16string_view StreamName(StandardSet set) noexcept
{
    return set == StandardSet::Summary ? u"\x05SummaryInformation"
                                       : u"\x05"
                                         u"DocumentSummaryInformation";
}

FormatId FormatOf(StandardSet set) noexcept
{
    return set == StandardSet::Summary ? summaryFormat : documentFormat;
}

struct Unreference
{
    void operator()(void* object) const noexcept { g_object_unref(object); }
};
template <class Object>
using Owned = std::unique_ptr<Object, Unreference>;

/// The library tells of damage in its results; what it writes to the error stream besides belongs to nobody.
void SilenceLibrary()
{
    static const bool isSilent = [] {
        for (const char* const domain : {"libgsf", "libgsf:msole", "GLib", "GLib-GObject"})
            g_log_set_handler(
                domain, static_cast<GLogLevelFlags>(G_LOG_LEVEL_MASK | G_LOG_FLAG_RECURSION),
                [](const char*, GLogLevelFlags, const char*, void*) {}, nullptr);
        return true;
    }();
    static_cast<void>(isSilent);
}

/// The root storage as libgsf reads it; a null pointer when it finds none.
Owned<GsfInfile> ReadByLibrary(int file)
{
    SilenceLibrary();
    // The name of an open file, which the library opens for itself.
    const std::string name = "/proc/self/fd/" + std::to_string(file);
    const Owned<GsfInput> input(gsf_input_stdio_new(name.c_str(), nullptr));
    return Owned<GsfInfile>(input ? gsf_infile_msole_new(input.get(), nullptr) : nullptr);
}

bool IsSameContent(GsfInput* left, GsfInput* right)
{
    constexpr gsf_off_t piece = 1 << 16;
    gsf_off_t rest = gsf_input_size(left);
    if (gsf_input_size(right) != rest)
        return false;
    while (rest > 0) {
        const auto size = static_cast<std::size_t>(std::min(rest, piece));
        const auto* const a = gsf_input_read(left, size, nullptr);
        const auto* const b = gsf_input_read(right, size, nullptr);
        if (!a || !b || !std::equal(a, a + size, b))
            return false;
        rest -= static_cast<gsf_off_t>(size);
    }
    return true;
}

bool HasSameClass(GsfInfile* left, GsfInfile* right)
{
    guint8 leftId[16];
    guint8 rightId[16];
    return gsf_infile_msole_get_class_id(GSF_INFILE_MSOLE(left), leftId) ==
               gsf_infile_msole_get_class_id(GSF_INFILE_MSOLE(right), rightId) &&
           std::equal(leftId, leftId + 16, rightId);
}

/// Compares two storages with all that is in them, but for the stream `except` of theirs.
bool IsSameStorage(GsfInfile* left, GsfInfile* right, std::string_view except, int depth = 0)
{
    constexpr int deepest = 200;
    const int count = gsf_infile_num_children(left);
    if (depth > deepest || gsf_infile_num_children(right) != count || !HasSameClass(left, right))
        return false;
    for (int index = 0; index < count; ++index) {
        const Owned<GsfInput> a(gsf_infile_child_by_index(left, index));
        const Owned<GsfInput> b(gsf_infile_child_by_index(right, index));
        // One that the library cannot read is as damaged in the new document as it was in the old one.
        if (!a && !b)
            continue;
        if (!a || !b)
            return false;
        const char* const name = gsf_input_name(a.get());
        const char* const otherName = gsf_input_name(b.get());
        if (!name || !otherName || std::string_view(name) != otherName)
            return false;
        if (name == except)
            continue;
        const bool isStorage = gsf_infile_num_children(GSF_INFILE(a.get())) >= 0;
        const bool isSame = isStorage ? IsSameStorage(GSF_INFILE(a.get()), GSF_INFILE(b.get()), {}, depth + 1)
                                      : IsSameContent(a.get(), b.get());
        if (!isSame)
            return false;
    }
    return true;
}

/// Whether the stream `name` begins with `content`, and has zeros behind it.
bool HasContent(GsfInfile* root, const std::string& name, std::string_view content)
{
    const Owned<GsfInput> stream(gsf_infile_child_by_name(root, name.c_str()));
    if (!stream)
        return false;
    const auto size = static_cast<std::size_t>(gsf_input_size(stream.get()));
    const auto* const bytes = gsf_input_read(stream.get(), size, nullptr);
    if (!bytes || size < content.size())
        return false;
    const std::string_view read(reinterpret_cast<const char*>(bytes), size);
    return read.starts_with(content) && read.find_first_not_of('\0', content.size()) == std::string_view::npos;
}

/// A document whose stream `name` gets a new content.
class StreamEdit : public DocumentEdit
{
public:
    StreamEdit(std::u16string_view name, std::string content) : m_name(name), m_content(std::move(content)) {}

    [[nodiscard]] int Write(int source, int target) override
    {
        struct stat status;
        if (fstat(source, &status) != 0)
            return errno;
        if (const int error = CopyContent(source, target, status))
            return error;
        auto container = CompoundFile::Read(target);
        return container ? container->WriteStream(m_name, m_content) : EILSEQ;
    }

    [[nodiscard]] bool IsWritten(int source, int target) override
    {
        const Owned<GsfInfile> before = ReadByLibrary(source);
        const Owned<GsfInfile> after = ReadByLibrary(target);
        const std::string name(m_name.begin(), m_name.end());
        return before && after && HasContent(after.get(), name, m_content) &&
               IsSameStorage(before.get(), after.get(), name);
    }

private:
    std::u16string_view m_name;
    std::string m_content;
};

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
        StreamEdit edit(StreamName(m_set), edited.Serialise());
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
        return CompoundFile::Read(m_file.Get()) && ReadByLibrary(m_file.Get()) ? 0 : EILSEQ;
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
