/// @file
/// Splits paths into their parts, for the whole library. Private to it.
#pragma once

#include <string_view>

namespace VyrLibraryUtils {

/// The rules of FileUtils.h, with every part as a view of the path.
class PathSplit
{
public:
    explicit PathSplit(std::u16string_view path) noexcept;

    /// The drive or root, empty when there is none.
    [[nodiscard]] std::u16string_view Root() const noexcept;
    [[nodiscard]] std::u16string_view Folder() const noexcept { return m_path.substr(0, m_name); }
    [[nodiscard]] std::u16string_view FileName() const noexcept { return m_path.substr(m_name); }
    [[nodiscard]] std::u16string_view Stem() const noexcept { return m_path.substr(m_name, m_extension - m_name); }
    /// With its dot.
    [[nodiscard]] std::u16string_view Extension() const noexcept { return m_path.substr(m_extension); }

    [[nodiscard]] bool IsSeparator(char16_t unit) const noexcept
    {
        return unit == u'/' || (unit == u'\\' && m_isWindowsStyle);
    }
    /// The last separator in the path, else that of its style.
    [[nodiscard]] char16_t Separator() const noexcept;

private:
    [[nodiscard]] std::size_t FindName() const noexcept;
    [[nodiscard]] std::size_t FindExtension() const noexcept;
    [[nodiscard]] std::size_t SkipSeparators(std::size_t at) const noexcept;
    [[nodiscard]] std::size_t SkipComponent(std::size_t at) const noexcept;
    [[nodiscard]] std::size_t EndOfShare() const noexcept;

    std::u16string_view m_path;
    bool m_isWindowsStyle;
    std::size_t m_name;
    std::size_t m_extension;
};

} // namespace VyrLibraryUtils
