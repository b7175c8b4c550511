// Icons, dates, sizes, columns and the order of registry keys for lists of installed programs.
#include <VyrLibraryFuncs/programs/ProgramsFeaturesFuncs.h>

#include <VyrLibraryUtils/CompareUtils.h>
#include <VyrLibraryUtils/DateTimeUtils.h>
#include <VyrLibraryUtils/FileUtils.h>
#include <VyrLibraryUtils/RegexUtils.h>
#include <VyrLibraryUtils/StringUtils.h>
#include <VyrPlatform/WinTypes.h>

#include <iterator>

using VyrLibraryUtils::CompareUtils;
using VyrLibraryUtils::DateTimeUtils;
using VyrLibraryUtils::FileUtils;
using VyrLibraryUtils::RegexUtils;
using VyrLibraryUtils::StringUtils;

namespace VyrLibraryFuncs {

namespace {

using Item = ProgramsFeaturesFuncs::ITEM;

constexpr std::uint32_t userLocale = 1024;

constexpr CString Item::*columns[] = {
    &Item::DisplayName,   &Item::Publisher,     &Item::InstallDate,   &Item::FormattedSize,   &Item::DisplayVersion,
    &Item::InstallSource, &Item::URLInfoAbout,  &Item::HelpTelephone, &Item::Unused19,        &Item::HelpLink,
    &Item::Comments,      &Item::URLUpdateInfo, &Item::Unused22,      &Item::InstallLocation, &Item::Readme,
    &Item::RegCompany,    &Item::RegOwner,      &Item::Contact,
};

CString LastName(const CString& key)
{
    const CString separators = u"\\";
    return StringUtils::GetTokenizeString(key, separators, StringUtils::GetTokenizeStringCount(key, separators) - 1);
}

int SignOf(int verdict) noexcept
{
    return (verdict > 0) - (verdict < 0);
}

/// `verdict`, which is ascending, in the requested order.
int Directed(int verdict, int descending) noexcept
{
    return descending ? -verdict : verdict;
}

int CompareTexts(const CString& name1, const CString& name2, int descending)
{
    return SignOf(CompareUtils::CompareText(name1, name2, descending, 0, userLocale));
}

std::uint64_t NumberOf(const CString& name)
{
    return RegexUtils::IsHex(name) ? StringUtils::StringToULongLong(name) : 0;
}

int ComparePlainNames(const CString& name1, const CString& name2, int descending)
{
    const std::uint64_t number1 = NumberOf(name1);
    const std::uint64_t number2 = NumberOf(name2);
    if (number1 != number2)
        return Directed(number1 > number2 ? 1 : -1, descending);
    return CompareTexts(name1, name2, descending);
}

/// The order of a name that begins with a sign other than a brace and a product code, ascending.
int CompareWithProductCode(const CString& plainName)
{
    const CString first = plainName.Left(1);
    return RegexUtils::IsAlphabetNumber(first) || RegexUtils::IsSymbol(first) ? -1 : 1;
}

int CompareNames(const CString& name1, const CString& name2, int descending)
{
    const bool isCode1 = name1[0] == u'{';
    const bool isCode2 = name2[0] == u'{';
    if (isCode1 && isCode2)
        return CompareTexts(name1, name2, descending);
    if (isCode1)
        return Directed(-CompareWithProductCode(name2), descending);
    if (isCode2)
        return Directed(CompareWithProductCode(name1), descending);
    return ComparePlainNames(name1, name2, descending);
}

} // namespace

ProgramsFeaturesFuncs::ProgramsFeaturesFuncs() = default;
ProgramsFeaturesFuncs::~ProgramsFeaturesFuncs() = default;
ProgramsFeaturesFuncs& ProgramsFeaturesFuncs::operator=(const ProgramsFeaturesFuncs&) = default;

CString ProgramsFeaturesFuncs::GetListViewItemText(int column, ITEM item)
{
    return column >= 0 && column < std::ssize(columns) ? item.*columns[column] : CString();
}

std::pair<CString, int> ProgramsFeaturesFuncs::GetApplicationIcon(CString iconText)
{
    const CString separators = u",";
    const int count = StringUtils::GetTokenizeStringCount(iconText, separators);
    if (count < 1)
        return {};
    const CString path =
        StringUtils::GetRemoveDoubleQuotesString(StringUtils::GetTokenizeString(iconText, separators, 0));
    const CString index = StringUtils::GetTokenizeString(iconText, separators, 1);
    return {path, count > 1 ? StringUtils::StringToIntNumber(index) : 0};
}

CString ProgramsFeaturesFuncs::GetInstallDate(CString installDate, CString fallbackDate)
{
    if (!installDate.IsEmpty())
        return installDate;
    return DateTimeUtils::GetFormatedDate(DateTimeUtils::GetParseDateTime(fallbackDate, 1, 0, userLocale));
}

CString ProgramsFeaturesFuncs::GetFormatedSize(CString text, std::uint64_t size, int format)
{
    return text.IsEmpty() ? CString() : FileUtils::GetFileSize(static_cast<std::int64_t>(size), format);
}

int ProgramsFeaturesFuncs::CompareRegKey(CString key1, CString key2, int flag1, int flag2, int descending)
{
    if ((flag1 == 0) != (flag2 == 0))
        return Directed(flag1 != 0 ? 1 : -1, descending);
    const CString name1 = LastName(key1);
    const CString name2 = LastName(key2);
    if (name1.IsEmpty() || name2.IsEmpty())
        return 0;
    return CompareNames(name1, name2, descending);
}

CString ProgramsFeaturesFuncs::GetKeyParentName(HKEY root)
{
    if (root == HKEY_CLASSES_ROOT)
        return u"HKEY_CLASSES_ROOT";
    if (root == HKEY_CURRENT_USER)
        return u"HKEY_CURRENT_USER";
    if (root == HKEY_LOCAL_MACHINE)
        return u"HKEY_LOCAL_MACHINE";
    if (root == HKEY_USERS)
        return u"HKEY_USERS";
    if (root == HKEY_CURRENT_CONFIG)
        return u"HKEY_CURRENT_CONFIG";
    return {};
}

int ProgramsFeaturesFuncs::IsWow6432Node(CString keyPath)
{
    return keyPath.Find(u"Wow6432Node") >= 0;
}

CString ProgramsFeaturesFuncs::GetIconFolderName()
{
    return m_iconFolderName;
}

void ProgramsFeaturesFuncs::SetOutputFilePath(CString path)
{
    m_outputFilePath = path;
}

CString ProgramsFeaturesFuncs::GetOutputFilePath()
{
    return m_outputFilePath;
}

void ProgramsFeaturesFuncs::SetOpenOutputFile(int isOpened)
{
    m_openOutputFile = isOpened;
}

int ProgramsFeaturesFuncs::GetOpenOutputFile()
{
    return m_openOutputFile;
}

} // namespace VyrLibraryFuncs
