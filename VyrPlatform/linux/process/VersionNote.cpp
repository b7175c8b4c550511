// Finds the version note among the program's notes and reads it; its bytes may be invalid.
#include <VyrPlatform/linux/process/VersionNote.h>
#include <VyrPlatform/text/Encoding.h>

#include <algorithm>
#include <cstring>
#include <elf.h>
#include <link.h>
#include <string_view>
#include <utility>

namespace VyrPlatform::Process {

namespace {

constexpr std::string_view ownerName("Vyr\0", 4);
constexpr ElfW(Word) versionType = 1;

/// Removes and returns the first `count` bytes; nothing, with `bytes` unchanged, when there are fewer.
std::optional<std::string_view> Take(std::string_view& bytes, std::size_t count)
{
    if (count > bytes.size())
        return std::nullopt;
    const std::string_view taken = bytes.substr(0, count);
    bytes.remove_prefix(count);
    return taken;
}

template <class Value>
std::optional<Value> TakeValue(std::string_view& bytes)
{
    const auto taken = Take(bytes, sizeof(Value));
    if (!taken)
        return std::nullopt;
    Value value;
    std::memcpy(&value, taken->data(), sizeof value);
    return value;
}

std::optional<CString> TakeText(std::string_view& bytes)
{
    const std::size_t end = bytes.find('\0');
    if (end == std::string_view::npos)
        return std::nullopt;
    const CString text = Encoding::FromUtf8(bytes.substr(0, end));
    bytes.remove_prefix(end + 1);
    return text;
}

/// The content of a version note: four 32-bit numbers, then two texts in UTF-8, each ended by a NUL.
std::optional<ProgramVersion> ReadContent(std::string_view content)
{
    ProgramVersion version;
    for (std::int32_t& number : version.file) {
        const auto value = TakeValue<std::int32_t>(content);
        if (!value)
            return std::nullopt;
        number = *value;
    }
    const auto name = TakeText(content);
    const auto text = TakeText(content);
    if (!name || !text)
        return std::nullopt;
    version.productName = *name;
    version.productVersion = *text;
    return version;
}

/// Reads a note's owner or content, which is padded to a multiple of `alignment` (the last one may lack its padding).
std::optional<std::string_view> TakePadded(std::string_view& bytes, std::size_t size, std::size_t alignment)
{
    const auto taken = Take(bytes, size);
    if (taken)
        bytes.remove_prefix(std::min((alignment - size % alignment) % alignment, bytes.size()));
    return taken;
}

/// Searches a segment of consecutive notes.
std::optional<ProgramVersion> ReadNotes(std::string_view notes, std::size_t alignment)
{
    while (const auto header = TakeValue<ElfW(Nhdr)>(notes)) {
        const auto owner = TakePadded(notes, header->n_namesz, alignment);
        const auto content = owner ? TakePadded(notes, header->n_descsz, alignment) : std::nullopt;
        if (!content)
            return std::nullopt;
        if (*owner == ownerName && header->n_type == versionType)
            return ReadContent(*content);
    }
    return std::nullopt;
}

std::optional<ProgramVersion> ReadNotes(const dl_phdr_info& module)
{
    for (std::size_t i = 0; i < module.dlpi_phnum; ++i) {
        const ElfW(Phdr)& segment = module.dlpi_phdr[i];
        if (segment.p_type != PT_NOTE)
            continue;
        // The loader has mapped all p_memsz bytes of the segment at this address.
        // NOLINTNEXTLINE(performance-no-int-to-ptr): the loader gives addresses as numbers
        const auto* const bytes = reinterpret_cast<const char*>(module.dlpi_addr + segment.p_vaddr);
        const std::size_t alignment = segment.p_align == 8 ? 8 : 4;
        if (auto version = ReadNotes(std::string_view(bytes, segment.p_memsz), alignment))
            return version;
    }
    return std::nullopt;
}

int ReadFirstModule(dl_phdr_info* module, std::size_t /*size*/, void* result)
{
    *static_cast<std::optional<ProgramVersion>*>(result) = ReadNotes(*module);
    // The program itself comes first; anything but 0 ends the walk.
    return 1;
}

} // namespace

std::optional<ProgramVersion> ReadVersionNote()
{
    std::optional<ProgramVersion> version;
    ::dl_iterate_phdr(ReadFirstModule, &version);
    return version;
}

} // namespace VyrPlatform::Process
