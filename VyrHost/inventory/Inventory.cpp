// Lists the installed programs through the library, for the machine and for each user.
#include <VyrHost/inventory/Inventory.h>

#include <VyrPlatform/WinTypes.h>
#include <VyrPlatform/files/FileSystem.h>
#include <VyrPlatform/registry/Registry.h>

#include <functional>
#include <set>
#include <utility>

namespace VyrHost::Inventory {

namespace {

using VyrLibraryFuncs::BrowserFuncs;
using VyrLibraryFuncs::ProgramsFeaturesFuncs;

/// The numbers of the library's scopes.
constexpr int userScope = 1;
constexpr int machineScope = 2;

bool Holds(CString text, CString part)
{
    return text.MakeUpper().Find(part.MakeUpper()) >= 0;
}

/// Calls `list(scope, user)` for each part of `place` in `scope`, while its registry is shown.
void ForEachPart(const Place& place, Scope scope, Notes& notes,
                 const std::function<void(Scope scope, const CString& user)>& list)
{
    OpenedPlace opened(place, notes);
    // Users are listed all the same: their registries are separate files.
    if (opened.ShowMachine() && scope != Scope::User)
        list(Scope::Machine, {});
    if (scope == Scope::Machine)
        return;
    for (std::size_t user = 0; user < opened.CountUsers(); ++user)
        if (opened.ShowUser(user))
            list(Scope::User, opened.NameOfUser(user));
}

/// The names of the machine's products. The library lists them before those of the user.
std::set<CString> MachineProducts()
{
    using namespace VyrPlatform::Registry;
    std::set<CString> names;
    const Key key = Key::Open(HKEY_LOCAL_MACHINE, u"SOFTWARE\\Classes\\Installer\\Products", Access::Read);
    for (std::uint32_t index = 0; key.IsOpen(); ++index) {
        const auto [error, name] = EnumerateKey(key.Get(), index, 256);
        if (error != Error::none)
            break;
        names.insert(name);
    }
    return names;
}

/// The path of the packaged browser's program in the Windows folder of `place`; empty where it is unknown.
CString PackagedProgram(const Place& place, const BrowserFuncs::APPITEM& browser)
{
    using VyrPlatform::FileSystem::JoinPath;
    if (place.kind == PlaceKind::ThisMachine)
        return browser.ExecutablePath;
    if (place.windowsFolder.IsEmpty())
        return {};
    return JoinPath(JoinPath(JoinPath(place.windowsFolder, u"SystemApps"), browser.AppKey), u"MicrosoftEdge.exe");
}

} // namespace

bool Program::IsHidden() const
{
    return item.DisplayName.IsEmpty() || item.SystemComponent != 0 || !item.ParentKeyName.IsEmpty() ||
           !item.ParentDisplayName.IsEmpty();
}

bool Program::Matches(const CString& text) const
{
    return Holds(item.DisplayName, text) || Holds(item.Publisher, text);
}

bool Product::Matches(const CString& text) const
{
    return Holds(item.ProductName, text);
}

bool Browser::Matches(const CString& text) const
{
    return Holds(item.DisplayName, text);
}

std::vector<Program> ListPrograms(const Place& place, Scope scope, bool with32Bit, Notes& notes)
{
    std::vector<Program> programs;
    ForEachPart(place, scope, notes, [&](Scope part, const CString& user) {
        const int number = part == Scope::Machine ? machineScope : userScope;
        for (ProgramsFeaturesFuncs::ITEM& item :
             ProgramsFeaturesFuncs::GetProgramsFeaturesItemsList(number, with32Bit ? 1 : 0))
            programs.push_back({std::move(item), part, user});
    });
    return programs;
}

std::vector<Product> ListProducts(const Place& place, Scope scope, Notes& notes)
{
    std::vector<Product> products;
    ForEachPart(place, scope, notes, [&](Scope part, const CString& user) {
        std::set<CString> left = MachineProducts();
        for (auto& item : ProgramsFeaturesFuncs::GetProgramsFeaturesInstallerProductsItemsList()) {
            // The name occurs a second time where a user has the product, too.
            const bool isMachines = left.erase(item.ProductKey) > 0;
            if (isMachines == (part == Scope::Machine))
                products.push_back({std::move(item), part, user});
        }
    });
    return products;
}

std::vector<Browser> ListBrowsers(const Place& place, Notes& notes)
{
    std::vector<Browser> browsers;
    ForEachPart(place, Scope::Machine, notes, [&](Scope, const CString&) {
        for (BrowserFuncs::APPITEM& item : BrowserFuncs::GetBrowserItemsList())
            browsers.push_back({std::move(item)});
    });
    BrowserFuncs::APPITEM packaged = BrowserFuncs::GetMicrosoftEdgeAppItem();
    packaged.ExecutablePath = PackagedProgram(place, packaged);
    if (!packaged.ExecutablePath.IsEmpty() &&
        VyrPlatform::FileSystem::Query(packaged.ExecutablePath).kind == VyrPlatform::FileSystem::Kind::File)
        browsers.push_back({std::move(packaged)});
    return browsers;
}

} // namespace VyrHost::Inventory
