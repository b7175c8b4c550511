// Mounts file systems by the system's own programs, and protects folders.
#include <tests/support/linux/MountedFolder.h>

#include <tests/support/ChildProcess.h>
#include <tests/support/StdPath.h>

#include <VyrPlatform/text/Encoding.h>

#include <gtest/gtest.h>

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <linux/fs.h>
#include <sys/ioctl.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <unistd.h>

namespace VyrTests {

namespace {

namespace fs = std::filesystem;

/// The full path of the program `name`; empty when there is none.
CString FindProgram(const std::string& name)
{
    for (const char* folder : {"/usr/bin/", "/bin/", "/usr/sbin/", "/sbin/"})
        if (fs::exists(folder + name))
            return FromStdPath(folder + name);
    return {};
}

/// @return why `name` did not succeed, with its output in `output`; empty when it did.
std::string Run(const std::string& name, const std::vector<CString>& arguments, std::string& output)
{
    const CString program = FindProgram(name);
    if (program.IsEmpty())
        return "needs the program " + name;
    const ProgramResult result = RunProgram({.program = program, .arguments = arguments});
    output = result.output;
    return result.exitCode == 0 ? "" : name + " failed: " + result.output + result.errors;
}

std::string Run(const std::string& name, const std::vector<CString>& arguments)
{
    std::string output;
    return Run(name, arguments, output);
}

std::string MountMemory(const CString& folder, const std::string& options)
{
    if (mount("tmpfs", ToStdPath(folder).c_str(), "tmpfs", 0, options.c_str()) == 0)
        return {};
    return std::string("a file system in memory cannot be mounted: ") + std::strerror(errno);
}

bool SetImmutable(const CString& folder, bool isImmutable)
{
    const int descriptor = open(ToStdPath(folder).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    int flags = 0;
    bool isSet = descriptor >= 0 && ioctl(descriptor, FS_IOC_GETFLAGS, &flags) == 0;
    flags = isImmutable ? flags | FS_IMMUTABLE_FL : flags & ~FS_IMMUTABLE_FL;
    isSet = isSet && ioctl(descriptor, FS_IOC_SETFLAGS, &flags) == 0;
    if (descriptor >= 0)
        close(descriptor);
    return isSet;
}

} // namespace

MountedFolder::MountedFolder(Kind kind, const std::string& options)
{
    const CString folder = m_scratch.MakeFolder(u"mounted");
    if (geteuid() != 0)
        m_whyNot = "only root may mount";
    else if (kind == Kind::Memory)
        m_whyNot = MountMemory(folder, options);
    else if (kind == Kind::PassedThrough)
        m_whyNot = MountPassedThrough(folder, options);
    else
        m_whyNot = MountExfat();
}

std::string MountedFolder::MountPassedThrough(const CString& folder, const std::string& options)
{
    std::vector<CString> arguments{m_scratch.MakeFolder(u"behind"), folder};
    if (!options.empty())
        arguments.push_back(VyrPlatform::Encoding::FromUtf8(options));
    return Run("bindfs", arguments);
}

std::string MountedFolder::MountExfat()
{
    const CString image = m_scratch.WriteFile(u"image");
    fs::resize_file(ToStdPath(image), 12 << 20);
    std::string whyNot = Run("mkfs.exfat", {image});
    if (!whyNot.empty())
        return whyNot;
    std::string device;
    whyNot = Run("losetup", {u"--find", u"--show", image}, device);
    if (!whyNot.empty())
        return whyNot;
    m_device = VyrPlatform::Encoding::FromUtf8(device.substr(0, device.find('\n')));
    return Run("mount.exfat-fuse", {m_device, Path()});
}

MountedFolder::~MountedFolder()
{
    if (m_whyNot.empty())
        umount2(ToStdPath(Path()).c_str(), 0);
    const std::string whyNot = m_device.IsEmpty() ? "" : Run("losetup", {u"--detach", m_device});
    EXPECT_EQ(whyNot, "");
}

CString MountedFolder::Path(std::u16string_view name) const
{
    return m_scratch.Path(u"mounted/" + CString(name));
}

WriteProtection::WriteProtection(const CString& folder) : m_folder(folder)
{
    if (geteuid() != 0)
        chmod(ToStdPath(folder).c_str(), 0500);
    else if (!SetImmutable(folder, true))
        m_whyNot = "root may write everywhere, and the file system has no folders that no one may change";
}

WriteProtection::~WriteProtection()
{
    if (geteuid() != 0)
        chmod(ToStdPath(m_folder).c_str(), 0700);
    else
        SetImmutable(m_folder, false);
}

} // namespace VyrTests
