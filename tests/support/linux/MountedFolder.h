// For tests on Linux: file systems of other kinds, and folders that may not be written.
#pragma once

#include <tests/support/ScratchFolder.h>

#include <string>
#include <string_view>

namespace VyrTests {

/// A file system that is mounted as long as the object lives. Only root may mount.
class MountedFolder
{
public:
    enum class Kind
    {
        /// In memory, of a size that its options limit.
        Memory,
        /// A folder of the disk seen through bindfs: the system's rename without replacing is lacking there.
        PassedThrough,
        /// An exFAT image seen through exfat-fuse: upper and lower case are one, the system's rename without replacing
        /// is lacking, and so are hard links.
        Exfat
    };

    /// @param options  of `mount` for one in memory, an option of bindfs for one that is passed through.
    explicit MountedFolder(Kind kind, const std::string& options = {});
    MountedFolder(const MountedFolder&) = delete;
    MountedFolder& operator=(const MountedFolder&) = delete;
    ~MountedFolder();

    /// Why it could not be mounted; empty when it is.
    [[nodiscard]] const std::string& WhyNot() const noexcept { return m_whyNot; }
    [[nodiscard]] CString Path() const { return m_scratch.Path(u"mounted"); }
    [[nodiscard]] CString Path(std::u16string_view name) const;

private:
    [[nodiscard]] std::string MountPassedThrough(const CString& folder, const std::string& options);
    [[nodiscard]] std::string MountExfat();

    ScratchFolder m_scratch;
    std::string m_whyNot;
    /// What stands for the image among the system's disks.
    CString m_device;
};

/// Keeps everyone, root included, from changing the entries of a folder, as long as the object lives.
class WriteProtection
{
public:
    explicit WriteProtection(const CString& folder);
    WriteProtection(const WriteProtection&) = delete;
    WriteProtection& operator=(const WriteProtection&) = delete;
    ~WriteProtection();

    /// Why the folder could not be protected; empty when it is.
    [[nodiscard]] const std::string& WhyNot() const noexcept { return m_whyNot; }

private:
    CString m_folder;
    std::string m_whyNot;
};

} // namespace VyrTests
