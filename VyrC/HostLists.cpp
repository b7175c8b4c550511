#include <VyrC/HostLists.h>

#include <VyrPlatform/controls/ListModels.h>

namespace ListModels = VyrPlatform::ListModels;

namespace VyrC {

HWND HostLists::Create()
{
    return ListModels::Create();
}

int HostLists::Destroy(HWND list)
{
    return ListModels::Destroy(list);
}

int HostLists::InsertColumn(HWND list, int index, CString heading)
{
    return ListModels::InsertColumn(list, index, heading);
}

int HostLists::DeleteColumn(HWND list, int index)
{
    return ListModels::DeleteColumn(list, index);
}

int HostLists::MoveColumn(HWND list, int index, int position)
{
    return ListModels::MoveColumn(list, index, position);
}

int HostLists::SetHasHeader(HWND list, int hasHeader)
{
    return ListModels::SetHasHeader(list, hasHeader != 0);
}

} // namespace VyrC
