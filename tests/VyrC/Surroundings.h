// For tests: what stands on the machine while an operation is called in C and then in C++, and what became of it.
#pragma once

#include "OutsideCalls.h"
#include "SharedValues.h"

#include <tests/support/ComThread.h>
#include <tests/support/HtmlPage.h>
#include <tests/support/ListWindow.h>
#include <tests/support/ScratchFolder.h>
#include <tests/support/ScratchRegistry.h>
#include <tests/support/UserData.h>

#include <optional>
#include <string>

namespace VyrCTests {

/// What the calls of an operation need.
struct Parts
{
    int rounds = 12;
    /// It changes what is outside the libraries.
    bool acts = false;
    /// What it changes can be seen from outside the library that keeps it.
    bool isSeen = true;
    bool hasList = false;
    bool hasRegistry = false;
};

class Surroundings
{
public:
    explicit Surroundings(const Parts& parts);

    /// Makes everything as it was, for the next call.
    void Prepare();
    /// What stands there: files, the user's keys of the registry, the styles of the page, and what left the process.
    [[nodiscard]] std::string State() const;

private:
    void MakeFiles();
    void MakeRegistry();

    bool m_hasRegistry;
    VyrTests::ComThread m_com;
    VyrTests::ScratchFolder m_folder;
    std::optional<VyrTests::UserData> m_userData;
    std::optional<VyrTests::ScratchRegistry> m_registry;
    std::optional<VyrTests::ListWindow> m_list;
    std::optional<VyrTests::HtmlPage> m_page;
    std::optional<OutsideCalls> m_outside;
    CString m_paths[6];
};

} // namespace VyrCTests
