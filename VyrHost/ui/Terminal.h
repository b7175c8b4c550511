/// @file
/// What a terminal understands.
#pragma once

#include <VyrHostPlatform/Console.h>

namespace VyrHost::Ui {

/// Whether `stream` is a terminal that obeys escape sequences (colours, erasing a line): any but one that TERM calls
/// "dumb".
[[nodiscard]] bool ObeysEscapes(VyrHostPlatform::Console::Stream stream);

} // namespace VyrHost::Ui
