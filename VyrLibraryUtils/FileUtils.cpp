#include <VyrLibraryUtils/FileUtils.h>
#include <VyrLibraryUtils/PathSplit.h>
#include <VyrLibraryUtils/StringUtils.h>
#include <VyrPlatform/files/FileAttributes.h>
#include <VyrPlatform/files/FileSystem.h>
#include <VyrPlatform/files/FolderListing.h>
#include <VyrPlatform/files/NamedStreams.h>
#include <VyrPlatform/process/Process.h>
#include <VyrPlatform/text/Locale.h>

#include <array>
#include <limits>
#include <vector>

namespace VyrLibraryUtils {

using VyrPlatform::FolderListing;
namespace FileSystem = VyrPlatform::FileSystem;
namespace Process = VyrPlatform::Process;

namespace {

/// `part` of `path` as a text; the whole path shares its memory.
CString Take(const CString& path, std::u16string_view part)
{
    return part.size() == path.View().size() ? path : CString(part);
}

CString Combine(const CString& folder, const CString& relative)
{
    if (folder.IsEmpty())
        return relative;
    if (relative.IsEmpty())
        return folder;
    const PathSplit style(folder);
    std::u16string_view head = folder;
    while (!head.empty() && style.IsSeparator(head.back()))
        head.remove_suffix(1);
    std::u16string_view tail = relative;
    while (!tail.empty() && style.IsSeparator(tail.front()))
        tail.remove_prefix(1);
    const char16_t separator = style.Separator();
    return CString::Join({head, {&separator, 1}, tail});
}

std::int64_t AddSaturated(std::int64_t sum, std::int64_t size) noexcept
{
    return size > std::numeric_limits<std::int64_t>::max() - sum ? std::numeric_limits<std::int64_t>::max()
                                                                 : sum + size;
}

/// The total size of the files below `folder`. Uses a list instead of recursion, so that depth is no limit, and the
/// system's own separator, not that of the path's style, since the system finds the files.
std::int64_t SizeOfFolder(const CString& folder)
{
    std::int64_t sum = 0;
    std::vector<CString> pending{FileSystem::WithSeparator(folder)};
    while (!pending.empty()) {
        const CString current = pending.back();
        pending.pop_back();
        for (FolderListing listing(current); listing.Next();) {
            if (listing.IsLink())
                continue;
            const FileSystem::Kind kind = listing.Kind();
            if (kind == FileSystem::Kind::Folder)
                pending.push_back(FileSystem::JoinPath(current, listing.Name()));
            else if (kind == FileSystem::Kind::File)
                sum = AddSaturated(sum, FileSystem::Query(FileSystem::JoinPath(current, listing.Name())).size);
        }
    }
    return sum;
}

std::int64_t SizeOf(const CString& path)
{
    const FileSystem::Entry entry = FileSystem::Query(path);
    if (entry.kind == FileSystem::Kind::Missing)
        return -1;
    return entry.kind == FileSystem::Kind::Folder ? SizeOfFolder(path) : entry.size;
}

CString BytesText(std::int64_t size)
{
    return StringUtils::GetFormatedSizeThousands(size) + (size == 1 ? u" byte" : u" bytes");
}

/// `size` in the first unit in which it is less than 1,000, cut to three digits.
CString ScaledText(std::int64_t size)
{
    static constexpr std::array<std::u16string_view, 5> units{u" KB", u" MB", u" GB", u" TB", u" PB"};
    std::size_t unit = 0;
    std::int64_t one = 1024;
    for (; size / one >= 1000 && unit + 1 < units.size(); ++unit)
        one *= 1024;
    const std::int64_t whole = size / one;
    const int decimals = whole < 10 ? 2 : whole < 100 ? 1 : 0;
    CString text = StringUtils::GetFormatedSizeThousands(whole);
    std::int64_t rest = size % one;
    if (decimals > 0)
        text += VyrPlatform::Locale::GetNumberTexts().decimal;
    for (int digit = 0; digit < decimals; ++digit) {
        // A remainder of a petabyte times ten still fits.
        rest *= 10;
        text += static_cast<char16_t>(u'0' + rest / one);
        rest %= one;
    }
    return text + units[unit];
}

} // namespace

FileUtils::FileUtils() = default;
FileUtils::~FileUtils() = default;
FileUtils& FileUtils::operator=(const FileUtils&) = default;

CString FileUtils::GetSplitDirPath(CString path)
{
    return Take(path, PathSplit(path).Folder());
}

CString FileUtils::GetSplitFName(CString path)
{
    return Take(path, PathSplit(path).Stem());
}

CString FileUtils::GetSplitExtension(CString path, int withDot)
{
    const std::u16string_view extension = PathSplit(path).Extension();
    return extension.substr(withDot == 1 || extension.empty() ? 0 : 1);
}

CString FileUtils::GetSplitFileName(CString path)
{
    return Take(path, PathSplit(path).FileName());
}

CString FileUtils::GetSplitPath(CString path, int part)
{
    const PathSplit split(path);
    switch (part) {
    case 0:
        return path;
    case 1:
        return Take(path, split.Root());
    case 2:
        return Take(path, split.Folder());
    case 3:
        return Take(path, split.FileName());
    case 4:
        return split.Extension();
    case 5:
        return Take(path, split.Stem());
    default:
        return {};
    }
}

CString FileUtils::GetCombinePath(CString folder, CString relative)
{
    return Combine(folder, relative);
}

int FileUtils::IsFileExist(CString path)
{
    return FileSystem::Exists(path);
}

int FileUtils::IsDirectory(CString path)
{
    return FileSystem::IsFolder(path);
}

int FileUtils::IsReadOnly(CString path)
{
    return VyrPlatform::FileAttributes::IsReadOnly(path);
}

int FileUtils::DeleteZoneId(CString path)
{
    return VyrPlatform::NamedStreams::DeleteZoneMark(path) == 0;
}

std::int64_t FileUtils::GetFileSize(CString path)
{
    return SizeOf(path);
}

CString FileUtils::GetFileSize(std::int64_t size, int format)
{
    if (size < 0)
        return {};
    return format == 1 || size < 1024 ? BytesText(size) : ScaledText(size);
}

CString FileUtils::GetModuleFilePath()
{
    return Process::GetProgramPath();
}

CString FileUtils::GetAppFileName()
{
    return PathSplit(Process::GetProgramPath()).FileName();
}

CString FileUtils::GetSystemFilePath(CString name)
{
    return name.IsEmpty() ? name : Combine(Process::GetSystemFolder(), name);
}

CString FileUtils::GetWindowsSystemAppsDirectoryPath()
{
    return Process::GetSystemAppsFolder();
}

} // namespace VyrLibraryUtils
