// The inventory of the present registry: its rows, and which are hidden.
#include <VyrHost/inventory/Inventory.h>

#include <tests/support/ScratchRegistry.h>

#include <VyrPlatform/WinTypes.h>

#include <gmock/gmock.h>

using namespace VyrTests;
using namespace VyrHost::Inventory;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

const CString uninstall = u"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\";
const CString uninstall32 = u"SOFTWARE\\Wow6432Node\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\";

class Inventory : public testing::Test
{
protected:
    [[nodiscard]] std::vector<CString> Names(Scope scope, bool with32Bit = true)
    {
        std::vector<CString> names;
        for (const Program& program : ListPrograms(m_here, scope, with32Bit, m_notes))
            names.push_back(program.item.DisplayName);
        return names;
    }

    ScratchRegistry m_registry;
    const Place m_here;
    Notes m_notes;
};

} // namespace

TEST_F(Inventory, ListsTheProgramsInTheScope)
{
    m_registry.SetText(HKEY_LOCAL_MACHINE, uninstall + u"a", u"DisplayName", u"Machine");
    m_registry.SetText(HKEY_LOCAL_MACHINE, uninstall32 + u"a", u"DisplayName", u"Machine 32");
    m_registry.SetText(HKEY_CURRENT_USER, uninstall + u"a", u"DisplayName", u"User");
    EXPECT_THAT(Names(Scope::All), ElementsAre(u"Machine", u"Machine 32", u"User"));
    EXPECT_THAT(Names(Scope::All, false), ElementsAre(u"Machine", u"User"));
    EXPECT_THAT(Names(Scope::Machine), ElementsAre(u"Machine", u"Machine 32"));
    EXPECT_THAT(Names(Scope::User), ElementsAre(u"User"));
    const std::vector<Program> programs = ListPrograms(m_here, Scope::All, false, m_notes);
    EXPECT_EQ(programs[0].scope, Scope::Machine);
    EXPECT_EQ(programs[1].scope, Scope::User);
    EXPECT_THAT(m_notes.failures, IsEmpty());
}

TEST_F(Inventory, HidesWhatTheSystemsOwnListHides)
{
    const auto add = [this](const char16_t* key) {
        m_registry.SetText(HKEY_LOCAL_MACHINE, uninstall + key, u"DisplayName", key);
        return uninstall + key;
    };
    add(u"shown");
    m_registry.SetNumber(HKEY_LOCAL_MACHINE, add(u"component"), u"SystemComponent", 1);
    m_registry.SetNumber(HKEY_LOCAL_MACHINE, add(u"no component"), u"SystemComponent", 0);
    m_registry.SetText(HKEY_LOCAL_MACHINE, add(u"part"), u"ParentKeyName", u"shown");
    m_registry.SetText(HKEY_LOCAL_MACHINE, add(u"part by name"), u"ParentDisplayName", u"shown");
    m_registry.SetText(HKEY_LOCAL_MACHINE, uninstall + u"nameless", u"Publisher", u"shown");
    std::vector<CString> shown;
    std::vector<CString> hidden;
    for (const Program& program : ListPrograms(m_here, Scope::All, true, m_notes))
        (program.IsHidden() ? hidden : shown).push_back(program.item.SubKeyName);
    EXPECT_THAT(shown, ElementsAre(u"no component", u"shown"));
    EXPECT_THAT(hidden, ElementsAre(u"component", u"nameless", u"part", u"part by name"));
}

TEST_F(Inventory, FindsProgramsByNameAndPublisherInAnyCase)
{
    Program program;
    program.item.DisplayName = u"Émile's Editor";
    program.item.Publisher = u"Maker Inc.";
    program.item.Comments = u"comment";
    for (const char16_t* const text : {u"editor", u"ÉMILE", u"émile", u"maker", u"INC.", u""})
        EXPECT_TRUE(program.Matches(text));
    for (const char16_t* const text : {u"comment", u"Editors", u"x"})
        EXPECT_FALSE(program.Matches(text));
}

TEST_F(Inventory, DistinguishesTheProductsOfTheMachineAndOfTheUser)
{
    const CString products = u"Installer\\Products\\";
    // The root key of the classes shows those of the machine.
    for (const char16_t* const key : {u"AAAA", u"BBBB"}) {
        m_registry.SetText(HKEY_LOCAL_MACHINE, u"SOFTWARE\\Classes\\" + products + key, u"ProductName", u"machine");
        m_registry.SetText(HKEY_CLASSES_ROOT, products + key, u"ProductName", u"machine");
        m_registry.SetText(HKEY_CLASSES_ROOT, products + key, u"ProductIcon", u"C:\\icon.ico");
    }
    for (const char16_t* const key : {u"BBBB", u"CCCC"})
        m_registry.SetText(HKEY_CURRENT_USER, u"SOFTWARE\\Microsoft\\" + products + key, u"ProductName", u"user");
    const auto keys = [this](Scope scope) {
        std::vector<CString> found;
        for (const Product& product : ListProducts(m_here, scope, m_notes))
            found.push_back(product.item.ProductKey + u" " + product.item.ProductName);
        return found;
    };
    EXPECT_THAT(keys(Scope::All), ElementsAre(u"AAAA machine", u"BBBB machine", u"BBBB user", u"CCCC user"));
    EXPECT_THAT(keys(Scope::Machine), ElementsAre(u"AAAA machine", u"BBBB machine"));
    EXPECT_THAT(keys(Scope::User), ElementsAre(u"BBBB user", u"CCCC user"));
    EXPECT_EQ(ListProducts(m_here, Scope::Machine, m_notes)[0].item.ProductIcon, u"C:\\icon.ico");
}

TEST_F(Inventory, ListsTheBrowsersThatAreRegistered)
{
    const CString clients = u"SOFTWARE\\Clients\\StartMenuInternet\\";
    m_registry.SetText(HKEY_LOCAL_MACHINE, clients + u"Fast", u"", u"Fast Browser");
    m_registry.SetText(HKEY_LOCAL_MACHINE, clients + u"Fast\\shell\\open\\command", u"", u"\"C:\\fast.exe\" -x");
    m_registry.SetText(HKEY_LOCAL_MACHINE, clients + u"Nameless\\shell\\open\\command", u"", u"C:\\n.exe");
    std::vector<Browser> browsers = ListBrowsers(m_here, m_notes);
    // Whether there is a packaged one depends on the machine that runs the test.
    std::erase_if(browsers, [](const Browser& browser) { return browser.IsPackaged(); });
    ASSERT_EQ(browsers.size(), 1u);
    EXPECT_EQ(browsers[0].item.DisplayName, u"Fast Browser");
    EXPECT_EQ(browsers[0].item.Command, u"C:\\fast.exe -x");
    EXPECT_TRUE(browsers[0].Matches(u"fast"));
    EXPECT_FALSE(browsers[0].Matches(u"exe"));
}
