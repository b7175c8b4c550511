// For tests on Linux: a small NTFS, as Windows disks are mounted.
#pragma once

#include <VyrPlatform/text/CString.h>
#include <tests/support/ScratchFolder.h>

#include <string>

namespace VyrTests {

/// A new NTFS of some megabytes, mounted by ntfs-3g until the object ends. Only root can mount it.
class NtfsDisk
{
public:
    NtfsDisk();
    NtfsDisk(const NtfsDisk&) = delete;
    NtfsDisk& operator=(const NtfsDisk&) = delete;
    ~NtfsDisk();

    /// Why there is none; empty when it is mounted.
    [[nodiscard]] const std::string& WhyNot() const noexcept { return m_whyNot; }
    /// A folder of another file system; the disk is "disk" in it.
    [[nodiscard]] const ScratchFolder& Outside() const noexcept { return m_scratch; }
    [[nodiscard]] CString Path(std::u16string_view name) const { return m_path + u"/" + name; }

private:
    ScratchFolder m_scratch;
    CString m_path;
    std::string m_whyNot;
};

} // namespace VyrTests
