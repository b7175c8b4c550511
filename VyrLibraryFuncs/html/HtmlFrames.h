// The line around a tag: its indentation and its end.
#pragma once

#include <VyrPlatform/text/CString.h>

#include <string_view>

namespace VyrLibraryFuncs {

inline constexpr std::u16string_view lineEnd = u"\r\n";

/// `tag` on a line of its own.
[[nodiscard]] inline CString OnLine(std::u16string_view tag)
{
    return CString::Join({tag, lineEnd});
}

/// `tag` followed by an empty line.
[[nodiscard]] inline CString BeforeEmptyLine(std::u16string_view tag)
{
    return CString::Join({tag, lineEnd, lineEnd});
}

/// `tag` on an indented line.
[[nodiscard]] inline CString OnIndentedLine(std::u16string_view tag)
{
    return CString::Join({u"\t", tag, lineEnd});
}

/// `tag`, followed by the end of the line unless `newLine` is 0.
[[nodiscard]] inline CString WithNewLine(std::u16string_view tag, int newLine)
{
    return newLine == 0 ? CString(tag) : OnLine(tag);
}

} // namespace VyrLibraryFuncs
