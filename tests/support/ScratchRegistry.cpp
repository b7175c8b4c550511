// What fills root keys of the tests' own, on both systems.
#include <tests/support/ScratchRegistry.h>

namespace VyrTests {

using VyrPlatform::Registry::ValueType::number;
using VyrPlatform::Registry::ValueType::text;

void ScratchRegistry::SetText(Handle root, const CString& path, const CString& name, std::u16string_view content)
{
    SetValue(root, path, name, text, TextBytes(content));
}

void ScratchRegistry::SetNumber(Handle root, const CString& path, const CString& name, std::uint32_t value)
{
    SetValue(root, path, name, number, NumberBytes(value));
}

void ScratchRegistry::Add(Handle root, const RegistryTree& tree)
{
    for (const CString& key : tree.keys)
        AddKey(root, key);
    for (const RegistryEntry& entry : tree.values)
        SetValue(root, entry.path, entry.name, entry.type, entry.bytes);
}

} // namespace VyrTests
