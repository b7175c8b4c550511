/// @file
/// Looks at many files of few folders.
#pragma once

#include <VyrHost/batch/FileOperations.h>

#include <memory>
#include <unordered_map>

namespace VyrHost::Batch {

/// Keeps the folders open that it was asked for last: to look at a name in an opened folder costs less than at a path.
class Looker
{
public:
    explicit Looker(FileOperations& files) : m_files(files) {}

    /// What stands at `name` in the folder at the absolute path `folder`.
    [[nodiscard]] VyrPlatform::FileState Look(const CString& folder, std::u16string_view name);

private:
    struct Opened
    {
        std::unique_ptr<FolderOperations> folder;
        std::uint32_t error = 0;
    };

    [[nodiscard]] const Opened& Open(const CString& path);

    FileOperations& m_files;
    std::unordered_map<CString, Opened> m_opened;
};

} // namespace VyrHost::Batch
