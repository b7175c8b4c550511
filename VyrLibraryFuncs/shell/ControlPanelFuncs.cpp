#include <VyrLibraryFuncs/shell/ControlPanelFuncs.h>

#include <VyrLibraryUtils/FileUtils.h>
#include <VyrPlatform/process/Shell.h>

namespace VyrLibraryFuncs {

ControlPanelFuncs::ControlPanelFuncs() = default;
ControlPanelFuncs::~ControlPanelFuncs() = default;
ControlPanelFuncs& ControlPanelFuncs::operator=(const ControlPanelFuncs&) = default;

int ControlPanelFuncs::ExecDateAndTime(HWND owner)
{
    return ExecuteItems(owner, u"/name Microsoft.DateAndTime");
}

int ControlPanelFuncs::ExecProgramsAndFeatures(HWND owner)
{
    return ExecuteItems(owner, u"/name Microsoft.ProgramsAndFeatures");
}

int ControlPanelFuncs::ExecuteItems(HWND owner, CString arguments)
{
    constexpr std::uintptr_t lastFailure = 32;
    const CString program = VyrLibraryUtils::FileUtils::GetSystemFilePath(u"control.exe");
    return VyrPlatform::Shell::Start(owner, program, arguments) > lastFailure;
}

} // namespace VyrLibraryFuncs
