/// @file
/// The marks of downloads: their content, the change of kind "mark" that removes one, and the rule for the files of a
/// list.
#pragma once

#include <VyrHost/metadata/Changes.h>
#include <VyrHost/model/Change.h>
#include <VyrPlatform/files/NamedStreams.h>

#include <utility>
#include <vector>

namespace VyrHost::Metadata {

using ZoneForms = std::vector<VyrPlatform::NamedStreams::ZoneForm>;

/// The content of a mark, from any of its forms.
struct ZoneMark
{
    /// The word for the zone, such as "internet"; its number if there is no word; empty where the mark has none.
    CString zone;
    /// The address of the file, and of the page that linked to it; empty where the mark has none.
    CString from;
    CString referrer;
};

/// Reads the lines ZoneId, HostUrl and ReferrerUrl of the section ZoneTransfer (Windows' URL security zones: 0 to 4),
/// and the addresses in extended attributes of browsers (freedesktop.org, common extended attributes).
[[nodiscard]] ZoneMark ReadMark(const ZoneForms& forms);

/// "internet, https://example.org/a.zip" and the like; "marked" for a mark that tells nothing; empty for no mark.
[[nodiscard]] CString Shown(const ZoneForms& forms);

/// Removes a mark by UnblockFuncs::DeleteZoneId, and restores every form of it with its bytes.
class MarkChange final : public Model::Change
{
public:
    /// @param forms  at least one.
    /// @param protection  the exact attributes of a read-only file; empty for any other.
    explicit MarkChange(ZoneForms forms, CString protection = {})
        : m_forms(std::move(forms)), m_protection(std::move(protection))
    {}

    static constexpr std::string_view kind = "mark";
    /// Reads the texts of the journal; null for texts that are not of this kind.
    [[nodiscard]] static std::shared_ptr<const Model::Change> Read(const CString& before, const CString& after);

    [[nodiscard]] std::string_view Kind() const override { return kind; }
    [[nodiscard]] CString Before() const override;
    [[nodiscard]] CString After() const override;
    [[nodiscard]] CString ShownBefore() const override;
    [[nodiscard]] CString ShownAfter() const override;
    [[nodiscard]] bool MayLiftProtection() const override { return m_protection.IsEmpty(); }
    void Repair(const CString& path) const override;
    [[nodiscard]] Model::ChangeLook Look(const CString& path) const override;
    [[nodiscard]] std::uint32_t Apply(const CString& path) const override;
    [[nodiscard]] std::uint32_t Undo(const CString& path) const override;

private:
    [[nodiscard]] bool IsPart(const VyrPlatform::NamedStreams::ZoneForm& form) const;
    [[nodiscard]] std::uint32_t WriteMissing(const CString& path) const;

    ZoneForms m_forms;
    CString m_protection;
};

/// Removes the mark of every file that has one.
class MarkRule final : public ChangeRule
{
public:
    [[nodiscard]] Proposal Propose(const CString& path, const Model::Entry& entry, std::size_t index) const override;
};

} // namespace VyrHost::Metadata
