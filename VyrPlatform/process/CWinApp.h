/// @file
/// The application object of the platform class library.
#pragma once

#include <VyrPlatform/Export.h>

/// The base of a program's or a library's one application object.
class VYR_PLATFORM_API CWinApp
{
public:
    CWinApp();
    CWinApp(const CWinApp&) = delete;
    CWinApp& operator=(const CWinApp&) = delete;
    virtual ~CWinApp();

    /// Called once when the module is loaded, after its static settings exist.
    /// @return 1 when the module can be used.
    virtual int InitInstance();
};
