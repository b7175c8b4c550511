#include <VyrPlatform/files/FileSystem.h>

namespace VyrPlatform::FileSystem {

bool EndsWithSeparator(std::u16string_view path) noexcept
{
    return !path.empty() && IsSeparator(path.back());
}

CString WithSeparator(const CString& folder)
{
    if (EndsWithSeparator(folder))
        return folder;
    const char16_t separator = Separator();
    return CString::Join({folder, {&separator, 1}});
}

CString JoinPath(const CString& folder, std::u16string_view name)
{
    if (folder.IsEmpty() || EndsWithSeparator(folder))
        return folder + name;
    const char16_t separator = Separator();
    return CString::Join({folder, {&separator, 1}, name});
}

} // namespace VyrPlatform::FileSystem
