/// @file
/// Lists the installed programs in the registry of a Windows.
#pragma once

#include <VyrHost/inventory/Place.h>
#include <VyrLibraryFuncs/programs/ProgramsFeaturesFuncs.h>
#include <VyrLibraryFuncs/shell/BrowserFuncs.h>
#include <VyrPlatform/text/CString.h>

#include <cstdint>
#include <vector>

namespace VyrHost::Inventory {

/// Whose entries are listed.
enum class Scope : std::uint8_t
{
    All,
    /// Those that users have installed for themselves.
    User,
    /// Those of all users.
    Machine
};

/// A program with an entry in an uninstall key.
struct Program
{
    VyrLibraryFuncs::ProgramsFeaturesFuncs::ITEM item;
    Scope scope = Scope::Machine;
    /// The user who has it, where the place has several.
    CString user;

    /// Whether the system's own list of programs leaves it out: it has no name, is a component of the system, or is a
    /// part of another program.
    [[nodiscard]] bool IsHidden() const;
    /// Whether its name or its publisher contains `text`, ignoring case.
    [[nodiscard]] bool Matches(const CString& text) const;
};

/// A product of Windows Installer.
struct Product
{
    VyrLibraryFuncs::ProgramsFeaturesFuncs::INSTALLER_PRODUCTS_ITEM item;
    Scope scope = Scope::Machine;
    CString user;

    /// Whether its name contains `text`, ignoring case.
    [[nodiscard]] bool Matches(const CString& text) const;
};

struct Browser
{
    VyrLibraryFuncs::BrowserFuncs::APPITEM item;

    [[nodiscard]] bool IsPackaged() const { return item.AppType == 1; }
    /// Whether its name contains `text`, ignoring case.
    [[nodiscard]] bool Matches(const CString& text) const;
};

/// The programs of `place`: first those of the machine, then those of each user; each key in its own order.
/// @param with32Bit  whether the keys of 32-bit programs are included.
/// @param notes  gets messages about registries that could not be read, or only in part; the rest is listed.
[[nodiscard]] std::vector<Program> ListPrograms(const Place& place, Scope scope, bool with32Bit, Notes& notes);

/// The installer products of `place`, in the same way.
[[nodiscard]] std::vector<Product> ListProducts(const Place& place, Scope scope, Notes& notes);

/// The browsers that are registered for the machine, and the packaged one of the system, if its file exists.
[[nodiscard]] std::vector<Browser> ListBrowsers(const Place& place, Notes& notes);

} // namespace VyrHost::Inventory
