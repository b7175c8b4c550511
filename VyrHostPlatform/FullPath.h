/// @file
/// The names of VyrPlatform/files/FullPath.h for the host.
#pragma once

#include <VyrPlatform/files/FullPath.h>

namespace VyrHostPlatform {

using VyrPlatform::GetFullPath;
using VyrPlatform::GetRealPath;

} // namespace VyrHostPlatform
