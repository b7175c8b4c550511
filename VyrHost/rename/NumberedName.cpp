// Makes numbered names.
#include <VyrHost/rename/NumberedName.h>

#include <VyrLibraryUtils/FileUtils.h>
#include <VyrLibraryUtils/StringUtils.h>

#include <bit>

namespace VyrHost::Rename {

using VyrLibraryUtils::FileUtils;
using VyrLibraryUtils::StringUtils;

NumberedName::NumberedName(const CString& path, bool isFolder)
    : m_stem(FileUtils::GetSplitFName(path)), m_extension(FileUtils::GetSplitExtension(path, 1))
{
    if (isFolder) {
        m_stem = m_stem + m_extension;
        m_extension.Empty();
    }
}

CString NumberedName::With(const VyrLibraryFuncs::NameFuncs::CONFLICTITEM& numbering, std::uint64_t attempt) const
{
    const std::uint32_t number = static_cast<std::uint32_t>(numbering.startNumber) +
                                 static_cast<std::uint32_t>(attempt) * static_cast<std::uint32_t>(numbering.step);
    CString text = numbering.numberFormat;
    text.Replace(u"?", StringUtils::IntNumberToString(static_cast<std::int32_t>(number)));
    return numbering.position == 0 ? CString::Join({text, m_stem, m_extension})
                                   : CString::Join({m_stem, text, m_extension});
}

std::uint64_t CountNumbers(int step)
{
    return (std::uint64_t{1} << 32) >> std::countr_zero(static_cast<std::uint32_t>(step));
}

} // namespace VyrHost::Rename
