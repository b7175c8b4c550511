// Passes debugger output to the sink, else to the system.
#include <VyrPlatform/common/process/SystemDebugOutput.h>
#include <VyrPlatform/process/DebugOutput.h>

#include <utility>

namespace VyrPlatform::DebugOutput {

namespace {

Sink& CurrentSink()
{
    // Never destroyed: late destructors may still write.
    static auto& sink = *new Sink;
    return sink;
}

} // namespace

void Write(const CString& text)
{
    if (const Sink& sink = CurrentSink())
        sink(text);
    else
        WriteToSystem(text);
}

void SetSink(Sink sink)
{
    CurrentSink() = std::move(sink);
}

} // namespace VyrPlatform::DebugOutput
