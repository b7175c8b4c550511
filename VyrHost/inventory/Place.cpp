// Recognises registries on a disk by the content of their folders, and shows them.
#include <VyrHost/inventory/Place.h>

#include <VyrHost/text/Errors.h>
#include <VyrHost/text/SafeText.h>
#include <VyrPlatform/WinTypes.h>
#include <VyrPlatform/files/FileSystem.h>
#include <VyrPlatform/files/FolderListing.h>
#include <VyrPlatform/process/Process.h>
#include <VyrPlatform/registry/Registry.h>

#include <algorithm>
#include <initializer_list>
#include <string_view>
#include <utility>

namespace VyrHost::Inventory {

namespace {

using VyrPlatform::FolderListing;
using VyrPlatform::FileSystem::JoinPath;
using VyrPlatform::FileSystem::Kind;
using VyrPlatform::Registry::OpenResult;
using Parts = std::initializer_list<std::u16string_view>;

std::string Quoted(const CString& path)
{
    return "'" + Text::SafeText(path) + "'";
}

std::string CannotBeRead(const CString& path, std::uint32_t error)
{
    return Quoted(path) + " cannot be read: " + Text::SafeText(Text::ErrorText(error));
}

std::string QuotedAll(const std::vector<CString>& texts)
{
    std::string all;
    for (const CString& text : texts)
        all.append(all.empty() ? "" : ", ").append(Quoted(text));
    return all;
}

struct NamedEntry
{
    CString name;
    Kind kind;
};

/// Finds files ignoring case, and collects the folders that cannot be read.
class Finder
{
public:
    /// The entries of a folder, sorted by name.
    std::vector<NamedEntry> EntriesOf(const CString& folder)
    {
        std::vector<NamedEntry> entries;
        FolderListing listing(folder);
        while (listing.Next())
            entries.push_back({listing.Name(), listing.Kind()});
        if (listing.Error() != 0)
            m_unread.push_back(CannotBeRead(folder, listing.Error()));
        std::sort(entries.begin(), entries.end(),
                  [](const NamedEntry& left, const NamedEntry& right) { return left.name < right.name; });
        return entries;
    }

    /// The path of the entry `name` of the kind `kind` in `folder`: in this spelling, else in another case; empty where
    /// there is none.
    CString FindIn(const CString& folder, std::u16string_view name, Kind kind)
    {
        if (VyrPlatform::FileSystem::Query(JoinPath(folder, name)).kind == kind)
            return JoinPath(folder, name);
        for (const NamedEntry& entry : EntriesOf(folder))
            if (entry.kind == kind && entry.name.CompareNoCase(name) == 0)
                return JoinPath(folder, entry.name);
        return {};
    }

    /// The file with the path `parts` below `folder`; empty where there is none.
    CString FindFile(CString folder, Parts parts)
    {
        for (const std::u16string_view& part : parts) {
            if (folder.IsEmpty())
                break;
            folder = FindIn(folder, part, &part == parts.end() - 1 ? Kind::File : Kind::Folder);
        }
        return folder;
    }

