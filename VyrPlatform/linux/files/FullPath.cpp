#include <VyrPlatform/files/FullPath.h>

#include "NativePath.h"

#include <VyrPlatform/process/Process.h>
#include <VyrPlatform/text/Encoding.h>

#include <cstdlib>
#include <memory>
#include <string>

namespace VyrPlatform {

namespace {

void AppendSteps(std::u16string& full, std::u16string_view path)
{
    while (!path.empty()) {
        const std::size_t end = path.find(u'/');
        const std::u16string_view step = path.substr(0, end);
        if (!step.empty() && step != u".") {
            full += u'/';
            full += step;
        }
        path.remove_prefix(end == std::u16string_view::npos ? path.size() : end + 1);
    }
}

} // namespace

CString GetFullPath(const CString& path)
{
    if (path.IsEmpty())
        return path;
    std::u16string full;
    if (path[0] != u'/') {
        const CString current = Process::GetCurrentFolder();
        // From the root the path would lead to something else.
        if (current.IsEmpty())
            return path;
        AppendSteps(full, current);
    }
    AppendSteps(full, path);
    return full.empty() ? CString(u"/") : CString(full);
}

CString GetRealPath(const CString& path)
{
    const std::unique_ptr<char, decltype(&std::free)> real(realpath(NativePath(path).Get(), nullptr), std::free);
    return real ? Encoding::FromNameBytes(real.get()) : CString();
}

} // namespace VyrPlatform
