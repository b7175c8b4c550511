// Makes numbered names.
#include <VyrHost/rename/ConflictResolver.h>

#include <VyrLibraryUtils/FileUtils.h>
#include <VyrLibraryUtils/StringUtils.h>

#include <algorithm>
#include <bit>
#include <string>
#include <utility>

namespace VyrHost::Rename {

using VyrLibraryUtils::FileUtils;
using VyrLibraryUtils::StringUtils;

namespace {

CString NumberText(std::int32_t number, int digits)
{
    const CString text = StringUtils::IntNumberToString(number);
    const int signLength = number < 0 ? 1 : 0;
    const std::u16string zeros(static_cast<std::size_t>(std::max(digits - text.GetLength() + signLength, 0)), u'0');
    return CString::Join({text.Left(signLength), zeros, text.Mid(signLength)});
}

} // namespace

NumberedName::NumberedName(const CString& path, bool isFolder)
    : m_stem(FileUtils::GetSplitFName(path)), m_extension(FileUtils::GetSplitExtension(path, 1))
{
    if (isFolder) {
        m_stem = m_stem + m_extension;
        m_extension.Empty();
    }
}

NumberedName::NumberedName(CString stem, CString extension) : m_stem(std::move(stem)), m_extension(std::move(extension))
{}

NumberedName NumberedName::OfSidecar(std::u16string_view extension) const
{
    return {m_stem, m_extension + extension};
}

CString NumberedName::With(const VyrLibraryFuncs::NameFuncs::CONFLICTITEM& numbering, int digits,
                           std::uint64_t attempt) const
{
    const std::uint32_t number = static_cast<std::uint32_t>(numbering.startNumber) +
                                 static_cast<std::uint32_t>(attempt) * static_cast<std::uint32_t>(numbering.step);
    const CString text = VyrLibraryFuncs::FillConflictPattern(numbering.numberFormat,
                                                              NumberText(static_cast<std::int32_t>(number), digits));
    return numbering.position == static_cast<int>(VyrLibraryFuncs::NameFuncs::ConflictPosition::BeforeName)
               ? CString::Join({text, m_stem, m_extension})
               : CString::Join({m_stem, text, m_extension});
}

std::uint64_t CountNumbers(int step)
{
    return (std::uint64_t{1} << 32) >> std::countr_zero(static_cast<std::uint32_t>(step));
}

} // namespace VyrHost::Rename
