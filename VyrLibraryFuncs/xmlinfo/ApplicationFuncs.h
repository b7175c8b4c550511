/// @file
/// The application information file.
#pragma once

#include <VyrLibraryFuncs/Export.h>
#include <VyrPlatform/text/CString.h>

namespace VyrLibraryFuncs {

/// Reads the application information file of a host (PathUtils::GetLocalDataApplicationFilePath): the release stage of
/// the installed build, and the addresses of three pages.
///
///     [Application]
///     Version=RC1
///     [Online Support]
///     Url=https://example.org/support
///     [Send Feedback]
///     Url=https://example.org/feedback
///     [Send Questionnaire]
///     Url=https://example.org/questions
///
/// It is a private-profile file (VyrPlatform::PrivateProfile), read in each call. A missing file or key gives an empty
/// text; a value of more than 259 code units is truncated.
class VYR_FUNCS_API ApplicationFuncs
{
public:
    ApplicationFuncs();
    ~ApplicationFuncs();
    ApplicationFuncs& operator=(const ApplicationFuncs& other);

    /// The release stage, unchanged.
    static CString GetLocalDataApplicationVersion();
    /// 1 when the stage begins with "Alpha" in any case, also "Alphabet", else 0.
    static int IsAlphaVersion();
    /// 1 when the stage begins with "Beta" in any case, else 0.
    static int IsBetaVersion();
    /// 1 when the stage begins with "RC" in any case, else 0.
    static int IsReleaseCandidateVersion();
    /// 1 when the stage is "RTM" in any case, else 0.
    static int IsReleaseToManufacturingVersion();
    /// 1 when the stage is "Release" in any case, else 0. "Release 2" is not.
    static int IsReleaseVersion();
    /// 1 when the stage is "RTM" or "Release" in any case, else 0.
    static int IsProductReleaseVersion();
    /// The address of the online support page.
    static CString GetOnlineSupportUrl();
    /// The address of the feedback form.
    static CString GetSendFeedbackUrl();
    /// The address of the questionnaire.
    static CString GetSendQuestionnaireUrl();

private:
    friend struct PrivateOperations;

    static CString GetLocalDataApplication(CString key);
    static CString GetUrl(CString section);
    static int IsVersionStagePrefix(CString word);
};

} // namespace VyrLibraryFuncs
