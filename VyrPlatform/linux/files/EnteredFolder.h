// Opens files through the folder that a thread has entered.
#pragma once

namespace VyrPlatform {

/// Opens the file at `path` as open() does; relative to the folder that this thread has entered, where the file is in
/// it.
[[nodiscard]] int OpenFromEnteredFolder(const char* path, int flags);

} // namespace VyrPlatform
