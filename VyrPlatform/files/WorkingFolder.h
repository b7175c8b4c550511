/// @file
/// A folder whose files are about to be opened.
#pragma once

#include <VyrPlatform/Export.h>
#include <VyrPlatform/text/CString.h>

#include <memory>

namespace VyrPlatform {

/// While it lives, FileReader opens the files that stand in one folder, on the thread that entered it, from there: the
/// system need not walk down to the folder anew for each of them. It is found once, when its first file is opened; it
/// is the same folder from then on, also when another takes its name. On Windows it has no effect.
class VYR_PLATFORM_API WorkingFolder
{
public:
    WorkingFolder();
    WorkingFolder(const WorkingFolder&) = delete;
    WorkingFolder& operator=(const WorkingFolder&) = delete;
    ~WorkingFolder();

    /// Enters the folder at `path`, which is absolute and ends in a separator, and leaves the one before. Costs next to
    /// nothing for the folder it is in. At most one object of a thread may have entered a folder.
    void Enter(const CString& path);

private:
    struct State;
    std::unique_ptr<State> m_state;
};

} // namespace VyrPlatform
