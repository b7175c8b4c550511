// Fills the engine's record, asks the engine, and cuts its answer.
#include <VyrHost/rename/EngineRule.h>

#include <utility>

namespace VyrHost::Rename {

using VyrLibraryFuncs::NameFuncs;

NameFuncs::ITEM NewItem(RenameKind kind)
{
    NameFuncs::ITEM item;
    item.renameType = static_cast<int>(kind);
    return item;
}

EngineRule::EngineRule(NameFuncs::ITEM settings) : m_item(std::move(settings)) {}

bool EngineRule::MayNumber() const
{
    return NameFuncs::IsResolveConflict(m_item) == 1;
}

Reason EngineRule::Apply(Subject& subject)
{
    Compute(subject);
    return Reason::None;
}

void EngineRule::Compute(Subject& subject)
{
    const auto kind = static_cast<RenameKind>(m_item.renameType);
    if (kind == RenameKind::Extension && subject.isFolder)
        return;
    // Adding and deleting may answer the record's path itself; it must then be the path so far.
    m_item.filePath =
        kind == RenameKind::AddDelete ? CString::Join({subject.folder, subject.name, subject.extension}) : subject.path;
    m_item.dirPath = subject.folder;
    m_item.fileName = subject.name;
    m_item.extension = subject.extension;
    m_item.index = subject.index;
    const CString path = NameFuncs::GetRenameFilePath(m_item);

    const int folderLength = subject.folder.GetLength();
    if (kind == RenameKind::Extension)
        subject.extension = path.Mid(folderLength + subject.name.GetLength());
    else
        subject.name = path.Mid(folderLength, path.GetLength() - folderLength - subject.extension.GetLength());
}

} // namespace VyrHost::Rename
