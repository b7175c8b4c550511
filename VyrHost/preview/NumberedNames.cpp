// Makes numbered names, one attempt after the other.
#include <VyrHost/preview/NumberedNames.h>

#include <VyrLibraryUtils/FileUtils.h>
#include <VyrLibraryUtils/StringUtils.h>

#include <bit>

namespace VyrHost {

using VyrLibraryUtils::FileUtils;
using VyrLibraryUtils::StringUtils;

namespace {

/// How many numbers there are before the first one comes again: they wrap in 32 bits.
std::uint64_t Period(int step)
{
    return (std::uint64_t{1} << 32) >> std::countr_zero(static_cast<std::uint32_t>(step));
}

} // namespace

NumberedNames::NumberedNames(const CString& path, bool isFolder,
                             const VyrLibraryFuncs::NameFuncs::CONFLICTITEM& numbering)
    : m_stem(FileUtils::GetSplitFName(path)), m_extension(FileUtils::GetSplitExtension(path, 1)), m_numbering(numbering)
{
    if (isFolder) {
        m_stem = m_stem + m_extension;
        m_extension.Empty();
    }
}

CString NumberedNames::Next()
{
    if (m_attempt == Period(m_numbering.step))
        return {};
    const auto number =
        static_cast<std::int32_t>(static_cast<std::uint32_t>(m_numbering.startNumber) +
                                  static_cast<std::uint32_t>(m_attempt) * static_cast<std::uint32_t>(m_numbering.step));
    ++m_attempt;
    CString text = m_numbering.numberFormat;
    text.Replace(u"?", StringUtils::IntNumberToString(number));
    return m_numbering.position == 0 ? CString::Join({text, m_stem, m_extension})
                                     : CString::Join({m_stem, text, m_extension});
}

} // namespace VyrHost
