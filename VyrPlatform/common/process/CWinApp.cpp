// Counts the objects of the process, and allows the module to be used.
#include <VyrPlatform/common/process/ApplicationCounts.h>
#include <VyrPlatform/process/CWinApp.h>

namespace {

constinit VyrPlatform::ApplicationCounts counts;

} // namespace

CWinApp::CWinApp()
{
    ++counts.alive;
}

CWinApp::~CWinApp()
{
    --counts.alive;
}

int CWinApp::InitInstance()
{
    ++counts.initialised;
    return 1;
}

VyrPlatform::ApplicationCounts VyrPlatform::CountApplications() noexcept
{
    return counts;
}
