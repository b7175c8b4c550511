// The folder that a thread has entered, for those who open files.
#pragma once

namespace VyrPlatform {

/// Opens the file at `path` as open() does, from the folder that this thread has entered where the file stands in it.
[[nodiscard]] int OpenFromEnteredFolder(const char* path, int flags);

} // namespace VyrPlatform
