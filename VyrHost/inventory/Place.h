/// @file
/// Finds the registry to be listed: that of this machine, a Windows disk, a folder of hives, or a Wine prefix.
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
    /// The disk of a Windows that is not running.
    Disk,
    /// A folder with hives in it.
    Hives,
    WinePrefix
};

/// The place that was requested.
struct PlaceRequest
{
    /// Nothing: the default place of this system.
    std::optional<CString> path;
    /// The kind that it must have; nothing: any.
    std::optional<PlaceKind> kind;
    /// The only user of a disk to be listed; nothing: all.
    std::optional<CString> user;
};

/// The hives of a user.
struct UserHives
{
    /// The name of the user's folder; empty in a folder of hives, where it is unknown.
    CString name;
    CString hive;
    /// Empty where there is none.
    CString classes;
};

/// The location of a registry.
struct Place
{
    PlaceKind kind = PlaceKind::ThisMachine;
    /// The folder of the prefix; else empty.
    CString path;
    /// The folder of the Windows itself, where it is known.
    CString windowsFolder;
    /// For a disk or a folder of hives; an empty path where there is none.
    CString software;
    CString system;
    std::vector<UserHives> users;
    /// Messages about folders that could not be read and may contain further users.
    std::vector<std::string> unreadFolders;
};

/// Finds the requested registry. Names of files on a disk match in any case.
///
/// A disk is a folder with one subfolder that has `System32/config/SOFTWARE`, or that subfolder itself; its users are
/// the folders with an `NTUSER.DAT` in `Users` or `Documents and Settings` beside it. A folder of hives has `SOFTWARE`,
/// `SYSTEM`, `NTUSER.DAT` or `UsrClass.dat`. A Wine prefix has `system.reg`. Without a path it is this machine where
/// the system has a registry of its own, else the prefix in WINEPREFIX, or `.wine` in the user's folder.
/// @throws Text::UsageError where there is none: the message names the files that were searched for, the several
/// Windows folders of the disk, or its users.
[[nodiscard]] Place FindPlace(const PlaceRequest& request);

/// Reasons why a registry could not be read, or may be incomplete. UTF-8, safe to show.
struct Notes
{
    std::vector<std::string> failures;
    std::vector<std::string> warnings;
};

/// Shows the registries of a place below the root keys (VyrPlatform/registry/Registry.h), one after the other, and
/// closes them in its destructor. Adds a note for each that cannot be shown.
class OpenedPlace
{
public:
    OpenedPlace(const Place& place, Notes& notes) : m_place(place), m_notes(notes) {}
    OpenedPlace(const OpenedPlace&) = delete;
    OpenedPlace& operator=(const OpenedPlace&) = delete;
    ~OpenedPlace();

    /// Shows the part that all users share. Call it first, and once.
    /// @return whether there is a registry to list.
    bool ShowMachine();
    /// The number of users to be shown, possibly 0; one where the machine was shown together with its user.
    [[nodiscard]] std::size_t CountUsers() const;
    /// Shows the user `index`, from 0.
    bool ShowUser(std::size_t index);
    /// The name of that user; empty where it is unknown.
    [[nodiscard]] CString NameOfUser(std::size_t index) const;

private:
    bool Take(const VyrPlatform::Registry::OpenResult& result);

    const Place& m_place;
    Notes& m_notes;
};

} // namespace VyrHost::Inventory
