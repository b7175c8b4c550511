#include <VyrPlatform/files/DeepWalk.h>

#include "FolderPins.h"

namespace VyrPlatform {

namespace {

thread_local FolderPins* shared = nullptr;

} // namespace

struct DeepWalk::State
{
    FolderPins pins;
};

DeepWalk::DeepWalk() : m_state(std::make_unique<State>())
{
    shared = &m_state->pins;
}

DeepWalk::~DeepWalk()
{
    shared = nullptr;
}

FolderPins* SharedFolderPins() noexcept
{
    return shared;
}

} // namespace VyrPlatform
