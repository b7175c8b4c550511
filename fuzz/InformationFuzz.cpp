// Any bytes as an update document and as a design document: it is read or not, in bounded time and memory, and what is
// kept goes with the result.
#include <VyrLibraryFuncs/xmlinfo/StyleFuncs.h>
#include <VyrLibraryFuncs/xmlinfo/UpdatesFuncs.h>
#include <VyrPlatform/text/Encoding.h>

#include <sys/mman.h>
#include <unistd.h>

#include <cstdint>
#include <cstdlib>
#include <string>

using VyrLibraryFuncs::StyleFuncs;
using VyrLibraryFuncs::UpdatesFuncs;

namespace {

void Require(bool holds)
{
    if (!holds)
        std::abort();
}

void ReadUpdates(const CString& path)
{
    UpdatesFuncs::SetPlatformBit(u"kept");
    const int isRead = UpdatesFuncs::GetUpdatesInformation(path);
    Require(isRead == 0 || isRead == 1);
    if (isRead == 1)
        return;
    Require(UpdatesFuncs::GetUpdateItemsList().empty() && UpdatesFuncs::GetVersion().IsEmpty());
    Require(UpdatesFuncs::GetPlatformBit() == u"kept");
}

void ReadDesigns(const CString& path)
{
    StyleFuncs::SetDesignItemsList({{1, u"value", u"name"}});
    const int isRead = StyleFuncs::GetStylesInformation(path);
    Require(isRead == 0 || isRead == 1);
    Require(isRead == 1 || StyleFuncs::GetDesignItemsList().empty());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const int file = memfd_create("document", 0);
    static const CString path = VyrPlatform::Encoding::FromNameBytes("/proc/self/fd/" + std::to_string(file));
    if (ftruncate(file, 0) != 0 || pwrite(file, data, size, 0) != static_cast<ssize_t>(size))
        return 0;
    ReadUpdates(path);
    ReadDesigns(path);
    return 0;
}
