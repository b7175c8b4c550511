#include <VyrPlatform/controls/LinuxListView.h>
#include <VyrPlatform/controls/ListModels.h>

#include <map>
#include <memory>
#include <utility>

namespace VyrPlatform::ListModels {

namespace {

std::map<HWND, std::unique_ptr<ListView>>& Lists()
{
    static std::map<HWND, std::unique_ptr<ListView>> lists;
    return lists;
}

ListView* Find(HWND list)
{
    const auto found = Lists().find(list);
    return found == Lists().end() ? nullptr : found->second.get();
}

} // namespace

HWND Create()
{
    auto list = std::make_unique<ListView>();
    const HWND handle = list->GetHandle();
    Lists().emplace(handle, std::move(list));
    return handle;
}

bool Destroy(HWND list)
{
    return Lists().erase(list) != 0;
}

bool InsertColumn(HWND list, int index, const CString& heading)
{
    ListView* const found = Find(list);
    return found && found->InsertColumn(index, heading);
}

bool DeleteColumn(HWND list, int index)
{
    ListView* const found = Find(list);
    return found && found->DeleteColumn(index);
}

bool MoveColumn(HWND list, int index, int position)
{
    ListView* const found = Find(list);
    return found && found->MoveColumn(index, position);
}

bool SetHasHeader(HWND list, bool hasHeader)
{
    ListView* const found = Find(list);
    if (!found)
        return false;
    found->SetHasHeader(hasHeader);
    return true;
}

} // namespace VyrPlatform::ListModels
