// Makes and mounts a small NTFS with the tools of ntfs-3g.
#include <tests/support/StdPath.h>
#include <tests/support/linux/NtfsDisk.h>

#include <gtest/gtest.h>

#include <cstdlib>
#include <sys/mount.h>

namespace VyrTests {

namespace {

/// @return whether the shell's `command` succeeded.
bool Run(const std::string& command)
{
    return std::system((command + " >/dev/null 2>&1").c_str()) == 0;
}

} // namespace

NtfsDisk::NtfsDisk() : m_path(m_scratch.MakeFolder(u"disk"))
{
    const std::filesystem::path image = ToStdPath(m_scratch.WriteFile(u"image"));
    std::filesystem::resize_file(image, 16'000'000);
    if (!Run("command -v mkntfs ntfs-3g"))
        m_whyNot = "ntfs-3g is not installed";
    else if (!Run("mkntfs --force --quick '" + image.native() + "'"))
        m_whyNot = "mkntfs made no NTFS";
    else if (!Run("ntfs-3g -o streams_interface=xattr '" + image.native() + "' '" + ToStdPath(m_path).native() + "'"))
        m_whyNot = "ntfs-3g cannot mount here (it needs root and /dev/fuse)";
}

NtfsDisk::~NtfsDisk()
{
    if (!m_whyNot.empty())
        return;
    EXPECT_EQ(umount2(ToStdPath(m_path).c_str(), 0), 0);
}

} // namespace VyrTests
