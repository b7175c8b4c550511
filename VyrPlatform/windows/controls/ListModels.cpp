// Windows has list controls of its own.
#include <VyrPlatform/controls/ListModels.h>

namespace VyrPlatform::ListModels {

HWND Create()
{
    return nullptr;
}

bool Destroy(HWND)
{
    return false;
}

bool InsertColumn(HWND, int, const CString&)
{
    return false;
}

bool DeleteColumn(HWND, int)
{
    return false;
}

bool MoveColumn(HWND, int, int)
{
    return false;
}

bool SetHasHeader(HWND, bool)
{
    return false;
}

} // namespace VyrPlatform::ListModels
