// The forms of a registry on Linux.
#include <tests/support/RegistryForms.h>
#include <tests/support/ScratchFolder.h>
#include <tests/support/ScratchRegistry.h>
#include <tests/support/linux/HiveBuilder.h>
#include <tests/support/linux/WinePrefixText.h>

#include <VyrPlatform/WinTypes.h>
#include <VyrPlatform/registry/RegistryFiles.h>

#include <gtest/gtest.h>

namespace VyrTests {

namespace {

using VyrPlatform::Registry::OpenResult;

class MemoryForm : public ShownRegistry
{
public:
    explicit MemoryForm(const RegistryTree& tree) { m_registry.Add(HKEY_CURRENT_USER, tree); }

private:
    ScratchRegistry m_registry;
};

class WineForm : public ShownRegistry
{
public:
    explicit WineForm(const RegistryTree& tree)
    {
        const ScratchFolder prefix;
        prefix.WriteFile(u"system.reg", WineText({}));
        prefix.WriteFile(u"user.reg", WineText(tree));
        EXPECT_EQ(VyrPlatform::Registry::ShowWinePrefix(prefix.Path()).outcome, OpenResult::Outcome::Shown);
    }
    ~WineForm() override { VyrPlatform::Registry::CloseRegistryFiles(); }
};

class HiveForm : public ShownRegistry
{
public:
    explicit HiveForm(const RegistryTree& tree)
    {
        VyrPlatform::Registry::HiveFiles files;
        files.user = m_folder.WriteFile(u"NTUSER.DAT", BuildHive(tree).bytes);
        EXPECT_EQ(VyrPlatform::Registry::ShowHives(files).outcome, OpenResult::Outcome::Shown);
    }
    ~HiveForm() override { VyrPlatform::Registry::CloseRegistryFiles(); }

private:
    const ScratchFolder m_folder;
};

template <class Form>
std::unique_ptr<ShownRegistry> Show(const RegistryTree& tree)
{
    return std::make_unique<Form>(tree);
}

} // namespace

std::vector<RegistryForm> RegistryForms()
{
    return {{"Memory", Show<MemoryForm>}, {"WinePrefix", Show<WineForm>}, {"Hive", Show<HiveForm>}};
}

} // namespace VyrTests
