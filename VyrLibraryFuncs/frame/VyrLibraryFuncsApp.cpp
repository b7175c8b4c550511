#include <VyrLibraryFuncs/frame/VyrLibraryFuncsApp.h>

CVyrLibraryFuncsApp::CVyrLibraryFuncsApp() = default;

CVyrLibraryFuncsApp::~CVyrLibraryFuncsApp() = default;

int CVyrLibraryFuncsApp::InitInstance()
{
    CWinApp::InitInstance();
    return 1;
}
