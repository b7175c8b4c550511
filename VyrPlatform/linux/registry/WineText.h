// The text form of a Wine registry.
#pragma once

#include "MemoryNode.h"

#include <string_view>

namespace VyrPlatform::Registry {

/// The trees into which the links of a registry lead.
struct LinkTargets
{
    std::weak_ptr<Node> machine;
    std::weak_ptr<Node> user;
};

/// Whether `text` begins like such a file.
[[nodiscard]] bool IsWineText(std::string_view text) noexcept;

/// Reads the keys of `text` into `top`. Damaged lines are skipped. Takes linear time and memory.
///
/// The format, as Wine writes it: a header line; a section for each key, `[PATH] SECONDS` with a Unix time, in whose
/// path backslashes are doubled; in it lines `#time=` (hexadecimal ticks), `#link`, `#class="..."`, and values
/// `"NAME"=DATA`, where `@` is the name of the default value. DATA is `"TEXT"`, `str(TYPE):"TEXT"`, `dword:` and eight
/// hexadecimal digits, or `hex:` or `hex(TYPE):` and bytes separated by commas, which a backslash continues on the next
/// line. Texts have the escapes of C, where `\x` takes up to four digits. A key that is only the parent of others has
/// no section.
VYR_PLATFORM_API void ReadWineText(std::string_view text, const std::shared_ptr<MemoryNode>& top,
                                   const LinkTargets& links);

} // namespace VyrPlatform::Registry
