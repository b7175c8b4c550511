// The settings, and the comparison with the running program.
#include <VyrLibraryFuncs/xmlinfo/UpdatesFuncs.h>

#include <VyrLibraryUtils/StringUtils.h>
#include <VyrLibraryUtils/VersionUtils.h>

#include <array>
#include <utility>

using VyrLibraryUtils::StringUtils;
using VyrLibraryUtils::VersionUtils;

namespace VyrLibraryFuncs {

UpdatesFuncs::UpdatesFuncs() = default;

UpdatesFuncs::~UpdatesFuncs() = default;

UpdatesFuncs& UpdatesFuncs::operator=(const UpdatesFuncs&) = default;

void UpdatesFuncs::InitializeUpdatesInformation()
{
    for (CString* const text : {&m_type, &m_productName, &m_version, &m_edition, &m_detailsUrl, &m_downloadUrl})
        text->Empty();
    m_updateItemsList.clear();
}

void UpdatesFuncs::SetType(CString type)
{
    m_type = std::move(type);
}

CString UpdatesFuncs::GetType()
{
    return m_type;
}

void UpdatesFuncs::SetProductName(CString productName)
{
    m_productName = std::move(productName);
}

CString UpdatesFuncs::GetProductName()
{
    return m_productName;
}

void UpdatesFuncs::SetVersion(CString version)
{
    m_version = std::move(version);
}

CString UpdatesFuncs::GetVersion()
{
    return m_version;
}

void UpdatesFuncs::SetEdition(CString edition)
{
    m_edition = std::move(edition);
}

CString UpdatesFuncs::GetEdition()
{
    return m_edition;
}

void UpdatesFuncs::SetPlatformBit(CString platformBit)
{
    m_platformBit = std::move(platformBit);
}

CString UpdatesFuncs::GetPlatformBit()
{
    return m_platformBit;
}

void UpdatesFuncs::SetDetailsURL(CString detailsUrl)
{
    m_detailsUrl = std::move(detailsUrl);
}

CString UpdatesFuncs::GetDetailsURL()
{
    return m_detailsUrl;
}

void UpdatesFuncs::SetDownloadURL(CString downloadUrl)
{
    m_downloadUrl = std::move(downloadUrl);
}

CString UpdatesFuncs::GetDownloadURL()
{
    return m_downloadUrl;
}

void UpdatesFuncs::SetUpdateItemsList(std::vector<UPDATEITEM> items)
{
    m_updateItemsList = std::move(items);
}

std::vector<UpdatesFuncs::UPDATEITEM> UpdatesFuncs::GetUpdateItemsList()
{
    return m_updateItemsList;
}

void UpdatesFuncs::SetCheckedDate(CString checkedDate)
{
    m_checkedDate = std::move(checkedDate);
}

CString UpdatesFuncs::GetCheckedDate()
{
    return m_checkedDate;
}

int UpdatesFuncs::CheckForUpdates(CString version)
{
    constexpr int partCount = 4;
    if (StringUtils::GetTokenizeStringCount(version, u".") != partCount)
        return 0;
    std::array<int, partCount> offered;
    for (int part = 0; part < partCount; ++part)
        offered[static_cast<std::size_t>(part)] = StringUtils::GetTokenizeInt(version, u".", part);
    const std::array<int, partCount> own = {VersionUtils::GetFileMajorVersion(), VersionUtils::GetFileMinorVersion(),
                                            VersionUtils::GetFileRevisionVersion(),
                                            VersionUtils::GetFileBuildVersion()};
    return own < offered ? 1 : 0;
}

} // namespace VyrLibraryFuncs
