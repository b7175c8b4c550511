/// @file
/// The class ids under which Windows registers the handlers of documents in ZIP archives. On Linux the library's own
/// handlers have the same.
#pragma once

#include <VyrPlatform/WinTypes.h>

namespace VyrPlatform::PropertyHandlerId {

/// {993BE281-6695-4BA5-8A2A-7AACBFAAB69E}
inline constexpr GUID officeOpenXml{0x993BE281, 0x6695, 0x4BA5, {0x8A, 0x2A, 0x7A, 0xAC, 0xBF, 0xAA, 0xB6, 0x9E}};
/// {AE424E85-F6DF-4910-A6A9-438797986431}
inline constexpr GUID openDocument{0xAE424E85, 0xF6DF, 0x4910, {0xA6, 0xA9, 0x43, 0x87, 0x97, 0x98, 0x64, 0x31}};

} // namespace VyrPlatform::PropertyHandlerId
