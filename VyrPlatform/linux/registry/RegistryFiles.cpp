#include "Hive.h"
#include "MemoryNode.h"
#include "MergedNode.h"
#include "RootKeys.h"
#include "WineText.h"

#include <VyrPlatform/WinTypes.h>
#include <VyrPlatform/files/FileReader.h>
#include <VyrPlatform/registry/RegistryFiles.h>

#include <cerrno>
#include <span>
#include <string>
#include <utility>

namespace VyrPlatform::Registry {

namespace {

using Outcome = OpenResult::Outcome;

/// More than any prefix has, so that a damaged file cannot fill the memory.
constexpr std::uint64_t mostBytes = std::uint64_t{1} << 30;

/// Reads the whole text of a registry into `text`.
OpenResult ReadWhole(const CString& path, std::string& text)
{
    const FileReader reader(path);
    if (!reader.IsOpen())
        return {Outcome::Unreadable, reader.Error(), path, {}};
    if (reader.Size() == 0)
        return {Outcome::Empty, 0, path, {}};
    if (reader.Size() > mostBytes)
        return {Outcome::NoRegistry, 0, path, {}};
    text.resize(reader.Size());
    text.resize(reader.ReadAt(0, std::as_writable_bytes(std::span(text))));
    return {IsWineText(text) ? Outcome::Shown : Outcome::NoRegistry, 0, path, {}};
}

/// Shows the two trees, and the merged classes of both.
void ShowRoots(const std::shared_ptr<Node>& machine, const std::shared_ptr<Node>& user)
{
    const char16_t classes[] = u"Software\\Classes";
    SetRootNode(HKEY_LOCAL_MACHINE, machine);
    SetRootNode(HKEY_CURRENT_USER, user);
    SetRootNode(HKEY_CLASSES_ROOT, Merge(FindNode(user, classes), FindNode(machine, classes)));
}

/// Opens hives one after the other, up to the first that fails.
class HiveOpener
{
public:
    /// Null for the empty path, and after a failure.
    std::shared_ptr<Node> Open(const CString& path)
    {
        if (path.IsEmpty() || HasFailed())
            return nullptr;
        OpenedHive hive = OpenHive(path);
        m_unclosedFiles.insert(m_unclosedFiles.end(), hive.result.unclosedFiles.begin(),
                               hive.result.unclosedFiles.end());
        if (hive.result.outcome != Outcome::Shown)
            m_failure = std::move(hive.result);
        return hive.top;
    }

    /// The user's hive, with the hive of the classes attached.
    std::shared_ptr<Node> OpenUser(const CString& path, const CString& classesPath)
    {
        std::shared_ptr<Node> user = Open(path);
        const std::shared_ptr<Node> classes = Open(classesPath);
        if (!classes)
            return user;
        const auto above = std::make_shared<MemoryNode>(false, 0);
        AddNode(above, u"Software", 0)->Attach(u"Classes", classes);
        return Merge(std::move(user), above);
    }

    [[nodiscard]] bool HasFailed() const noexcept { return m_failure.outcome != Outcome::Shown; }

    [[nodiscard]] OpenResult Result() const
    {
        return HasFailed() ? m_failure : OpenResult{Outcome::Shown, 0, {}, m_unclosedFiles};
    }

private:
    OpenResult m_failure;
    std::vector<CString> m_unclosedFiles;
};

} // namespace

OpenResult ShowWinePrefix(const CString& folder)
{
    std::string machineText;
    OpenResult result = ReadWhole(folder + u"/system.reg", machineText);
    if (result.outcome != Outcome::Shown)
        return result;
    std::string userText;
    result = ReadWhole(folder + u"/user.reg", userText);
    if (result.outcome != Outcome::Shown && result.error != ENOENT)
        return result;

    const auto machine = std::make_shared<MemoryNode>(false, 0);
    const auto user = std::make_shared<MemoryNode>(false, 0);
    const LinkTargets links{machine, user};
    ReadWineText(machineText, machine, links);
    ReadWineText(userText, user, links);
    ShowRoots(machine, user);
    return {};
}

OpenResult ShowHives(const HiveFiles& files)
{
    HiveOpener opener;
    const std::shared_ptr<Node> software = opener.Open(files.software);
    const std::shared_ptr<Node> system = opener.Open(files.system);
    const std::shared_ptr<Node> user = opener.OpenUser(files.user, files.userClasses);
    if (opener.HasFailed())
        return opener.Result();
    const auto machine = std::make_shared<MemoryNode>(false, 0);
    if (software)
        machine->Attach(u"SOFTWARE", software);
    if (system)
        machine->Attach(u"SYSTEM", system);
    ShowRoots(machine, user);
    return opener.Result();
}

OpenResult ShowUserHives(const CString& user, const CString& userClasses)
{
    HiveOpener opener;
    const std::shared_ptr<Node> node = opener.OpenUser(user, userClasses);
    if (!opener.HasFailed())
        ShowRoots(GetRootNode(HKEY_LOCAL_MACHINE), node);
    return opener.Result();
}

void CloseRegistryFiles()
{
    ShowRoots(nullptr, nullptr);
}

} // namespace VyrPlatform::Registry
