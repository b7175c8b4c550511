// Linux has no debugger output: what no sink takes is discarded.
#include <VyrPlatform/common/process/SystemDebugOutput.h>

namespace VyrPlatform::DebugOutput {

void WriteToSystem(const CString& /*text*/) {}

} // namespace VyrPlatform::DebugOutput
