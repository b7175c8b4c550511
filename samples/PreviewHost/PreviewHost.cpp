// A host outside the library's tree. It shows numbered names for the files of a folder, and its own version; it renames
// nothing.
#include <VyrLibraryFuncs/name/NameFuncs.h>
#include <VyrLibraryUtils/FileUtils.h>
#include <VyrLibraryUtils/VersionUtils.h>
#include <VyrPlatform/files/FolderListing.h>
#include <VyrPlatform/text/Encoding.h>

#include <algorithm>
#include <iostream>
#include <vector>

using VyrLibraryFuncs::NameFuncs;
using VyrLibraryUtils::FileUtils;
using VyrLibraryUtils::VersionUtils;

namespace {

void PrintLine(std::ostream& stream, const CString& line)
{
    stream << VyrPlatform::Encoding::ToUtf8(line) << '\n';
}

/// The host's product name, product version and the four numbers of its file version.
CString GetVersionLine()
{
    CString line;
    line.Format(u"%s %s (%d.%d.%d.%d)", VersionUtils::GetProductName(), VersionUtils::GetStringProductVersion(),
                VersionUtils::GetFileMajorVersion(), VersionUtils::GetFileMinorVersion(),
                VersionUtils::GetFileRevisionVersion(), VersionUtils::GetFileBuildVersion());
    return line;
}

/// The names of the files in `folder`, in the order of their code units.
std::vector<CString> GetFileNames(const CString& folder)
{
    std::vector<CString> names;
    for (VyrPlatform::FolderListing listing(folder); listing.Next();) {
        if (listing.Kind() == VyrPlatform::FileSystem::Kind::File)
            names.push_back(listing.Name());
    }
    std::sort(names.begin(), names.end());
    return names;
}

/// A sequence-number rule: "picture 001", "picture 002" and so on; the extension stays.
NameFuncs::ITEM MakeRule()
{
    NameFuncs::ITEM rule;
    rule.renameType = 0;
    rule.numberPosition = 0;
    rule.numberText1 = u"picture ";
    rule.startNumber = 1;
    rule.digits = 3;
    rule.step = 1;
    return rule;
}

} // namespace

int main(int count, char** arguments)
{
    if (count != 2) {
        PrintLine(std::cerr, u"usage: PreviewHost FOLDER");
        return 2;
    }
    PrintLine(std::cout, GetVersionLine());
    const CString folder = VyrPlatform::Encoding::FromUtf8(arguments[1]);
    NameFuncs::ITEM item = MakeRule();
    for (const CString& name : GetFileNames(folder)) {
        item.filePath = FileUtils::GetCombinePath(folder, name);
        item.dirPath = FileUtils::GetSplitDirPath(item.filePath);
        item.fileName = NameFuncs::GetFName(item.filePath);
        item.extension = NameFuncs::GetExtension(item.filePath);
        const CString renamed = NameFuncs::GetRenameFilePath(item);
        PrintLine(std::cout, name + u" -> " + FileUtils::GetSplitFileName(renamed));
        ++item.index;
    }
    return 0;
}
