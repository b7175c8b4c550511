// Assigns and removes the folders of kept files.
#include <VyrHost/batch/KeptFiles.h>

#include <VyrHost/model/Change.h>
#include <VyrHost/model/FolderSet.h>
#include <VyrLibraryUtils/FileUtils.h>
#include <VyrPlatform/files/FileCopy.h>
#include <VyrPlatform/files/FolderListing.h>

#include <charconv>
#include <set>
#include <string>
#include <utility>

namespace VyrHost::Batch {

namespace {

using VyrLibraryUtils::FileUtils;

CString NameOfKept(std::uint32_t number)
{
    CString name;
    name.Format(u"%06u.kept", number);
    return name;
}

/// The number before the dot; 0 when there is none.
std::uint32_t NumberOf(std::u16string_view name)
{
    const std::string digits(name.begin(),
                             name.begin() + static_cast<std::ptrdiff_t>(std::min(name.find(u'.'), name.size())));
    std::uint32_t number = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    return error == std::errc() && end == digits.data() + digits.size() ? number : 0;
}

} // namespace

void GiveKeptPlaces(Journal& journal, const JournalFile& file)
{
    const CString folder = FileUtils::GetCombinePath(Model::FolderPart(file.path), NameOfKept(file.number));
    for (std::size_t index = 0; index < journal.changes.size(); ++index) {
        std::shared_ptr<const Model::Change>& change = journal.changes[index].change;
        const auto* const keeping = dynamic_cast<const Model::KeepsFile*>(change.get());
        if (!keeping)
            continue;
        CString name;
        name.Format(u"%u", static_cast<unsigned>(index));
        change = keeping->KeepingAt(FileUtils::GetCombinePath(folder, name));
    }
}

void RemoveKept(FileOperations& files, const CString& path, std::uint32_t number)
{
    const CString folder = FileUtils::GetCombinePath(path, NameOfKept(number));
    for (VyrPlatform::FolderListing listing(folder); listing.Next();)
        static_cast<void>(files.Remove(FileUtils::GetCombinePath(folder, listing.Name())));
    static_cast<void>(VyrPlatform::FileCopy::RemoveEmptyFolder(folder));
}

void RemoveOrphans(FileOperations& files, const CString& path)
{
    std::set<std::uint32_t> kept;
    std::set<std::uint32_t> journals;
    for (VyrPlatform::FolderListing listing(path); listing.Next();) {
        const std::uint32_t number = NumberOf(listing.Name());
        (listing.Name() == NameOfKept(number) ? kept : journals).insert(number);
    }
    for (const std::uint32_t number : kept)
        if (!journals.contains(number))
            RemoveKept(files, path, number);
}

} // namespace VyrHost::Batch
