#include <VyrHost/reports/ReportFile.h>

#include <VyrHost/model/FolderSet.h>
#include <VyrHost/text/Errors.h>
#include <VyrHostPlatform/DurableFile.h>
#include <VyrPlatform/files/FileSystem.h>
#include <VyrPlatform/files/FullPath.h>

namespace VyrHost::Reports {

namespace {

namespace FileSystem = VyrPlatform::FileSystem;

constexpr const char* option = "--html";

/// Refuses the path of a missing file that cannot become one.
void CheckNewFile(const CString& path)
{
    const std::u16string_view name = Model::NamePart(path);
    if (name.empty() || name == u"." || name == u"..")
        Text::RefuseValue(option, path, "the name of a file is expected at its end");
    if (!FileSystem::IsFolder(Model::FolderPart(VyrPlatform::GetFullPath(path))))
        Text::RefuseValue(option, path, "its folder does not exist");
}

} // namespace

void CheckReportFile(const CString& path, bool mayReplace)
{
    if (path == u"-")
        Text::RefuseValue(option, path, "a page is written to a file; ./- is one of that name");
    switch (FileSystem::Query(path).kind) {
    case FileSystem::Kind::Missing:
        CheckNewFile(path);
        break;
    case FileSystem::Kind::File:
        if (!mayReplace)
            Text::RefuseValue(option, path, "it exists; --overwrite replaces it");
        break;
    case FileSystem::Kind::Folder:
        Text::RefuseValue(option, path, "it is a folder");
    case FileSystem::Kind::Other:
        Text::RefuseValue(option, path, "it is not a regular file");
    }
}

std::uint32_t WriteReportFile(const CString& path, bool mayReplace,
                              const std::function<void(const TakePiece& take)>& content)
{
    // Windows does not make the path of a rename absolute, so it must not depend on the current folder.
    const bool isLink = FileSystem::Query(path).isLink;
    const CString full = isLink ? VyrPlatform::GetRealPath(path) : VyrPlatform::GetFullPath(path);
    return VyrHostPlatform::DurableFile::WriteWhole(full, content, mayReplace);
}

} // namespace VyrHost::Reports
