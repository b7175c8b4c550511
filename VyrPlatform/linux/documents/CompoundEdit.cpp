// Writes a compound document with other streams, and verifies it with libgsf, an independent reader.
#include "CompoundEdit.h"

#include "CompoundFile.h"

#include <VyrPlatform/linux/files/FileContent.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstddef>
#include <gsf/gsf-infile-msole.h>
#include <gsf/gsf-infile.h>
#include <gsf/gsf-input-stdio.h>
#include <memory>
#include <string>

namespace VyrPlatform {

namespace {

struct Unreference
{
    void operator()(void* object) const noexcept { g_object_unref(object); }
};
template <class Object>
using Owned = std::unique_ptr<Object, Unreference>;

/// Suppresses the library's messages on the error stream, since its results report damage. Some have no domain, like
/// messages of the program itself: those are suppressed, too, while this object exists.
class SilentLibrary
{
public:
    SilentLibrary()
    {
        std::transform(domains.begin(), domains.end(), m_handlers.begin(), [](const char* domain) {
            return g_log_set_handler(
                domain, static_cast<GLogLevelFlags>(G_LOG_LEVEL_MASK | G_LOG_FLAG_RECURSION),
                [](const char*, GLogLevelFlags, const char*, void*) {}, nullptr);
        });
    }
    SilentLibrary(const SilentLibrary&) = delete;
    SilentLibrary& operator=(const SilentLibrary&) = delete;
    ~SilentLibrary()
    {
        for (std::size_t index = 0; index < domains.size(); ++index)
            g_log_remove_handler(domains[index], m_handlers[index]);
    }

private:
    static constexpr std::array<const char*, 5> domains{nullptr, "libgsf", "libgsf:msole", "GLib", "GLib-GObject"};

    std::array<guint, domains.size()> m_handlers{};
};

/// The root storage as libgsf reads it; a null pointer when it finds none.
Owned<GsfInfile> ReadByLibrary(int file)
{
    // The path of an open file, which the library opens again.
    const std::string name = "/proc/self/fd/" + std::to_string(file);
    const Owned<GsfInput> input(gsf_input_stdio_new(name.c_str(), nullptr));
    return Owned<GsfInfile>(input ? gsf_infile_msole_new(input.get(), nullptr) : nullptr);
}

/// The names of the sets are ASCII.
std::string Name(std::u16string_view name)
{
    return {name.begin(), name.end()};
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

/// Whether a stream of the root has this name; names are read as UTF-8.
bool IsAmong(const NewStreams& streams, std::string_view name)
{
    return std::any_of(streams.begin(), streams.end(),
                       [name](const auto& stream) { return Name(stream.first) == name; });
}

/// Compares two storages with all their content, except the streams `except`.
bool IsSameStorage(GsfInfile* left, GsfInfile* right, const NewStreams& except, int depth = 0)
{
    constexpr int deepest = 200;
    const int count = gsf_infile_num_children(left);
    if (depth > deepest || gsf_infile_num_children(right) != count || !HasSameClass(left, right))
        return false;
    for (int index = 0; index < count; ++index) {
        const Owned<GsfInput> a(gsf_infile_child_by_index(left, index));
        const Owned<GsfInput> b(gsf_infile_child_by_index(right, index));
        // A stream that the library cannot read is equally damaged in both documents.
        if (!a && !b)
            continue;
        if (!a || !b)
            return false;
        const char* const name = gsf_input_name(a.get());
        const char* const otherName = gsf_input_name(b.get());
        if (!name || !otherName || std::string_view(name) != otherName)
            return false;
        if (IsAmong(except, name))
            continue;
        const bool isStorage = gsf_infile_num_children(GSF_INFILE(a.get())) >= 0;
        const bool isSame = isStorage ? IsSameStorage(GSF_INFILE(a.get()), GSF_INFILE(b.get()), {}, depth + 1)
                                      : IsSameContent(a.get(), b.get());
        if (!isSame)
            return false;
    }
    return true;
}

/// Whether the stream `name` is `content`, followed by zeros.
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

} // namespace

bool IsCompoundDocument(int file)
{
    const SilentLibrary silence;
    return CompoundFile::Read(file) && ReadByLibrary(file);
}

int StreamsEdit::Write(int source, int target)
{
    struct stat status;
    if (fstat(source, &status) != 0)
        return errno;
    if (const int error = CopyContent(source, target, status))
        return error;
    for (const auto& [name, content] : m_streams) {
        auto container = CompoundFile::Read(target);
        const int error = container ? container->WriteStream(name, content) : EILSEQ;
        if (error != 0)
            return error;
    }
    return 0;
}

bool StreamsEdit::IsWritten(int source, int target)
{
    const SilentLibrary silence;
    const Owned<GsfInfile> before = ReadByLibrary(source);
    const Owned<GsfInfile> after = ReadByLibrary(target);
    return before && after && IsSameStorage(before.get(), after.get(), m_streams) &&
           std::all_of(m_streams.begin(), m_streams.end(), [&after](const auto& stream) {
               return HasContent(after.get(), Name(stream.first), stream.second);
           });
}

} // namespace VyrPlatform
