// All objects that exist from the library's load to its unload, in the order of their creation. They are in one source
// because only then the order is certain; no other source has a dynamic initialiser.
#include <VyrLibraryFuncs/frame/VyrLibraryFuncsApp.h>
#include <VyrLibraryFuncs/html/OutputFuncs.h>
#include <VyrLibraryFuncs/metadata/DateTimeFuncs.h>
#include <VyrLibraryFuncs/metadata/OfficePropertyFuncs.h>
#include <VyrLibraryFuncs/programs/ProgramsFeaturesFuncs.h>
#include <VyrLibraryFuncs/programs/RegistryFuncs.h>
#include <VyrLibraryFuncs/select/SearchFuncs.h>
#include <VyrLibraryFuncs/xmlinfo/StyleFuncs.h>
#include <VyrLibraryFuncs/xmlinfo/UpdatesFuncs.h>
#include <VyrLibraryUtils/DateTimeUtils.h>
#include <VyrPlatform/time/Clock.h>

using VyrLibraryUtils::DateTimeUtils;

namespace VyrLibraryFuncs {

CString OfficePropertyFuncs::m_propertyHandlerPattern = u"%s\\ShellEx\\PropertyHandler";
CString OutputFuncs::m_outputFilePath;
int OutputFuncs::m_outputFilterIndex = 0;
CString ProgramsFeaturesFuncs::m_iconFolderName = u"icons";
CString ProgramsFeaturesFuncs::m_outputFilePath;
int ProgramsFeaturesFuncs::m_openOutputFile = 1;
CString RegistryFuncs::m_productKeyPattern = u"SOFTWARE\\%s\\%s\\%d.0";
CString RegistryFuncs::m_uninstallKeyPattern = u"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\%s";
int SearchFuncs::m_searchClosed = 0;
int SearchFuncs::m_dateTimeSearch = 0;
int SearchFuncs::m_dateTimeTarget = 0;
int SearchFuncs::m_dateTimeRange = 0;
COleDateTime SearchFuncs::m_dateTimeFromDateTime =
    DateTimeFuncs::GetCalDateTime(DateTimeUtils::GetBeginDateTime(VyrPlatform::Clock::Now()), 0, 0, -7);
COleDateTime SearchFuncs::m_dateTimeToDateTime = DateTimeUtils::GetEndDateTime(VyrPlatform::Clock::Now());
int SearchFuncs::m_sizeSearch = 0;
int SearchFuncs::m_sizeTarget = 0;
int SearchFuncs::m_sizeRange = 0;
std::int64_t SearchFuncs::m_sizeFromSize = 0;
std::int64_t SearchFuncs::m_sizeToSize = 1024;
std::vector<StyleFuncs::DESIGNITEM> StyleFuncs::m_designItemsList;
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

// Last, after the static settings of the classes.
CVyrLibraryFuncsApp application;
const ModuleState moduleState(application);

} // namespace
