// Linux has no debugger output: texts without a sink are discarded.
#include <VyrPlatform/common/process/SystemDebugOutput.h>

namespace VyrPlatform::DebugOutput {

void WriteToSystem(const CString& /*text*/) {}

} // namespace VyrPlatform::DebugOutput
