#include <VyrPlatform/process/MainLoop.h>
#include <VyrPlatform/process/MessageQueue.h>

#include <windows.h>

#include <memory>
#include <utility>

namespace VyrPlatform::MessageQueue {

namespace {

thread_local std::shared_ptr<const MainLoopPass> mainLoop;

} // namespace

void PlugMainLoop(MainLoopPass pass)
{
    mainLoop = pass ? std::make_shared<const MainLoopPass>(std::move(pass)) : nullptr;
}

bool DrainOne()
{
    // The pass may unplug itself.
    if (const std::shared_ptr<const MainLoopPass> running = mainLoop)
        return (*running)();
    MSG message;
    if (!::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE))
        return false;
    if (message.message == WM_QUIT)
        return true;
    ::TranslateMessage(&message);
    ::DispatchMessageW(&message);
    return false;
}

} // namespace VyrPlatform::MessageQueue
