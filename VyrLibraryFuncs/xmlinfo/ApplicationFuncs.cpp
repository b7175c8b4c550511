#include <VyrLibraryFuncs/xmlinfo/ApplicationFuncs.h>

#include <VyrLibraryUtils/FileUtils.h>
#include <VyrLibraryUtils/PathUtils.h>
#include <VyrPlatform/documents/PrivateProfile.h>

using VyrLibraryUtils::FileUtils;
using VyrLibraryUtils::PathUtils;

namespace VyrLibraryFuncs {

namespace {

constexpr int capacity = 260;

CString ReadApplicationFile(const CString& section, const CString& key)
{
    const CString path = PathUtils::GetLocalDataApplicationFilePath();
    if (!FileUtils::IsFileExist(path))
        return {};
    return VyrPlatform::PrivateProfile::ReadText(path, section, key, capacity);
}

bool IsStage(const CString& stage, std::u16string_view word)
{
    return !stage.IsEmpty() && stage.CompareNoCase(word) == 0;
}

} // namespace

ApplicationFuncs::ApplicationFuncs() = default;

ApplicationFuncs::~ApplicationFuncs() = default;

ApplicationFuncs& ApplicationFuncs::operator=(const ApplicationFuncs&) = default;

CString ApplicationFuncs::GetLocalDataApplicationVersion()
{
    return GetLocalDataApplication(u"Version");
}

int ApplicationFuncs::IsAlphaVersion()
{
    return IsVersionStagePrefix(u"Alpha");
}

int ApplicationFuncs::IsBetaVersion()
{
    return IsVersionStagePrefix(u"Beta");
}

int ApplicationFuncs::IsReleaseCandidateVersion()
{
    return IsVersionStagePrefix(u"RC");
}

int ApplicationFuncs::IsReleaseToManufacturingVersion()
{
    return IsStage(GetLocalDataApplicationVersion(), u"RTM") ? 1 : 0;
}

int ApplicationFuncs::IsReleaseVersion()
{
    return IsStage(GetLocalDataApplicationVersion(), u"Release") ? 1 : 0;
}

int ApplicationFuncs::IsProductReleaseVersion()
{
    const CString stage = GetLocalDataApplicationVersion();
    return IsStage(stage, u"RTM") || IsStage(stage, u"Release") ? 1 : 0;
}

CString ApplicationFuncs::GetOnlineSupportUrl()
{
    return GetUrl(u"Online Support");
}

CString ApplicationFuncs::GetSendFeedbackUrl()
{
    return GetUrl(u"Send Feedback");
}

CString ApplicationFuncs::GetSendQuestionnaireUrl()
{
    return GetUrl(u"Send Questionnaire");
}

CString ApplicationFuncs::GetLocalDataApplication(CString key)
{
    return ReadApplicationFile(u"Application", key);
}

CString ApplicationFuncs::GetUrl(CString section)
{
    return ReadApplicationFile(section, u"Url");
}

int ApplicationFuncs::IsVersionStagePrefix(CString word)
{
    const CString stage = GetLocalDataApplicationVersion();
    return !word.IsEmpty() && IsStage(stage.Left(word.GetLength()), word) ? 1 : 0;
}

} // namespace VyrLibraryFuncs
