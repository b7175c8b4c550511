/// @file
/// What is installed in a Windows, as its registry tells it.
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
    /// Those that users installed for themselves.
    User,
    /// Those of all users.
    Machine
};

/// A program with an entry in an uninstall key.
struct Program
{
    VyrLibraryFuncs::ProgramsFeaturesFuncs::ITEM item;
    Scope scope = Scope::Machine;
    /// Whose it is, where the place has several users.
    CString user;

    /// Whether the system's own list of programs leaves it out: it has no name, calls itself a component of the system,
    /// or is a part of another program.
    [[nodiscard]] bool IsHidden() const;
    /// Whether its name or its publisher holds `text`, without regard to case.
    [[nodiscard]] bool Matches(const CString& text) const;
};

/// A product of Windows Installer.
struct Product
{
    VyrLibraryFuncs::ProgramsFeaturesFuncs::INSTALLER_PRODUCTS_ITEM item;
    Scope scope = Scope::Machine;
    CString user;

    /// Whether its name holds `text`, without regard to case.
    [[nodiscard]] bool Matches(const CString& text) const;
};

struct Browser
{
    VyrLibraryFuncs::BrowserFuncs::APPITEM item;

    [[nodiscard]] bool IsPackaged() const { return item.AppType == 1; }
    /// Whether its name holds `text`, without regard to case.
    [[nodiscard]] bool Matches(const CString& text) const;
};

/// The programs of `place`: those of the machine, then those of each user; in each key in its own order.
/// @param with32Bit  also those in the keys of 32-bit programs.
/// @param notes  what could not be read, or not wholly; the rest is listed.
[[nodiscard]] std::vector<Program> ListPrograms(const Place& place, Scope scope, bool with32Bit, Notes& notes);

/// The installer products of `place`, likewise.
[[nodiscard]] std::vector<Product> ListProducts(const Place& place, Scope scope, Notes& notes);

/// The browsers that the machine registers, and the packaged one that the system brought along, where its file is
/// there.
[[nodiscard]] std::vector<Browser> ListBrowsers(const Place& place, Notes& notes);

} // namespace VyrHost::Inventory
