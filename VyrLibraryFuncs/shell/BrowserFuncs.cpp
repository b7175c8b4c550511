#include <VyrLibraryFuncs/shell/BrowserFuncs.h>

#include <VyrLibraryUtils/FileUtils.h>
#include <VyrLibraryUtils/StringUtils.h>
#include <VyrPlatform/WinTypes.h>
#include <VyrPlatform/registry/RegistryValue.h>

#include <optional>

using VyrLibraryUtils::FileUtils;
using VyrLibraryUtils::StringUtils;
namespace Registry = VyrPlatform::Registry;
using Registry::Access;
using Registry::Key;

namespace VyrLibraryFuncs {

namespace {

/// The browser of one key; nothing when its name or command is missing.
std::optional<BrowserFuncs::APPITEM> ReadBrowser(const Key& clients, const CString& name)
{
    const Key key = Key::Open(clients.Get(), name, Access::Read);
    const std::optional<CString> displayName = Registry::ReadText(key.Get(), {});
    if (!displayName)
        return std::nullopt;
    const Key commandKey = Key::Open(key.Get(), u"shell\\open\\command", Access::Read);
    const std::optional<CString> command = Registry::ReadText(commandKey.Get(), {});
    if (!command)
        return std::nullopt;
    const CString bareCommand = StringUtils::GetRemoveDoubleQuotesString(*command);
    return BrowserFuncs::APPITEM{0, name, *displayName, bareCommand, bareCommand};
}

} // namespace

BrowserFuncs::BrowserFuncs() = default;
BrowserFuncs::~BrowserFuncs() = default;
BrowserFuncs& BrowserFuncs::operator=(const BrowserFuncs&) = default;

std::vector<BrowserFuncs::APPITEM> BrowserFuncs::GetBrowserItemsList()
{
    std::vector<APPITEM> items;
    const Key clients = Key::Open(HKEY_LOCAL_MACHINE, u"SOFTWARE\\Clients\\StartMenuInternet", Access::Read);
    if (!clients.IsOpen())
        return items;
    for (std::uint32_t index = 0;; ++index) {
        const auto [error, name] = Registry::EnumerateKey(clients.Get(), index, Registry::bufferCapacity);
        if (error == Registry::Error::noMoreItems)
            return items;
        if (error != Registry::Error::none)
            continue;
        if (const std::optional<APPITEM> item = ReadBrowser(clients, name))
            items.push_back(*item);
    }
}

BrowserFuncs::APPITEM BrowserFuncs::GetMicrosoftEdgeAppItem()
{
    return {1, u"Microsoft.MicrosoftEdge_8wekyb3d8bbwe", u"Microsoft Edge",
            u"shell:AppsFolder\\Microsoft.MicrosoftEdge_8wekyb3d8bbwe!MicrosoftEdge",
            FileUtils::GetCombinePath(FileUtils::GetWindowsSystemAppsDirectoryPath(),
                                      u"Microsoft.MicrosoftEdge_8wekyb3d8bbwe\\MicrosoftEdge.exe")};
}

int BrowserFuncs::IsInstalledMicrosoftEdgeChromium()
{
    const Key key = Key::Open(HKEY_LOCAL_MACHINE,
                              u"SOFTWARE\\Wow6432Node\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\Microsoft Edge",
                              Access::Read);
    const std::optional<CString> command = Registry::ReadText(key.Get(), u"UninstallString");
    return command && !command->IsEmpty();
}

} // namespace VyrLibraryFuncs
