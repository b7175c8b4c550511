#include <VyrHost/cli/KeptRules.h>

#include <VyrHost/cli/Arguments.h>
#include <VyrHost/text/Errors.h>
#include <VyrHost/text/NearestWord.h>
#include <VyrHost/text/SafeText.h>
#include <VyrHostPlatform/DurableFile.h>
#include <VyrHostPlatform/NameRules.h>
#include <VyrHostPlatform/ReadToEnd.h>
#include <VyrLibraryUtils/FileUtils.h>
#include <VyrLibraryUtils/FolderUtils.h>
#include <VyrLibraryUtils/PathUtils.h>
#include <VyrPlatform/files/FileIdentity.h>
#include <VyrPlatform/files/FileSystem.h>
#include <VyrPlatform/files/FolderListing.h>
#include <VyrPlatform/process/Process.h>
#include <VyrPlatform/text/Encoding.h>

#include <algorithm>
#include <cstdint>
#include <optional>
#include <string_view>

namespace VyrHost::Cli {

namespace {

using VyrPlatform::FileSystem::JoinPath;
using VyrPlatform::FileSystem::Kind;

constexpr std::u16string_view ending = u".rules";

bool IsPath(const CString& name)
{
    const std::u16string_view units = name;
    return units.ends_with(ending) || std::any_of(units.begin(), units.end(), VyrPlatform::FileSystem::IsSeparator);
}

[[noreturn]] void RefuseFile(const char* what, const CString& path, std::uint32_t error)
{
    throw Text::UsageError(std::string(what) + " '" + Text::SafeText(path) +
                           "': " + Text::SafeText(Text::ErrorText(error)));
}

bool IsThere(const CString& path)
{
    return VyrPlatform::LookAtFile(path).kind != Kind::Missing;
}

} // namespace

CString KeptRulesFolder()
{
    const std::optional<CString> named = VyrPlatform::Process::GetEnvironment(u"VYR_RULES_DIR");
    if (named && !named->IsEmpty())
        return *named;
    using VyrLibraryUtils::FileUtils;
    const CString settings = FileUtils::GetSplitDirPath(VyrLibraryUtils::PathUtils::GetUpdatesFilePath());
    return settings.IsEmpty() ? settings : JoinPath(settings, u"rules");
}

std::vector<CString> NamesOfKeptRules()
{
    std::vector<CString> names;
    VyrPlatform::FolderListing listing(KeptRulesFolder());
    while (listing.Next()) {
        const CString& name = listing.Name();
        if (name.View().ends_with(ending) && name.View().size() > ending.size() && listing.Kind() == Kind::File)
            names.push_back(name.Left(name.GetLength() - static_cast<int>(ending.size())));
    }
    std::sort(names.begin(), names.end());
    return names;
}

CString PathOfKeptRules(const CString& name)
{
    if (IsPath(name))
        return name;
    const CString fileName = name + ending;
    const CString folder = KeptRulesFolder();
    // A name that is valid on every system, so that rules can be shared.
    const bool isGood = !name.IsEmpty() && name[0] != u'-' && name[0] != u'.' &&
                        VyrHostPlatform::CheckName(fileName).fault == VyrHostPlatform::NameFault::None &&
                        VyrHostPlatform::CheckName(name).fault == VyrHostPlatform::NameFault::None;
    if (!isGood)
        throw Text::UsageError("'" + Text::SafeText(name) + "' is not a name for rules");
    if (folder.IsEmpty())
        throw Text::UsageError("the system names no folder for the user's settings; VYR_RULES_DIR can name one");
    return JoinPath(folder, fileName);
}

std::string LoadRules(const CString& name)
{
    const CString path = PathOfKeptRules(name);
    if (!IsPath(name) && !IsThere(path)) {
        std::vector<std::string> known;
        for (const CString& one : NamesOfKeptRules())
            known.push_back(VyrPlatform::Encoding::ToNameBytes(one));
        throw Text::UsageError("no rules are kept under the name '" + Text::SafeText(name) + "'" +
                               Text::Hint(VyrPlatform::Encoding::ToNameBytes(name), known) +
                               "\nvyr rules lists the names.");
    }
    std::uint32_t error = 0;
    std::optional<std::string> text = VyrHostPlatform::ReadToEnd(path, error);
    if (!text)
        RefuseFile("cannot read the rules", path, error);
    return std::move(*text);
}

void SaveRules(const CString& name, const std::string& text)
{
    const CString path = PathOfKeptRules(name);
    if (IsThere(path)) {
        if (LoadRules(name) == text)
            return;
        throw Text::UsageError("other rules are kept there already; choose another name, or remove '" +
                               Text::SafeText(path) + "' first");
    }
    const CString folder = VyrLibraryUtils::FileUtils::GetSplitDirPath(path);
    if (!IsPath(name))
        VyrLibraryUtils::FolderUtils::CreateFolderPathExists(folder);
    const auto content = [&text](const VyrHostPlatform::DurableFile::TakePiece& take) {
        take(text);
    };
    const std::uint32_t error =
        VyrHostPlatform::DurableFile::WriteNew(path, content, VyrHostPlatform::DurableFile::Readers::ByMask);
    if (error)
        RefuseFile("cannot write the rules", path, error);
}

} // namespace VyrHost::Cli
