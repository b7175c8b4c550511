// A folder whose files are about to be opened, on Windows: opening by a full path is all there is.
#include <VyrPlatform/files/WorkingFolder.h>

namespace VyrPlatform {

struct WorkingFolder::State
{};

WorkingFolder::WorkingFolder() = default;
WorkingFolder::~WorkingFolder() = default;

void WorkingFolder::Enter(const CString& /*path*/) {}

} // namespace VyrPlatform
