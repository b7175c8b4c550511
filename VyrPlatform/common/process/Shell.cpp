// Programs are started by the system, or by the starter that was set.
#include <VyrPlatform/common/process/SystemShell.h>
#include <VyrPlatform/process/Shell.h>

#include <utility>

namespace VyrPlatform::Shell {

namespace {

Starter& SetOne()
{
    static Starter starter;
    return starter;
}

} // namespace

std::uintptr_t Start(Window owner, const CString& path, const CString& arguments)
{
    return SetOne() ? SetOne()(owner, path, arguments) : StartBySystem(owner, path, arguments);
}

void SetStarter(Starter starter)
{
    SetOne() = std::move(starter);
}

} // namespace VyrPlatform::Shell
