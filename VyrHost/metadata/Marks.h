/// @file
/// The marks of downloads: what they tell, the change of kind "mark" that removes one, and which files lose theirs.
#pragma once

#include <VyrHost/metadata/Changes.h>
#include <VyrHost/model/Change.h>
#include <VyrPlatform/files/NamedStreams.h>

#include <vector>

namespace VyrHost::Metadata {

using ZoneForms = std::vector<VyrPlatform::NamedStreams::ZoneForm>;

/// What a mark says, whichever of its forms says it.
struct ZoneMark
{
    /// The word for the zone, such as "internet"; its number where it has no word; empty where the mark names none.
    CString zone;
    /// Where the file was loaded from, and the page that led there; empty where the mark does not tell.
    CString from;
    CString referrer;
};

/// Reads the lines ZoneId, HostUrl and ReferrerUrl of the section ZoneTransfer (Windows' URL security zones: 0 to 4),
/// and the addresses that browsers keep in extended attributes (freedesktop.org, common extended attributes).
[[nodiscard]] ZoneMark ReadMark(const ZoneForms& forms);

/// "internet, https://example.org/a.zip" and the like; "marked" for a mark that tells nothing; empty for no mark.
[[nodiscard]] CString Shown(const ZoneForms& forms);

/// Removes a mark by UnblockFuncs::DeleteZoneId, and restores every form of it with its bytes.
class MarkChange final : public Model::Change
{
public:
    /// @param forms  one or more.
    explicit MarkChange(ZoneForms forms) : m_forms(std::move(forms)) {}

    static constexpr std::string_view kind = "mark";
    /// What the journal keeps; null for texts that are none of this kind.
    [[nodiscard]] static std::shared_ptr<const Model::Change> Read(const CString& before, const CString& after);

    [[nodiscard]] std::string_view Kind() const override { return kind; }
    [[nodiscard]] CString Before() const override;
    [[nodiscard]] CString After() const override;
    [[nodiscard]] CString ShownBefore() const override;
    [[nodiscard]] CString ShownAfter() const override;
    [[nodiscard]] Model::ChangeLook Look(const CString& path) const override;
    [[nodiscard]] std::uint32_t Apply(const CString& path) const override;
    [[nodiscard]] std::uint32_t TakeBack(const CString& path) const override;

private:
    ZoneForms m_forms;
};

/// Takes the mark off every file that has one.
class MarkRule final : public ChangeRule
{
public:
    [[nodiscard]] Proposal Propose(const CString& path, const Model::Entry& entry, std::size_t index) const override;
};

} // namespace VyrHost::Metadata
