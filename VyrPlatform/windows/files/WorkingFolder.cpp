// Windows opens files by their full paths: there is nothing to do.
#include <VyrPlatform/files/WorkingFolder.h>

namespace VyrPlatform {

struct WorkingFolder::State
{};

WorkingFolder::WorkingFolder() = default;
WorkingFolder::~WorkingFolder() = default;

void WorkingFolder::Enter(const CString& /*path*/) {}

} // namespace VyrPlatform
