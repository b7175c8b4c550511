// The application object's base: it has nothing to do, and says that the module may be used.
#include <VyrPlatform/process/CWinApp.h>

CWinApp::CWinApp() = default;

CWinApp::~CWinApp() = default;

int CWinApp::InitInstance()
{
    return 1;
}
