// Checks new names for characters that the system forbids and for lone surrogates, and opens destination folders.
#include <VyrHost/rename/NewPlace.h>

#include <VyrPlatform/files/FileSystem.h>
#include <VyrPlatform/text/Surrogates.h>

#include <cstddef>
#include <vector>

namespace VyrHost::Rename {

namespace {

using VyrHostPlatform::NameFault;

/// The index of the first lone surrogate from `start` on.
std::size_t FindLoneSurrogate(std::u16string_view text, std::size_t start)
{
    for (std::size_t index = start; index < text.size(); ++index) {
        if (VyrPlatform::BeginsWithPair(text.substr(index)))
            ++index;
        else if (VyrPlatform::IsSurrogate(text[index]))
            return index;
    }
    return std::u16string_view::npos;
}

bool HasLoneSurrogate(std::u16string_view text, char16_t surrogate)
{
    std::size_t found = FindLoneSurrogate(text, 0);
    while (found != std::u16string_view::npos && text[found] != surrogate)
        found = FindLoneSurrogate(text, found + 1);
    return found != std::u16string_view::npos;
}

bool HasNewLoneSurrogate(std::u16string_view newName, std::u16string_view oldName)
{
    for (std::size_t found = FindLoneSurrogate(newName, 0); found != std::u16string_view::npos;
         found = FindLoneSurrogate(newName, found + 1))
        if (!HasLoneSurrogate(oldName, newName[found]))
            return true;
    return false;
}

Reason ReasonOf(NameFault fault)
{
    switch (fault) {
    case NameFault::NoName:
        return Reason::DotName;
    case NameFault::ForbiddenCharacter:
        return Reason::ForbiddenCharacter;
    case NameFault::TooLong:
        return Reason::TooLong;
    case NameFault::ReservedWord:
        return Reason::ReservedWord;
    case NameFault::TrailingDotOrBlank:
        return Reason::TrailingDotOrBlank;
    case NameFault::None:
        break;
    }
    return Reason::None;
}

} // namespace

NameValidity ValidateName(std::u16string_view newName, std::u16string_view oldName)
{
    const VyrHostPlatform::NameVerdict verdict = VyrHostPlatform::CheckName(newName);
    if (verdict.isError)
        return {ReasonOf(verdict.fault), NameFault::None};
    if (HasNewLoneSurrogate(newName, oldName))
        return {Reason::NewLoneSurrogate, NameFault::None};
    const bool isNew = verdict.fault != NameFault::None && VyrHostPlatform::CheckName(oldName).fault != verdict.fault;
    return {Reason::None, isNew ? verdict.fault : NameFault::None};
}

using VyrHostPlatform::NameFault;

TargetFolders::Target TargetFolders::Open(const CString& path, const CString& shown)
{
    // The missing folders, the innermost first.
    std::vector<std::uint32_t> missing;
    std::uint32_t number = m_folders.Open(path, shown);
    std::optional<Target> target = Find(number);
    while (!target) {
        missing.push_back(number);
        number = m_folders.Open(m_folders[m_folders[number].parent].path, {});
        target = Find(number);
    }
    for (; !missing.empty(); missing.pop_back()) {
        target = Reserve(missing.back(), *target);
        m_targets.emplace(missing.back(), *target);
    }
    return *target;
}

/// The target for a known folder; nothing for one whose name must be reserved.
std::optional<TargetFolders::Target> TargetFolders::Find(std::uint32_t number) const
{
    const Model::Folder& folder = m_folders[number];
    if (folder.exists)
        return Target{.folder = number, .device = folder.device};
    if (const auto known = m_targets.find(number); known != m_targets.end())
        return known->second;
    if (VyrPlatform::FileSystem::IsFolder(folder.path))
        return Target{.folder = number, .reason = Reason::FolderNotRead};
    if (folder.parent == Model::noFolder || ValidateName(folder.name, {}).reason != Reason::None)
        return Target{.folder = number, .reason = Reason::BadFolder};
    return std::nullopt;
}

/// Reserves a name in the folder `parent` for a missing folder.
TargetFolders::Target TargetFolders::Reserve(std::uint32_t number, const Target& parent)
{
    if (parent.reason != Reason::None)
        return {.folder = number, .reason = parent.reason};
    Model::Folder& folder = m_folders[number];
    const Model::NameTable& siblings = m_folders[parent.folder].names;
    folder.names.SetFolding(siblings.Folding());
    if (siblings.Find(folder.name))
        return {.folder = number, .reason = Reason::BadFolder};
    const NameFault warning = ValidateName(folder.name, {}).warning;
    // The file system may regard the name as equal to a reserved one.
    const Target target{
        .folder = number, .warning = warning == NameFault::None ? parent.warning : warning, .device = parent.device};
    Model::NameTable& after = m_after.In(parent.folder);
    Model::NameRecord& record = after.Add(folder.name);
    const auto [claimed, isNew] = m_reserved.try_emplace({parent.folder, after.NumberOf(record)}, target);
    if (isNew) {
        record.owner = newFolder;
        folder.parent = parent.folder;
        folder.isNew = true;
    }
    return claimed->second;
}

} // namespace VyrHost::Rename
