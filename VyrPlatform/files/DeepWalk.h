/// @file
/// A walk through folders whose paths may be longer than the system takes.
#pragma once

#include <VyrPlatform/Export.h>

#include <memory>

namespace VyrPlatform {

/// While it lives, the calling thread opens each folder above a path of 4,096 bytes or more only once, and not again
/// for each use of such a path. They stay the same folders, even if others get their names. Has no effect on Windows.
/// Walks nest: an event that is handled during a walk may begin another one, which ends before it.
class VYR_PLATFORM_API DeepWalk
{
public:
    DeepWalk();
    DeepWalk(const DeepWalk&) = delete;
    DeepWalk& operator=(const DeepWalk&) = delete;
    ~DeepWalk();

private:
    struct State;
    std::unique_ptr<State> m_state;
};

} // namespace VyrPlatform
