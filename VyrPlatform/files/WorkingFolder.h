/// @file
/// Speeds up opening many files of one folder.
#pragma once

#include <VyrPlatform/Export.h>
#include <VyrPlatform/text/CString.h>

#include <memory>

namespace VyrPlatform {

/// While it lives, FileReader opens files in the entered folder relative to it, on the thread that entered it, so that
/// the system does not resolve the folder's path for each file. The folder is resolved when its first file is opened,
/// and stays the same folder even if another one gets its name. Has no effect on Windows.
class VYR_PLATFORM_API WorkingFolder
{
public:
    WorkingFolder();
    WorkingFolder(const WorkingFolder&) = delete;
    WorkingFolder& operator=(const WorkingFolder&) = delete;
    ~WorkingFolder();

    /// Enters the folder at `path`, which is absolute and ends in a separator, and leaves the one before. Entering the
    /// same folder again costs almost nothing. Only one object of a thread may have entered a folder at a time.
    void Enter(const CString& path);

private:
    struct State;
    std::unique_ptr<State> m_state;
};

} // namespace VyrPlatform
