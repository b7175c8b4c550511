// Root keys of the tests' own: trees in memory.
#include <tests/support/ScratchRegistry.h>

#include <VyrPlatform/WinTypes.h>
#include <VyrPlatform/registry/LinuxRegistry.h>

#include <gtest/gtest.h>

#include <map>

namespace VyrTests {

using VyrPlatform::Registry::MemoryTree;

struct ScratchRegistry::Roots
{
    std::map<Handle, MemoryTree> trees = {
        {HKEY_CLASSES_ROOT, {}},
        {HKEY_CURRENT_USER, {}},
        {HKEY_LOCAL_MACHINE, {}},
    };
};

ScratchRegistry::ScratchRegistry() : m_roots(std::make_unique<Roots>())
{
    for (const auto& [root, tree] : m_roots->trees)
        ShowTree(root, tree);
}

ScratchRegistry::~ScratchRegistry()
{
    for (const auto& [root, tree] : m_roots->trees)
        VyrPlatform::Registry::ShowNothing(root);
}

void ScratchRegistry::AddKey(Handle root, const CString& path)
{
    EXPECT_TRUE(m_roots->trees.at(root).AddKey(path));
}

void ScratchRegistry::SetValue(Handle root, const CString& path, const CString& name, std::uint32_t type,
                               std::string_view bytes)
{
    EXPECT_TRUE(m_roots->trees.at(root).SetValue(path, name, type, std::as_bytes(std::span(bytes))));
}

} // namespace VyrTests
