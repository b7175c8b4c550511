// Any bytes as a compound document: its tables are read in bounded time, and a written stream is read back.
#include <VyrPlatform/linux/documents/CompoundFile.h>

#include <cstdint>
#include <cstdlib>
#include <string>
#include <sys/mman.h>
#include <unistd.h>

using VyrPlatform::CompoundFile;

namespace {

void Require(bool holds)
{
    if (!holds)
        std::abort();
}

/// An anonymous file with these bytes.
class MemoryFile
{
public:
    MemoryFile(const std::uint8_t* data, std::size_t size) : m_file(memfd_create("document", MFD_CLOEXEC))
    {
        Require(m_file >= 0 && write(m_file, data, size) == static_cast<ssize_t>(size));
    }
    MemoryFile(const MemoryFile&) = delete;
    MemoryFile& operator=(const MemoryFile&) = delete;
    ~MemoryFile() { close(m_file); }
    [[nodiscard]] int Get() const { return m_file; }

private:
    int m_file;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::u16string_view name = u"\x05SummaryInformation";
    const MemoryFile file(data, size);
    auto container = CompoundFile::Read(file.Get());
    if (!container)
        return 0;
    const auto before = container->ReadStream(name);
    const std::string content(size % 2 == 0 ? 100 : 6'000, 'x');
    if (container->WriteStream(name, content) != 0 || !before)
        return 0;
    // Streams that share sectors with the tables can damage the document, but not the program: the caller compares the
    // result.
    const auto again = CompoundFile::Read(file.Get());
    if (again)
        static_cast<void>(again->ReadStream(name));
    return 0;
}
