// Any text as the registry of a Wine prefix: it is read in bounded time, and every key and value that it has can be
// found by name, or is behind a link.
#include <VyrPlatform/linux/registry/MemoryNode.h>
#include <VyrPlatform/linux/registry/WineText.h>

#include <cstdint>
#include <cstdlib>

using namespace VyrPlatform::Registry;

namespace {

void Require(bool holds)
{
    if (!holds)
        std::abort();
}

void Walk(Node& node)
{
    const auto values = node.GetValues();
    for (const auto& [folded, value] : *values)
        Require(folded == FoldName(value.name));
    for (const auto& [folded, subkey] : node.GetSubkeys()) {
        Require(!folded.IsEmpty() && folded == FoldName(subkey.name));
        Require(folded.View().find(u'\\') == std::u16string_view::npos);
        Walk(*subkey.node);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const auto top = std::make_shared<MemoryNode>(false, 0);
    const std::string text(data, data + size);
    ReadWineText(text, top, {top, top});
    Walk(*top);
    for (const auto& [folded, subkey] : top->GetSubkeys())
        static_cast<void>(FindNode(top, subkey.name + u"\\a\\b"));
    return 0;
}
