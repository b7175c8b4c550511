#include <VyrPlatform/files/DeepWalk.h>

#include "FolderPins.h"

namespace VyrPlatform {

namespace {

thread_local FolderPins* shared = nullptr;

} // namespace

struct DeepWalk::State
{
    FolderPins pins;
    /// Those of the walk around this one.
    FolderPins* const outer = shared;
};

DeepWalk::DeepWalk() : m_state(std::make_unique<State>())
{
    shared = &m_state->pins;
}

DeepWalk::~DeepWalk()
{
    shared = m_state->outer;
}

FolderPins* SharedFolderPins() noexcept
{
    return shared;
}

} // namespace VyrPlatform
