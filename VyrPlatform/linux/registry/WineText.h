// The text form in which Wine keeps a registry.
#pragma once

#include "MemoryNode.h"

#include <string_view>

namespace VyrPlatform::Registry {

/// What the links of a registry lead into.
struct LinkTargets
{
    std::weak_ptr<Node> machine;
    std::weak_ptr<Node> user;
};

/// Whether `text` begins as such a file does.
[[nodiscard]] bool IsWineText(std::string_view text) noexcept;

/// Reads the keys of `text` into `top`. A line that is damaged is left out; the time and the memory taken are in
/// proportion to the text.
///
/// The format, as Wine writes it: a head line; a section for each key, `[PATH] SECONDS` with a Unix time, in whose path
/// backslashes are doubled; in it lines `#time=` (hexadecimal ticks), `#link`, `#class="..."`, and values
/// `"NAME"=DATA`, where `@` is the default value's name. DATA is `"TEXT"`, `str(TYPE):"TEXT"`, `dword:` and eight
/// hexadecimal digits, or `hex:` or `hex(TYPE):` and bytes with commas, which go on in the next line behind a
/// backslash. Texts have the escapes of C, of which `\x` takes up to four digits. A key that is nothing but the parent
/// of others has no section.
VYR_PLATFORM_API void ReadWineText(std::string_view text, const std::shared_ptr<MemoryNode>& top,
                                   const LinkTargets& links);

} // namespace VyrPlatform::Registry
