// The walk through the keys below one key, and the trace, for the lists of programs and of installer products.
#pragma once

#include <VyrPlatform/process/DebugOutput.h>
#include <VyrPlatform/registry/RegistryValue.h>
#include <VyrPlatform/text/CString.h>

namespace VyrLibraryFuncs {

/// Writes a value that was read to the debugger output.
inline void TraceValue(const CString& name, const CString& text)
{
    VyrPlatform::DebugOutput::Write(CString::Join({u"\t", name, u":", text, u"\r\n"}));
}

/// Calls `visit(name, key)` for each key below the one at `path` that can be opened, in their order, until the
/// enumeration fails. Each name is written to the debugger output.
template <class Visit>
void ForEachSubkey(VyrPlatform::Registry::Handle root, const CString& path, Visit visit)
{
    namespace Registry = VyrPlatform::Registry;
    const Registry::Key key = Registry::Key::Open(root, path, Registry::Access::Read);
    if (!key.IsOpen())
        return;
    for (std::uint32_t index = 0;; ++index) {
        const auto [error, name] = Registry::EnumerateKey(key.Get(), index, Registry::bufferCapacity);
        if (error != Registry::Error::none)
            return;
        VyrPlatform::DebugOutput::Write(name + u"\r\n");
        const Registry::Key subkey =
            Registry::Key::Open(root, CString::Join({path, u"\\", name}), Registry::Access::Read);
        if (subkey.IsOpen())
            visit(name, subkey.Get());
    }
}

} // namespace VyrLibraryFuncs
