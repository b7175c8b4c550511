// Any bytes as the content of a file: the kind that they tell stands in the table, and may have its own extension.
#include <VyrHost/media/ContentKind.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace VyrHost::Media;
    VyrLibraryUtils::Pictures::MemorySource source(std::string_view(reinterpret_cast<const char*>(data), size));
    const ContentKind* const kind = KindOfContent(source);
    if (kind != nullptr && !kind->MayHave(kind->extension))
        std::abort();
    return 0;
}
