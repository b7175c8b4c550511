/// @file
/// Where a registry is that is asked what is installed: this machine, a Windows disk, a folder of hives, a Wine prefix.
#pragma once

#include <VyrPlatform/registry/RegistryFiles.h>
#include <VyrPlatform/text/CString.h>

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace VyrHost::Inventory {

enum class PlaceKind : std::uint8_t
{
    /// The running Windows.
    ThisMachine,
    /// The disk of a Windows that does not run.
    Disk,
    /// A folder with hives in it.
    Hives,
    WinePrefix
};

/// What was asked for.
struct PlaceRequest
{
    /// Nothing: the place that the system is at home in.
    std::optional<CString> path;
    /// What must be at the path; nothing: what is found there.
    std::optional<PlaceKind> kind;
    /// The one user of a disk who is asked about; nothing: all.
    std::optional<CString> user;
};

/// The hives of a user.
struct UserHives
{
    /// The name of the user's folder; empty in a folder of hives, which does not tell it.
    CString name;
    CString hive;
    /// Empty where there is none.
    CString classes;
};

/// Where a registry is.
struct Place
{
    PlaceKind kind = PlaceKind::ThisMachine;
    /// The folder of the prefix; else empty.
    CString path;
    /// The folder of the Windows itself, where that can be told.
    CString windowsFolder;
    /// Of a disk, or a folder of hives; an empty path where there is none.
    CString software;
    CString system;
    std::vector<UserHives> users;
    /// Where users may be who were not found: what is to be said of each folder that could not be read.
    std::vector<std::string> unreadFolders;
};

/// Finds the registry that was asked for. Names of files on a disk count without regard to case.
///
/// A disk is a folder with one folder in it that has `System32/config/SOFTWARE`, or that folder itself; its users are
/// the folders with an `NTUSER.DAT` in `Users` or `Documents and Settings` beside it. A folder of hives has `SOFTWARE`,
/// `SYSTEM`, `NTUSER.DAT` or `UsrClass.dat`. A Wine prefix has `system.reg`. Without a path it is this machine where
/// the system has a registry of its own, else the prefix that WINEPREFIX names, or `.wine` in the user's folder.
/// @throws Text::UsageError where there is no such thing: with what was looked for, the several Windows folders of the
///     disk, or the users that it has.
[[nodiscard]] Place FindPlace(const PlaceRequest& request);

/// Why a registry could not be read, or what may be missing in it. UTF-8, safe to show.
struct Notes
{
    std::vector<std::string> failures;
    std::vector<std::string> warnings;
};

/// Shows the registries of a place below the root keys (VyrPlatform/registry/Registry.h), one after the other, and
/// closes them at its end. One that cannot be shown is noted.
class OpenedPlace
{
public:
    OpenedPlace(const Place& place, Notes& notes) : m_place(place), m_notes(notes) {}
    OpenedPlace(const OpenedPlace&) = delete;
    OpenedPlace& operator=(const OpenedPlace&) = delete;
    ~OpenedPlace();

    /// Shows what is common to all users: first of all, and once.
    /// @return whether there is anything to be asked.
    bool ShowMachine();
    /// How many users there are to be shown, 0 included; one where the machine was shown with its user.
    [[nodiscard]] std::size_t CountUsers() const;
    /// Shows the user `index`, from 0.
    bool ShowUser(std::size_t index);
    /// The name of that user; empty where there is none to tell.
    [[nodiscard]] CString NameOfUser(std::size_t index) const;

private:
    bool Take(const VyrPlatform::Registry::OpenResult& result);

    const Place& m_place;
    Notes& m_notes;
};

} // namespace VyrHost::Inventory
