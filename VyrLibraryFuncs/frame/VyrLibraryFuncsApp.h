/// @file
/// The library's application object.
#pragma once

#include <VyrLibraryFuncs/Export.h>
#include <VyrPlatform/process/CWinApp.h>

/// The one instance is created when the library is loaded, after all static settings, and destroyed before them.
class VYR_FUNCS_API CVyrLibraryFuncsApp : public CWinApp
{
public:
    CVyrLibraryFuncsApp();
    ~CVyrLibraryFuncsApp() override;

    /// Called once when the library is loaded.
    /// @return 1: the library can be used.
    int InitInstance() override;
};
