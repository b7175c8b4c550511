/// @file
/// A rule of which every part is the engine's own.
#pragma once

#include <VyrHost/rename/Rule.h>
#include <VyrLibraryFuncs/name/NameFuncs.h>

namespace VyrHost::Rename {

/// The engine's rename kinds, by the numbers of ITEM::renameType.
enum class RenameKind : int
{
    SequenceNumber,
    DateTime,
    AddDelete,
    Convert,
    Replace,
    Extension
};

/// A record for `kind` without any settings yet.
[[nodiscard]] VyrLibraryFuncs::NameFuncs::ITEM NewItem(RenameKind kind);

/// Applies one record of the engine to entry after entry.
class EngineRule : public Rule
{
public:
    explicit EngineRule(VyrLibraryFuncs::NameFuncs::ITEM settings);

    Reason Apply(Subject& subject) override;
    [[nodiscard]] bool MayNumber() const override;

protected:
    /// The engine's answer for `subject`, cut into the subject's folder, the name and the extension.
    void Compute(Subject& subject);

    /// The one record that serves all entries.
    VyrLibraryFuncs::NameFuncs::ITEM m_item;
};

} // namespace VyrHost::Rename