    /// The folders that could not be read since the last call.
    std::vector<std::string> TakeUnread() { return std::exchange(m_unread, {}); }

private:
    std::vector<std::string> m_unread;
};

CString FindSoftware(Finder& finder, const CString& windowsFolder)
{
    return finder.FindFile(windowsFolder, {u"System32", u"config", u"SOFTWARE"});
}

CString ClassesOf(Finder& finder, const CString& userFolder)
{
    const CString now = finder.FindFile(userFolder, {u"AppData", u"Local", u"Microsoft", u"Windows", u"UsrClass.dat"});
    if (!now.IsEmpty())
        return now;
    // Before Windows Vista.
    return finder.FindFile(userFolder,
                           {u"Local Settings", u"Application Data", u"Microsoft", u"Windows", u"UsrClass.dat"});
}

std::vector<UserHives> UsersOf(Finder& finder, const CString& disk)
{
    std::vector<UserHives> users;
    for (const char16_t* const name : {u"Users", u"Documents and Settings"}) {
        const CString above = finder.FindIn(disk, name, Kind::Folder);
        // Windows Vista and later keep the old name as a link to the new folder.
        if (above.IsEmpty() || VyrPlatform::FileSystem::Query(above).isLink)
            continue;
        for (const NamedEntry& entry : finder.EntriesOf(above)) {
            const CString folder = JoinPath(above, entry.name);
            if (entry.kind != Kind::Folder || VyrPlatform::FileSystem::Query(folder).isLink)
                continue;
            const CString hive = finder.FindIn(folder, u"NTUSER.DAT", Kind::File);
            if (!hive.IsEmpty())
                users.push_back({entry.name, hive, ClassesOf(finder, folder)});
        }
    }
    return users;
}

Place DiskOf(Finder& finder, const CString& windowsFolder, const CString& disk)
{
    Place place;
    place.kind = PlaceKind::Disk;
    place.windowsFolder = windowsFolder;
    place.software = FindSoftware(finder, windowsFolder);
    place.system = finder.FindFile(windowsFolder, {u"System32", u"config", u"SYSTEM"});
    // Folders that were only searched for the Windows folder are not a part of it.
    static_cast<void>(finder.TakeUnread());
    place.users = UsersOf(finder, disk);
    place.unreadFolders = finder.TakeUnread();
    return place;
}

std::optional<Place> FindDisk(Finder& finder, const CString& path)
{
    if (!FindSoftware(finder, path).IsEmpty())
        return DiskOf(finder, path, JoinPath(path, u".."));
    std::vector<CString> found;
    for (const NamedEntry& entry : finder.EntriesOf(path))
        if (entry.kind == Kind::Folder && !FindSoftware(finder, JoinPath(path, entry.name)).IsEmpty())
            found.push_back(JoinPath(path, entry.name));
    if (found.size() > 1)
        throw Text::UsageError(Quoted(path) + " has several Windows folders, " + QuotedAll(found) +
                               "; name one of them");
    if (found.empty())
        return std::nullopt;
    return DiskOf(finder, found.front(), path);
}

std::optional<Place> FindHives(Finder& finder, const CString& path)
{
    Place place;
    place.kind = PlaceKind::Hives;
    place.software = finder.FindIn(path, u"SOFTWARE", Kind::File);
    place.system = finder.FindIn(path, u"SYSTEM", Kind::File);
    const UserHives user = {
        {}, finder.FindIn(path, u"NTUSER.DAT", Kind::File), finder.FindIn(path, u"UsrClass.dat", Kind::File)};
    if (!user.hive.IsEmpty() || !user.classes.IsEmpty())
        place.users.push_back(user);
    if (place.software.IsEmpty() && place.system.IsEmpty() && place.users.empty())
        return std::nullopt;
    return place;
}

std::optional<Place> FindWinePrefix(const CString& path)
{
    if (VyrPlatform::FileSystem::Query(JoinPath(path, u"system.reg")).kind != Kind::File)
        return std::nullopt;
    Place place;
    place.kind = PlaceKind::WinePrefix;
    place.path = path;
    place.windowsFolder = JoinPath(JoinPath(path, u"drive_c"), u"windows");
    return place;
}

/// The content by which a place of each kind is recognised.
std::string MarkOf(PlaceKind kind)
{
    switch (kind) {
    case PlaceKind::Disk:
        return "a Windows disk (none of its folders has 'System32/config/SOFTWARE')";
    case PlaceKind::Hives:
        return "a folder of hives (it has neither 'SOFTWARE' nor 'SYSTEM' nor 'NTUSER.DAT' nor 'UsrClass.dat')";
    default:
        return "a Wine prefix (it has no 'system.reg')";
    }
}

std::optional<Place> FindKind(Finder& finder, const CString& path, PlaceKind kind)
{
    switch (kind) {
    case PlaceKind::Disk:
        return FindDisk(finder, path);
    case PlaceKind::Hives:
        return FindHives(finder, path);
    default:
        return FindWinePrefix(path);
    }
}

/// The registry of `kind`, or of the first kind that matches, in the folder `path`.
Place FindAt(const CString& path, std::optional<PlaceKind> kind)
{
    FolderListing listing(path);
    static_cast<void>(listing.Next());
    if (listing.Error() != 0)
        throw Text::UsageError(CannotBeRead(path, listing.Error()));
    Finder finder;
    std::string sought;
    // A prefix may contain a whole Windows folder in its drive, but not beside its registry; hives come last, since the
    // root of a disk may contain files of such names.
    for (const PlaceKind one : {PlaceKind::WinePrefix, PlaceKind::Disk, PlaceKind::Hives}) {
        if (kind && one != *kind)
            continue;
        if (std::optional<Place> place = FindKind(finder, path, one))
            return *place;
        sought.append(sought.empty() ? "" : ", nor ").append(MarkOf(one));
    }
    std::string what = Quoted(path) + " is " + (kind ? "not " : "neither ") + sought;
    for (const std::string& folder : finder.TakeUnread())
        what += "\n" + folder;
    throw Text::UsageError(what);
}

/// Whether this system has a registry without opening files.
bool HasOwnRegistry()
{
    using namespace VyrPlatform::Registry;
    return Key::Open(HKEY_LOCAL_MACHINE, u"SOFTWARE", Access::Read).IsOpen();
}

/// The prefix that Wine's programs use by default.
Place FindUsualPrefix()
{
    CString path = VyrPlatform::Process::GetEnvironment(u"WINEPREFIX").value_or(CString());
    if (path.IsEmpty())
        if (const auto home = VyrPlatform::Process::GetEnvironment(u"HOME"); home && !home->IsEmpty())
            path = JoinPath(*home, u".wine");
    if (!path.IsEmpty())
        if (std::optional<Place> prefix = FindWinePrefix(path))
            return *prefix;
    throw Text::UsageError("there is no Wine prefix" + (path.IsEmpty() ? std::string() : " in " + Quoted(path)) +
                           "; name a Windows disk, a folder of hives or a Wine prefix");
}

/// Removes all users except `user` from `place`.
void ChooseUser(Place& place, const CString& user)
{
    if (place.kind != PlaceKind::Disk)
        Text::RefuseValue("--user", user, "users can be chosen on a disk only");
    std::vector<CString> names;
    for (const UserHives& one : place.users)
        names.push_back(one.name);
    std::erase_if(place.users, [&user](const UserHives& one) { return one.name.CompareNoCase(user) != 0; });
    if (place.users.empty())
        Text::RefuseValue("--user", user,
                          names.empty() ? "the disk has no users" : "the users of the disk are " + QuotedAll(names));
}

std::string FailureOf(const OpenResult& result)
{
    const std::string file = Quoted(result.file);
    switch (result.outcome) {
    case OpenResult::Outcome::Unreadable:
        return CannotBeRead(result.file, result.error);
    case OpenResult::Outcome::Empty:
        return file + " is empty";
    case OpenResult::Outcome::CutShort:
        return file + " is cut short";
    case OpenResult::Outcome::NotSupported:
        return file + " cannot be read: only vyr for Linux reads the registry of another Windows";
    default:
        return file + " is not a registry file, or is damaged";
    }
}

} // namespace

Place FindPlace(const PlaceRequest& request)
{
    Place place;
    if (request.path)
        place = FindAt(*request.path, request.kind);
    else if (request.kind)
        throw Text::UsageError("name the folder to look in");
    else if (!HasOwnRegistry())
        place = FindUsualPrefix();
    if (request.user)
        ChooseUser(place, *request.user);
    return place;
}

OpenedPlace::~OpenedPlace()
{
    if (m_place.kind != PlaceKind::ThisMachine)
        VyrPlatform::Registry::CloseRegistryFiles();
}

bool OpenedPlace::ShowMachine()
{
    m_notes.failures.insert(m_notes.failures.end(), m_place.unreadFolders.begin(), m_place.unreadFolders.end());
    switch (m_place.kind) {
    case PlaceKind::ThisMachine:
        return true;
    case PlaceKind::WinePrefix:
        return Take(VyrPlatform::Registry::ShowWinePrefix(m_place.path));
    default:
        return Take(VyrPlatform::Registry::ShowHives({m_place.software, m_place.system, {}, {}}));
    }
}

std::size_t OpenedPlace::CountUsers() const
{
    const bool hasHives = m_place.kind == PlaceKind::Disk || m_place.kind == PlaceKind::Hives;
    return hasHives ? m_place.users.size() : 1;
}

bool OpenedPlace::ShowUser(std::size_t index)
{
    if (index >= m_place.users.size())
        return true;
    const UserHives& user = m_place.users[index];
    return Take(VyrPlatform::Registry::ShowUserHives(user.hive, user.classes));
}

CString OpenedPlace::NameOfUser(std::size_t index) const
{
    return index < m_place.users.size() ? m_place.users[index].name : CString();
}

bool OpenedPlace::Take(const OpenResult& result)
{
    for (const CString& file : result.unclosedFiles)
        m_notes.warnings.push_back(Quoted(file) +
                                   " was not closed by its Windows; what was written last may be missing");
    if (result.outcome != OpenResult::Outcome::Shown)
        m_notes.failures.push_back(FailureOf(result));
    return result.outcome == OpenResult::Outcome::Shown;
}

} // namespace VyrHost::Inventory
