// Everything that exists from the library's load to its unload, in the order in which it is created. It stands in one
// source because only within one source is that order certain; no other source has a dynamic initialiser.
#include <VyrLibraryFuncs/frame/VyrLibraryFuncsApp.h>

namespace {

/// Tells the application object that the module is loaded.
class ModuleState
{
public:
    explicit ModuleState(CWinApp& application) { application.InitInstance(); }
};

// The static settings of the classes come before this line.

CVyrLibraryFuncsApp application;
const ModuleState moduleState(application);

} // namespace
