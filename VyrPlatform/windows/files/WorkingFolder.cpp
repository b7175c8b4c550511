// Windows opens files by their full paths: nothing is to be done.
#include <VyrPlatform/files/WorkingFolder.h>

namespace VyrPlatform {

struct WorkingFolder::State
{};

WorkingFolder::WorkingFolder() = default;
WorkingFolder::~WorkingFolder() = default;

void WorkingFolder::Enter(const CString& /*path*/) {}

} // namespace VyrPlatform
