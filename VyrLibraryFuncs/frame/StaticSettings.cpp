// Everything that exists from the library's load to its unload, in the order in which it is created. It stands in one
// source because only within one source is that order certain; no other source has a dynamic initialiser.
#include <VyrLibraryFuncs/frame/VyrLibraryFuncsApp.h>
#include <VyrLibraryFuncs/html/OutputFuncs.h>
#include <VyrLibraryFuncs/programs/ProgramsFeaturesFuncs.h>
#include <VyrLibraryFuncs/programs/RegistryFuncs.h>
#include <VyrLibraryFuncs/xmlinfo/UpdatesFuncs.h>

namespace VyrLibraryFuncs {

CString OutputFuncs::m_outputFilePath;
int OutputFuncs::m_outputFilterIndex = 0;
CString ProgramsFeaturesFuncs::m_iconFolderName = u"icons";
CString ProgramsFeaturesFuncs::m_outputFilePath;
int ProgramsFeaturesFuncs::m_openOutputFile = 1;
CString RegistryFuncs::m_productKeyPattern = u"SOFTWARE\\%s\\%s\\%d.0";
CString RegistryFuncs::m_uninstallKeyPattern = u"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\%s";
std::vector<UpdatesFuncs::UPDATEITEM> UpdatesFuncs::m_updateItemsList;
CString UpdatesFuncs::m_type;
CString UpdatesFuncs::m_productName;
CString UpdatesFuncs::m_version;
CString UpdatesFuncs::m_edition;
CString UpdatesFuncs::m_platformBit;
CString UpdatesFuncs::m_detailsUrl;
CString UpdatesFuncs::m_downloadUrl;
CString UpdatesFuncs::m_checkedDate;

} // namespace VyrLibraryFuncs

namespace {

/// Tells the application object that the module is loaded.
class ModuleState
{
public:
    explicit ModuleState(CWinApp& application) { application.InitInstance(); }
};

// Comes last: the static settings of the classes stand above.
CVyrLibraryFuncsApp application;
const ModuleState moduleState(application);

} // namespace
