// The one registry of Windows.
#include <tests/support/RegistryForms.h>
#include <tests/support/ScratchRegistry.h>

#include <windows.h>

namespace VyrTests {

namespace {

class ScratchForm : public ShownRegistry
{
public:
    explicit ScratchForm(const RegistryTree& tree) { m_registry.Add(HKEY_CURRENT_USER, tree); }

private:
    ScratchRegistry m_registry;
};

} // namespace

std::vector<RegistryForm> RegistryForms()
{
    return {{"System", [](const RegistryTree& tree) -> std::unique_ptr<ShownRegistry> {
                 return std::make_unique<ScratchForm>(tree);
             }}};
}

} // namespace VyrTests
