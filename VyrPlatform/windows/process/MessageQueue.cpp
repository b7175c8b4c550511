#include <VyrPlatform/process/MessageQueue.h>

#include <windows.h>

namespace VyrPlatform::MessageQueue {

bool DrainOne()
{
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
