#include <VyrC/HostQueue.h>

#include <utility>

namespace VyrC {

void HostQueue::SetDrain(VyrPlatform::MessageQueue::MainLoopPass drain)
{
    VyrPlatform::MessageQueue::PlugMainLoop(std::move(drain));
}

} // namespace VyrC
